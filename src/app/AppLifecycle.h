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

    /// Opens the first window, and looks after it twice: at 0.5 s and 1.5 s a window is opened when none can be seen,
    /// and every window gets the application's style.
    void didFinishLaunching(const WindowSeed& seed);

    /// Whether quitting may go ahead now.
    [[nodiscard]] bool shouldTerminate() const { return true; }
    /// Closing the last window leaves the application running.
    [[nodiscard]] static constexpr bool shouldTerminateAfterLastWindowClosed() { return false; }
    /// The application was started again, or its icon activated: brings its front window forward, or opens one.
    void handleReopen();
    /// A link came from outside: opens in the front window.
    void handleOpen(const QString& link);

private:
    [[nodiscard]] QCoro::Task<> lookAfterWindows();

    AppModel& m_model;
    WindowHost& m_windows;
    Clock& m_clock;
    Work m_lookingAfter;
};

} // namespace loom
