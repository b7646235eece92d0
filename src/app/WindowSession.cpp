#include "app/WindowSession.h"

#include "app/ClosedTabs.h"
#include "app/WindowServices.h"
#include "base/Random.h"

namespace loom
{

WindowSession::WindowSession(const WindowServices& services, const WindowSeed& seed, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_id(services.random.uuid())
{
    Router* const tab = openTab(seed.section, TabActivation::Activate);
    if (seed.link)
        tab->open(seed.link);
    connect(&services.closedTabs, &ClosedTabs::changed, this, &WindowSession::canReopenTabChanged);
    connect(this, &WindowSession::layoutChanged, this, &WindowSession::previewShownChanged);
    connect(this, &WindowSession::panelsChanged, this, &WindowSession::previewShownChanged);
    connect(this, &WindowSession::selectedChanged, this, &WindowSession::previewShownChanged);
}

std::unique_ptr<WindowSession> WindowSession::restored(const WindowServices& services, const WindowState& state)
{
    auto session = std::make_unique<WindowSession>(
        services, WindowSeed{.link = {}, .section = state.tabs.front().section.selection});
    const Router* selected = session->m_tabs.at(0);
    session->m_tabs.at(0)->restore(state.tabs.front());
    for (std::size_t i = 1; i < state.tabs.size(); ++i) {
        const TabState& saved = state.tabs[i];
        // Where they stand in the file is not for sure: pinned ones come first.
        Router* const tab = session->insertTab(saved.isPinned ? session->pinnedCount() : session->m_tabs.count(),
                                               saved.section.selection, TabActivation::Background);
        tab->restore(saved);
        if (static_cast<int>(i) == state.selectedIndex)
            selected = tab;
    }
    session->select(selected->id());
    session->m_isSidebarCollapsed = state.isSidebarCollapsed;
    session->m_windowSize = state.size;
    session->m_isWindowMaximized = state.isMaximized;
    return session;
}

WindowSession::~WindowSession()
{
    Q_EMIT ending();
}

void WindowSession::resolvePagesAgain()
{
    for (int i = 0; i < m_tabs.count(); ++i)
        m_tabs.at(i)->resolveAgain();
}

void WindowSession::retranslate()
{
    for (int i = 0; i < m_tabs.count(); ++i)
        m_tabs.at(i)->retranslate();
}

WindowState WindowSession::state() const
{
    WindowState state{.tabs = {},
                      .selectedIndex = selectedIndex(),
                      .isSidebarCollapsed = m_isSidebarCollapsed,
                      .size = m_windowSize,
                      .isMaximized = m_isWindowMaximized};
    for (int i = 0; i < m_tabs.count(); ++i)
        state.tabs.push_back(m_tabs.at(i)->state());
    return state;
}

Router* WindowSession::openTab(SidebarItem section, TabActivation activation)
{
    return insertTab(m_tabs.count(), section, activation);
}

Router* WindowSession::insertTab(int index, SidebarItem section, TabActivation activation)
{
    auto tab = std::make_unique<Router>(m_services, this, section);
    Router* const router = tab.get();
    m_recency.append(router->id());
    watch(*router);
    m_tabs.insert(index, std::move(tab));
    if (activation == TabActivation::Activate)
        select(router->id());
    return router;
}

void WindowSession::watch(const Router& tab)
{
    for (const auto signal : {&Router::isPinnedChanged, &Router::stackChanged, &Router::titleChanged,
                              &Router::previewChanged, &Router::scrollPositionChanged})
        connect(&tab, signal, this, &WindowSession::stateChanged);
    connect(&tab, &Router::previewChanged, this, &WindowSession::previewShownChanged);
}

void WindowSession::openLink(const QString& link)
{
    const LinkResolver::Target target = m_services.resolver.resolve(link);
    const bool isPage = !std::holds_alternative<LinkResolver::External>(target) &&
                        !std::holds_alternative<LinkResolver::Cart>(target) &&
                        !std::holds_alternative<LinkResolver::None>(target);
    if (isPage) {
        // What lies over the page would hide that it came.
        setCartOpen(false);
        setHistoryOpen(false);
        setInboxOpen(false);
        setSupportOpen(false);
        setUpdateOpen(false);
        setSignInPresented(false);
        closeLightbox();
    }
    Router* const tab = isPage ? openTab(SidebarItem::Home, TabActivation::Activate) : selected();
    tab->open(link);
}

void WindowSession::newTab()
{
    openTab(SidebarItem::Home, TabActivation::Activate);
}

void WindowSession::newTabToTheRight(int index)
{
    if (m_tabs.at(index))
        insertTab(std::max(index + 1, pinnedCount()), SidebarItem::Home, TabActivation::Activate);
}

void WindowSession::selectTab(int index)
{
    if (const Router* const tab = m_tabs.at(index))
        select(tab->id());
}

// By value: the identifier may stand in the list that it is moved in.
void WindowSession::select(QUuid id)
{
    m_recency.removeAll(id);
    m_recency.prepend(id);
    if (std::exchange(m_selectedID, id) == id)
        return;
    Q_EMIT selectedChanged();
    Q_EMIT stateChanged();
}

void WindowSession::closeTab(int index)
{
    closeTab(index, Closing::Remembered);
}

void WindowSession::closeTab(int index, Closing closing)
{
    if (!m_tabs.at(index))
        return;
    if (m_tabs.count() == 1) {
        Q_EMIT closeRequested();
        return;
    }
    dropTab(index, closing);
}

void WindowSession::dropTab(int index, Closing closing)
{
    const QUuid id = m_tabs.at(index)->id();
    m_recency.removeAll(id);
    if (closing == Closing::Remembered)
        m_services.closedTabs.add(m_tabs.at(index)->state());
    // The next tab is in front before the closed one goes, so that the window is never without a page.
    if (id == m_selectedID)
        select(m_recency.first());
    m_tabs.remove(index);
    Q_EMIT selectedChanged(); // its number may have changed
    Q_EMIT stateChanged();
}

void WindowSession::reopenTab()
{
    const std::optional<TabState> closed = m_services.closedTabs.take();
    if (!closed)
        return;
    const int index = closed->isPinned ? pinnedCount() : m_tabs.count();
    insertTab(index, closed->section.selection, TabActivation::Activate)->restore(*closed);
}

bool WindowSession::canReopenTab() const
{
    return !m_services.closedTabs.isEmpty();
}

int WindowSession::pinnedCount() const
{
    int count = 0;
    while (count < m_tabs.count() && m_tabs.at(count)->isPinned())
        ++count;
    return count;
}

void WindowSession::moveTab(int from, int to)
{
    const Router* const tab = m_tabs.at(from);
    if (!tab)
        return;
    const int pinned = pinnedCount();
    const int place =
        tab->isPinned() ? std::clamp(to, 0, pinned - 1) : std::clamp(to, pinned, std::max(pinned, m_tabs.count() - 1));
    if (place == from)
        return;
    m_tabs.move(from, place);
    Q_EMIT selectedChanged(); // its number may have changed
    Q_EMIT stateChanged();
}

void WindowSession::setTabPinned(int index, bool isPinned)
{
    Router* const tab = m_tabs.at(index);
    if (!tab || tab->isPinned() == isPinned)
        return;
    // To the border between the two kinds, on whichever side it then belongs.
    const int border = isPinned ? pinnedCount() : pinnedCount() - 1;
    tab->setPinned(isPinned);
    m_tabs.move(index, border);
    Q_EMIT selectedChanged();
    Q_EMIT stateChanged();
}

void WindowSession::tearOffTab(int index)
{
    const Router* const tab = m_tabs.at(index);
    if (!tab || m_tabs.count() < 2)
        return;
    const TabState state = tab->state();
    closeTab(index, Closing::Forgotten); // only here: it is open elsewhere
    Q_EMIT tabTornOff(state);
}

void WindowSession::closeOtherTabs(int index)
{
    const Router* const kept = m_tabs.at(index);
    if (!kept)
        return;
    select(kept->id());
    for (int i = m_tabs.count() - 1; i >= 0; --i) {
        if (m_tabs.at(i) != kept)
            dropTab(i);
    }
}

void WindowSession::selectNextTab()
{
    selectTab((selectedIndex() + 1) % m_tabs.count());
}

void WindowSession::selectPreviousTab()
{
    selectTab((selectedIndex() + m_tabs.count() - 1) % m_tabs.count());
}

void WindowSession::setPanel(bool& panel, bool isOpen)
{
    const Panels before = m_panels;
    // One panel at a time.
    if (isOpen)
        m_panels = {};
    panel = isOpen;
    if (m_panels != before)
        Q_EMIT panelsChanged();
}

void WindowSession::setSignInPresented(bool isPresented)
{
    if (std::exchange(m_isSignInPresented, isPresented) != isPresented)
        Q_EMIT panelsChanged();
}

void WindowSession::setMiraDocked(bool isDocked)
{
    if (std::exchange(m_isMiraDocked, isDocked) != isDocked)
        Q_EMIT panelsChanged();
}

void WindowSession::setPendingCheckout(const std::optional<CheckoutRequest>& request)
{
    m_pendingCheckout = request;
    Q_EMIT pendingCheckoutChanged();
}

void WindowSession::expandCart()
{
    setCartOpen(false);
    if (Router* const tab = selected())
        tab->select(SidebarItem::Cart);
}

void WindowSession::dockCart()
{
    leaveCart();
    setCartOpen(true);
}

void WindowSession::leaveCart()
{
    setCartOpen(false);
    Router* const tab = selected();
    if (!tab || tab->selection() != SidebarItem::Cart)
        return;
    if (tab->canGoBack())
        tab->back();
    else
        tab->select(SidebarItem::Home);
}

void WindowSession::checkOut(const QUrl& cartCheckoutURL)
{
    setPendingCheckout(CheckoutRequest{.url = cartCheckoutURL, .fromCart = true});
}

void WindowSession::openLightbox(const QStringList& images, int index, const QString& title)
{
    if (images.isEmpty())
        return;
    m_lightbox = LightboxRequest{.images = images,
                                 .index = std::clamp(index, 0, static_cast<int>(images.size()) - 1),
                                 .isSlideshow = false,
                                 .title = title.isEmpty() ? std::nullopt : std::optional(title)};
    Q_EMIT lightboxChanged();
}

void WindowSession::closeLightbox()
{
    m_lightbox.reset();
    Q_EMIT lightboxChanged();
}

QVariant WindowSession::lightboxVariant() const
{
    return m_lightbox ? QVariant::fromValue(*m_lightbox) : QVariant();
}

void WindowSession::setPendingSearchFocus(bool isPending)
{
    if (std::exchange(m_pendingSearchFocus, isPending) != isPending)
        Q_EMIT pendingSearchFocusChanged();
}

void WindowSession::setWindowFullScreen(bool isFullScreen)
{
    if (std::exchange(m_isWindowFullScreen, isFullScreen) != isFullScreen)
        Q_EMIT layoutChanged();
}

void WindowSession::setSidebarCollapsed(bool isCollapsed)
{
    if (std::exchange(m_isSidebarCollapsed, isCollapsed) == isCollapsed)
        return;
    Q_EMIT layoutChanged();
    Q_EMIT stateChanged();
}

void WindowSession::setWindowWidth(double width)
{
    if (!qFuzzyCompare(std::exchange(m_windowWidth, width), width))
        Q_EMIT layoutChanged();
}

bool WindowSession::isPreviewShown() const
{
    const Router* const tab = selected();
    return tab && tab->preview() && hasRoomForPreview();
}

void WindowSession::setWindowSize(const QSize& size)
{
    if (std::exchange(m_windowSize, size) == size)
        return;
    Q_EMIT windowSizeChanged();
    Q_EMIT stateChanged();
}

void WindowSession::setWindowMaximized(bool isMaximized)
{
    if (std::exchange(m_isWindowMaximized, isMaximized) == isMaximized)
        return;
    Q_EMIT windowSizeChanged();
    Q_EMIT stateChanged();
}

void WindowSession::setWindow(QObject* window)
{
    m_window = window;
    Q_EMIT windowChanged();
}

} // namespace loom
