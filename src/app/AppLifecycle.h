#pragma once

#include "app/WindowSeed.h"
#include "net/Work.h"

#include <QObject>
#include <qcoro/qcorotask.h>

namespace loom
{

class AppModel;
class Clock;
class WindowHost;

/// What happens when the desktop launches, reopens and quits the application. Main thread.
class AppLifecycle final : public QObject
{
    Q_OBJECT

public:
    AppLifecycle(AppModel& model, WindowHost& windows, Clock& clock, QObject* parent = nullptr);

    /// Opens the windows that were open last, with the seed's link in front, and looks after it twice: at 0.5 s and 1.5
    /// s a window is opened when none can be seen, and every window gets the application's style.
    void didFinishLaunching(const WindowSeed& seed);
    /// The desktop started the application and says at once what for; should it not, the first look opens a window.
    void didLaunchAsService() { static_cast<void>(lookAfterWindows()); }

    /// Whether quitting may go ahead now. When it may not, an update is being handed over, and the model asks to quit
    /// again once that is done.
    [[nodiscard]] bool shouldTerminate();
    /// Closing the last window leaves the application running.
    [[nodiscard]] static constexpr bool shouldTerminateAfterLastWindowClosed() { return false; }
    /// The application was started again, or its icon activated: brings its front window forward, or opens one.
    void handleReopen();
    /// A link came from outside: opens in the front window.
    void handleOpen(const QString& link);
    /// Opens links that anybody may have written, as far as they are acceptable. Without one of those only the front
    /// window comes forward.
    void handleOpen(const QStringList& links);
    /// Does what an action of the desktop entry promises, with the links that came with it, or quits; an action that is
    /// not known brings the front window forward.
    void handleAction(const QString& name, const QStringList& links = {});

    /// The links of a request that are worth opening: no longer than an address can sensibly be, without control
    /// characters, and not more of them than anybody would open tabs for.
    [[nodiscard]] static QStringList acceptable(const QStringList& links);

private:
    /// Those that were open last, with the seed's link in front; where there was nothing, one as the seed says.
    void openFirstWindow(const WindowSeed& seed);
    [[nodiscard]] QCoro::Task<> lookAfterWindows();

    AppModel& m_model;
    WindowHost& m_windows;
    Clock& m_clock;
    Work m_lookingAfter;
};

} // namespace loom
