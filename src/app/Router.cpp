#include "app/Router.h"

#include "app/WindowServices.h"
#include "app/WindowSession.h"
#include "base/Clock.h"
#include "base/Random.h"
#include "storage/Preferences.h"

#include <algorithm>

namespace loom
{

namespace
{

template <typename... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};

/// How many titles a menu of pages shows at most.
constexpr qsizetype longestMenu = 15;

/// The pages around the current one whose state is kept in memory.
constexpr std::size_t livePagesBehind = 16;
constexpr std::size_t livePagesAhead = 8;

constexpr double leastPreviewWidth = 420;
constexpr double greatestPreviewWidth = 640;

double previewWidthFor(double stored)
{
    return stored > 0 ? std::clamp(stored, leastPreviewWidth, greatestPreviewWidth) : 480.0;
}

std::optional<ProductListItem> cardIn(const QVariant& item)
{
    return item.canConvert<ProductListItem>() ? std::optional(item.value<ProductListItem>()) : std::nullopt;
}

} // namespace

Router::Router(const WindowServices& services, WindowSession* session, SidebarItem section, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_session(session)
    , m_id(services.random.uuid())
    , m_lastSelectionChange(services.clock.now())
    , m_history(section)
    , m_previewWidth(previewWidthFor(services.preferences.value(preferences::splitPreviewWidth)))
{
    apply(section);
}

// Pages that are still there go while they can turn to the whole of this.
Router::~Router()
{
    m_navigationPath.show({}, 0);
}

void Router::setPinned(bool isPinned)
{
    if (std::exchange(m_isPinned, isPinned) != isPinned)
        Q_EMIT isPinnedChanged();
}

std::vector<Route> Router::routes() const
{
    std::vector<Route> routes;
    for (std::size_t i = m_history.root() + 1; i <= m_history.current(); ++i)
        routes.push_back(*m_history.pages()[i].route);
    return routes;
}

std::vector<Route> Router::forwardRoutes() const
{
    std::vector<Route> routes;
    for (std::size_t i = m_history.current() + 1; i < m_history.pages().size() && m_history.pages()[i].route; ++i)
        routes.insert(routes.begin(), *m_history.pages()[i].route);
    return routes;
}

QMap<int, QString> Router::pageTitles() const
{
    QMap<int, QString> titles;
    for (std::size_t i = m_history.root(); i <= m_history.current(); ++i) {
        if (const QString& title = m_history.pages()[i].title; !title.isEmpty())
            titles.insert(m_history.depthOf(i), title);
    }
    return titles;
}

PageEntry Router::entryAt(std::size_t index) const
{
    const History::Page& page = m_history.pages()[index];
    return page.route ? pageFor(*page.route, m_services.storePages) : pageFor(page.section, m_services.storePages);
}

PageEntry Router::page(int depth) const
{
    return entryAt(m_history.root() + static_cast<std::size_t>(std::clamp(depth, 0, this->depth())));
}

QString Router::titleAt(std::size_t index) const
{
    const QString& title = m_history.pages()[index].title;
    return title.isEmpty() ? entryAt(index).title : title;
}

QStringList Router::trail() const
{
    QStringList titles;
    for (std::size_t i = m_history.root(); i <= m_history.current(); ++i)
        titles.append(titleAt(i));
    return titles;
}

bool Router::open(const std::optional<QString>& link)
{
    return std::visit(Overloaded{
                          [this](const LinkResolver::Product& product) {
                              openProduct({.handle = product.handle, .item = {}}, OpenMode::Page);
                              return true;
                          },
                          [this](const LinkResolver::Collection& collection) {
                              push(ShopRoute{ShopRoute::Collection{.handle = collection.handle, .title = {}}});
                              return true;
                          },
                          [this](const LinkResolver::Search& search) {
                              openSearch(search.query);
                              return true;
                          },
                          [this](const LinkResolver::External& external) {
                              m_services.openExternally(external.url);
                              return true;
                          },
                          [](const LinkResolver::None&) { return false; },
                          [this](const LinkResolver::Brands&) {
                              select(SidebarItem::Brands);
                              return true;
                          },
                          [this](const LinkResolver::Starlook&) {
                              select(SidebarItem::Starlook);
                              return true;
                          },
                          [this](const LinkResolver::Cart&) {
                              if (m_session)
                                  m_session->setCartOpen(true);
                              return true;
                          },
                          [this](const LinkResolver::Account&) {
                              select(SidebarItem::Account);
                              return true;
                          },
                      },
                      m_services.resolver.resolve(link));
}

void Router::openProduct(const ProductPreview& request, OpenMode mode)
{
    const Qt::KeyboardModifiers keys = m_services.heldKeys();
    if (mode == OpenMode::Automatic) {
        if (keys.testFlag(Qt::ControlModifier))
            mode = OpenMode::NewTab;
        else if (isSplitPreviewAvailable()) {
            setPreview(request);
            return;
        }
    }
    if (mode == OpenMode::Docked && !(m_session && m_session->isMiraDocked())) {
        setPreview(request);
        return;
    }
    const Route route = ShopRoute{ShopRoute::Product{.handle = request.handle, .item = request.item}};
    if (mode == OpenMode::NewTab) {
        Router* const tab =
            m_session ? m_session->openTab(selection(), keys.testFlag(Qt::ShiftModifier) ? TabActivation::Background
                                                                                         : TabActivation::Activate)
                      : this;
        tab->push(route);
        return;
    }
    if (m_preview && m_preview->handle == request.handle)
        closePreview();
    push(route);
}

bool Router::isSplitPreviewAvailable() const
{
    return !(m_session && m_session->isMiraDocked()) && m_services.preferences.value(preferences::splitPreview) &&
           (!m_session || m_session->contentWidth() >= WindowSession::leastWidthForPreview);
}

void Router::openPiece(const QString& handle, const QVariant& item, OpenMode mode)
{
    openProduct({.handle = handle, .item = cardIn(item)}, mode);
}

void Router::setPreview(const std::optional<ProductPreview>& preview)
{
    if (m_preview == preview)
        return;
    m_preview = preview;
    Q_EMIT previewChanged();
}

void Router::expandPreview()
{
    if (m_preview)
        openProduct(ProductPreview(*m_preview), OpenMode::Page);
}

void Router::openPreviewInNewTab()
{
    if (!m_preview || !m_session)
        return;
    const Route route = ShopRoute{ShopRoute::Product{.handle = m_preview->handle, .item = m_preview->item}};
    m_session->openTab(selection(), TabActivation::Activate)->push(route);
}

void Router::setPreviewWidth(double width)
{
    const double clamped = std::clamp(width, leastPreviewWidth, greatestPreviewWidth);
    if (qFuzzyCompare(std::exchange(m_previewWidth, clamped), clamped))
        return;
    m_services.preferences.set(preferences::splitPreviewWidth, clamped);
    Q_EMIT previewWidthChanged();
}

void Router::openCollection(const QString& handle, const QString& title)
{
    closePreview();
    const Route route = ShopRoute{
        ShopRoute::Collection{.handle = handle, .title = title.isEmpty() ? std::nullopt : std::optional(title)}};
    const std::optional<Route>& current = m_history.currentPage().route;
    const auto* const top = current ? std::get_if<ShopRoute>(&*current) : nullptr;
    if (!top || !std::holds_alternative<ShopRoute::Collection>(top->page)) {
        push(route);
        return;
    }
    // From one collection to another: the stack does not grow.
    m_history.replace(route);
    apply(selection());
}

void Router::openDepartment(const QString& id)
{
    push(ShopRoute{ShopRoute::Category{.id = id}});
}

void Router::openSearch(const QString& query)
{
    // A link may carry, percent-encoded, what nobody can type or see.
    QString visible = query;
    std::ranges::replace_if(
        visible, [](QChar character) { return character.category() == QChar::Other_Control; }, QLatin1Char(' '));
    push(ShopRoute{ShopRoute::Search{.query = visible}});
}

void Router::openWishlist()
{
    select(SidebarItem::Wishlist);
}

void Router::openRecentlyViewed()
{
    push(ShopRoute{ShopRoute::RecentlyViewed{}});
}

void Router::openPriceDrops()
{
    push(ShopRoute{ShopRoute::PriceDrops{}});
}

void Router::openCompare(const QStringList& handles)
{
    push(ShopRoute{ShopRoute::Compare{.handles = handles}});
}

void Router::setCompared(int pageID, const QStringList& handles)
{
    History::Page* const page = m_history.find(pageID);
    const auto* const shop = page && page->route ? std::get_if<ShopRoute>(&*page->route) : nullptr;
    if (!shop || !std::holds_alternative<ShopRoute::Compare>(shop->page))
        return;
    page->route = ShopRoute{ShopRoute::Compare{.handles = handles}};
    Q_EMIT stackChanged();
}

void Router::openFromStorePage(const QString& link)
{
    const LinkResolver::Target target = m_services.resolver.resolve(link);
    const auto* const external = std::get_if<LinkResolver::External>(&target);
    if (!external || !m_services.storePages.mayLoad(external->url)) {
        open(link);
        return;
    }
    openStorePage(external->url.toString(QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::FullyEncoded), {});
}

void Router::openStorePage(const QString& path, const QString& title)
{
    push(StorePageRoute{StorePageRoute::Page{.path = path, .title = title}});
}

void Router::push(const Route& route)
{
    m_history.push(route);
    apply(selection());
}

void Router::select(SidebarItem item)
{
    const SidebarItem before = selection();
    if (item == before) {
        goToSectionHome();
        return;
    }
    m_history.enter(item);
    apply(before);
}

void Router::selectItem(int item)
{
    if (item >= 0 && item < static_cast<int>(sidebarEntries.size()))
        select(static_cast<SidebarItem>(item));
}

void Router::back()
{
    go(-1);
}

void Router::forward()
{
    go(1);
}

void Router::go(int pages)
{
    const SidebarItem before = selection();
    if (m_history.move(pages))
        apply(before);
}

void Router::backTo(int depth)
{
    if (depth >= 0 && depth < this->depth())
        go(depth - this->depth());
}

void Router::goToSectionHome()
{
    backTo(0);
}

QStringList Router::backTitles() const
{
    QStringList titles;
    for (std::size_t i = m_history.current(); i > 0 && titles.size() < longestMenu; --i)
        titles.append(titleAt(i - 1));
    return titles;
}

QStringList Router::forwardTitles() const
{
    QStringList titles;
    for (std::size_t i = m_history.current() + 1; i < m_history.pages().size() && titles.size() < longestMenu; ++i)
        titles.append(titleAt(i));
    return titles;
}

void Router::apply(SidebarItem before)
{
    const bool wasApplying = std::exchange(m_isApplying, true);
    const std::size_t current = m_history.current();
    const std::size_t first = current > livePagesBehind ? current - livePagesBehind : 0;
    const std::size_t last = std::min(current + livePagesAhead, m_history.pages().size() - 1);
    std::vector<VisitedPage> pages;
    for (std::size_t i = first; i <= last; ++i)
        pages.push_back({.id = m_history.pages()[i].id, .depth = m_history.depthOf(i), .entry = entryAt(i)});
    m_navigationPath.show(std::move(pages), static_cast<int>(current - first));
    m_isApplying = wasApplying;
    if (selection() != before) {
        m_lastSelectionChange = m_services.clock.now();
        Q_EMIT selectionChanged();
    }
    Q_EMIT stackChanged();
    Q_EMIT titleChanged();
    Q_EMIT topChanged();
}

TabState Router::state() const
{
    TabState state{.isPinned = m_isPinned,
                   .section = {.selection = selection(), .routes = routes()},
                   .titles = {},
                   .scrollOffsets = {},
                   .preview = m_preview};
    for (std::size_t i = m_history.root(); i <= m_history.current(); ++i) {
        state.titles.append(m_history.pages()[i].title);
        state.scrollOffsets.append(m_history.pages()[i].scrollOffset);
    }
    return state;
}

void Router::restore(const TabState& state)
{
    const SidebarItem before = selection();
    setPinned(state.isPinned);
    m_history.reset(state.section.selection);
    for (const Route& route : state.section.routes)
        m_history.push(route);
    for (int i = 0; i <= depth(); ++i) {
        History::Page& page = *m_history.find(m_history.pages()[static_cast<std::size_t>(i)].id);
        page.title = state.titles.value(i);
        page.scrollOffset = std::max(0.0, state.scrollOffsets.value(i));
    }
    apply(before);
    setPreview(state.preview);
}

void Router::reload()
{
    ++m_reloadToken;
    Q_EMIT reloadTokenChanged();
    // A page may take itself back while it reloads.
    for (const QPointer<QObject>& page : QMap(m_reloadHandlers)) {
        if (page)
            QMetaObject::invokeMethod(page, "reload");
    }
}

void Router::softReload()
{
    ++m_softReloadToken;
    Q_EMIT softReloadTokenChanged();
}

int Router::addReloadHandler(QObject* page)
{
    m_reloadHandlers.insert(m_nextReloadKey, page);
    return m_nextReloadKey++;
}

void Router::setPageTitle(int pageID, const QString& title)
{
    History::Page* const page = m_history.find(pageID);
    if (!page || page->title == title)
        return;
    page->title = title;
    if (!m_isApplying) // else it is told in a moment
        Q_EMIT titleChanged();
}

void Router::setScrollPosition(int pageID, double position)
{
    History::Page* const page = m_history.find(pageID);
    if (m_isApplying || !page || qFuzzyCompare(1 + page->scrollOffset, 1 + position))
        return;
    page->scrollOffset = position;
    Q_EMIT scrollPositionChanged();
}

double Router::scrollPosition(int pageID) const
{
    const History::Page* const page = m_history.find(pageID);
    return page ? page->scrollOffset : 0;
}

} // namespace loom
