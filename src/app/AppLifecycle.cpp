#include "app/AppLifecycle.h"

#include "app/AppModel.h"
#include "app/WindowHost.h"
#include "base/Clock.h"

namespace loom
{

namespace
{

constexpr std::chrono::milliseconds firstLook{500};
constexpr std::chrono::milliseconds secondLook{1500};

} // namespace

AppLifecycle::AppLifecycle(AppModel& model, WindowHost& windows, Clock& clock, QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_windows(windows)
    , m_clock(clock)
{
}

void AppLifecycle::didFinishLaunching(const WindowSeed& seed)
{
    m_model.openWindow(seed);
    static_cast<void>(lookAfterWindows());
}

QCoro::Task<> AppLifecycle::lookAfterWindows()
{
    const Work::Run run = m_lookingAfter.begin();
    for (const auto pause : {firstLook, secondLook - firstLook}) {
        co_await m_clock.sleep(pause, run.stop());
        if (run.isStopped())
            co_return;
        if (!m_windows.hasVisibleWindow())
            handleReopen();
        m_windows.applyWindowStyle();
    }
}

void AppLifecycle::handleReopen()
{
    if (WindowSession* const session = m_model.keySession())
        m_windows.raise(*session);
    else
        m_model.openWindow({});
}

void AppLifecycle::handleOpen(const QString& link)
{
    WindowSession* const session = m_model.keySession();
    if (!session) {
        m_model.openWindow({.link = link});
        return;
    }
    m_windows.raise(*session); // first: a link may lead on to the browser, which is then in front
    session->openLink(link);
}

} // namespace loom
