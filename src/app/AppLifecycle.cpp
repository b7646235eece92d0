#include "app/AppLifecycle.h"

#include "account/ProofKey.h"
#include "app/AppModel.h"
#include "app/WindowHost.h"
#include "base/Clock.h"

#include <algorithm>

namespace loom
{

namespace
{

constexpr std::chrono::milliseconds firstLook{500};
constexpr std::chrono::milliseconds secondLook{1500};

constexpr qsizetype maximumLinkLength = 8192;
constexpr qsizetype maximumLinks = 12;

bool isAcceptable(const QString& link)
{
    return link.size() <= maximumLinkLength && !isCallback(link) &&
           std::ranges::none_of(link.trimmed(),
                                [](QChar character) { return character.category() == QChar::Other_Control; });
}

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
    openFirstWindow(seed);
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
        openFirstWindow({});
}

void AppLifecycle::openFirstWindow(const WindowSeed& seed)
{
    if (!m_model.restoreWindows(seed.link))
        m_model.openWindow(seed);
}

bool AppLifecycle::shouldTerminate()
{
    if (!m_model.updater()->shouldTerminate())
        return false;
    m_model.saveWindowsForNextStart();
    return true;
}

void AppLifecycle::handleOpen(const QString& link)
{
    WindowSession* const session = m_model.keySession();
    if (!session) {
        openFirstWindow({.link = link});
        return;
    }
    m_windows.raise(*session); // first: a link may lead on to the browser, which is then in front
    session->openLink(link);
}

void AppLifecycle::handleOpen(const QStringList& links)
{
    // A sign-in that comes back is no link, and nothing else looks at it. The window it began in comes to the front.
    for (const QString& link : links) {
        if (link.size() <= maximumLinkLength)
            m_model.auth()->takeCallback(link);
    }
    const QStringList opened = acceptable(links);
    for (const QString& link : opened)
        handleOpen(link);
    if (opened.isEmpty())
        handleReopen();
}

void AppLifecycle::handleAction(const QString& name, const QStringList& links)
{
    const QStringList opened = acceptable(links);
    if (name == QLatin1String("quit")) {
        Q_EMIT m_model.quitRequested();
        return;
    }
    // Where there is none, the window that is opened anyway is the new one.
    if (name == QLatin1String("new-window") && m_model.keySession()) {
        m_model.openWindow(WindowSeed{.link = opened.isEmpty() ? std::nullopt : std::optional(opened.first())});
        for (const QString& link : opened.mid(1))
            handleOpen(link);
        return;
    }
    handleOpen(links);
    WindowSession& session = *m_model.keySession();
    session.setSignInPresented(false); // it would lie over what is asked for
    if (name == QLatin1String("search"))
        session.setPendingSearchFocus(true);
    else if (name == QLatin1String("bag"))
        session.setCartOpen(true);
}

QStringList AppLifecycle::acceptable(const QStringList& links)
{
    QStringList accepted;
    std::ranges::copy_if(links, std::back_inserter(accepted), isAcceptable);
    return accepted.mid(0, maximumLinks);
}

} // namespace loom
