#include "app/WindowSession.h"

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
}

WindowSession::~WindowSession() = default;

WindowState WindowSession::state() const
{
    WindowState state{.selectedIndex = selectedIndex(), .isSidebarCollapsed = m_isSidebarCollapsed};
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
    m_tabs.insert(index, std::move(tab));
    if (activation == TabActivation::Activate)
        select(router->id());
    return router;
}

void WindowSession::openLink(const QString& link)
{
    const LinkResolver::Target target = m_services.resolver.resolve(link);
    const bool isPage = !std::holds_alternative<LinkResolver::External>(target) &&
                        !std::holds_alternative<LinkResolver::Cart>(target) &&
                        !std::holds_alternative<LinkResolver::None>(target);
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
        insertTab(index + 1, SidebarItem::Home, TabActivation::Activate);
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
    if (std::exchange(m_selectedID, id) != id)
        Q_EMIT selectedChanged();
}

void WindowSession::closeTab(int index)
{
    if (!m_tabs.at(index))
        return;
    if (m_tabs.count() == 1) {
        Q_EMIT closeRequested();
        return;
    }
    dropTab(index);
}

void WindowSession::dropTab(int index)
{
    const QUuid id = m_tabs.at(index)->id();
    m_recency.removeAll(id);
    // The next tab is in front before the closed one goes, so that the window is never without a page.
    if (id == m_selectedID)
        select(m_recency.first());
    m_tabs.remove(index);
    Q_EMIT selectedChanged(); // its number may have changed
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
    if (std::exchange(m_isSidebarCollapsed, isCollapsed) != isCollapsed)
        Q_EMIT layoutChanged();
}

void WindowSession::setWindowWidth(double width)
{
    if (!qFuzzyCompare(std::exchange(m_windowWidth, width), width))
        Q_EMIT layoutChanged();
}

void WindowSession::setWindow(QObject* window)
{
    m_window = window;
    Q_EMIT windowChanged();
}

} // namespace loom
