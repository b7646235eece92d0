#include "app/AppModel.h"

#include "app/WindowHost.h"

// Windows as they open and close.

namespace loom
{

void AppModel::takePendingCheckout(WindowSession& session)
{
    const std::optional<CheckoutRequest> request = session.pendingCheckout();
    if (!request)
        return;
    session.setPendingCheckout({});
    m_checkout.start(*request);
}

WindowSession& AppModel::openWindow(const WindowSeed& seed)
{
    m_begun.clear();
    return show(std::make_unique<WindowSession>(m_services, seed));
}

WindowSession& AppModel::openSavedWindow(const WindowState& state)
{
    m_begun.clear();
    return show(WindowSession::restored(m_services, state));
}

bool AppModel::restoreWindows(const std::optional<QString>& link)
{
    if (m_platform.isSafeMode)
        return false;
    const std::vector<WindowState> windows = m_savedWindows.load();
    m_begun.clear();
    // The one that was in front comes last, and so to the front.
    for (const WindowState& window : windows) {
        auto session = WindowSession::restored(m_services, window);
        // Before anything is asked for: what the link lies in front of need not be loaded.
        if (link && &window == &windows.back())
            session->openLink(*link);
        show(std::move(session));
    }
    return !windows.empty();
}

std::vector<WindowState> AppModel::windowStates() const
{
    std::vector<WindowState> states;
    for (auto session = m_keyOrder.rbegin(); session != m_keyOrder.rend(); ++session)
        states.push_back((*session)->state());
    return states;
}

WindowSession& AppModel::show(std::unique_ptr<WindowSession> opened)
{
    WindowSession& session = *m_sessions.emplace_back(std::move(opened));
    m_keyOrder.prepend(&session);
    connect(&session, &WindowSession::stateChanged, this, [this] { m_savedWindows.noteChange(); });
    connect(&session, &WindowSession::tabTornOff, this, [this, &session](const TabState& tab) {
        openSavedWindow(WindowState{.tabs = {tab}, .size = session.windowSize()});
    });
    m_savedWindows.noteChange();
    connect(&session, &WindowSession::pendingCheckoutChanged, this, [this, &session] { takePendingCheckout(session); });
    m_news.banners().attach(&session);
    beginFirstPage(session);
    m_windows->show(session);
    bootstrap();
    return session;
}

void AppModel::closeWindow(WindowSession* session)
{
    const auto found = std::ranges::find(m_sessions, session, &std::unique_ptr<WindowSession>::get);
    if (found == m_sessions.end())
        return;
    // The tabs of the last window come back with it.
    if (m_sessions.size() == 1) {
        m_savedWindows.save();
    } else if (!m_savedWindows.hasEnded()) {
        for (const TabState& tab : session->state().tabs)
            m_closedTabs.add(tab);
        m_savedWindows.noteChange();
    }
    // The call may come out of the session itself.
    m_keyOrder.removeAll(session);
    m_news.banners().detach(session);
    WindowSession* const closed = found->release();
    closed->setParent(this);
    closed->deleteLater();
    m_sessions.erase(found);
    // A call is never without a sign of itself.
    if (m_sessions.empty() && !m_savedWindows.hasEnded() && m_calls.session().isActive())
        m_calls.session().showInWindow();
}

void AppModel::windowBecameKey(WindowSession* session)
{
    if (m_keyOrder.removeAll(session) == 0)
        return;
    m_keyOrder.prepend(session);
    m_news.banners().setFront(session);
    m_savedWindows.noteChange();
}

WindowSession* AppModel::frontSession()
{
    return keySession() ? keySession() : &openWindow(WindowSeed());
}

void AppModel::showMira()
{
    m_windows->showMira();
}

void AppModel::showPages()
{
    m_windows->raise(*frontSession());
}

void AppModel::dockMira()
{
    WindowSession& session = *frontSession();
    session.setMiraDocked(true);
    m_windows->raise(session);
}

WindowSession* AppModel::keySession() const
{
    return m_keyOrder.value(0);
}

} // namespace loom
