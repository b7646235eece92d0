#include "account/ProofKey.h"
#include "app/Router.h"
#include "app/WindowServices.h"
#include "app/WindowSession.h"
#include "base/Overloaded.h"
#include "navigation/InAppPaths.h"
#include "storage/Preferences.h"

#include <algorithm>

// What a router opens, and where; how it gets about among what is open is in Router.cpp.

namespace loom
{

namespace
{

std::optional<ProductListItem> cardIn(const QVariant& item)
{
    return item.canConvert<ProductListItem>() ? std::optional(item.value<ProductListItem>()) : std::nullopt;
}

} // namespace

bool Router::open(const std::optional<QString>& link)
{
    // A sign-in's way back is a secret, and no link: it ends here, and whoever brought it is not to search for it.
    if (link && isCallback(*link))
        return true;
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

bool Router::openNotice(const QString& link)
{
    const std::optional<InAppPage> page = inAppPage(link);
    if (!page)
        return open(link);
    std::visit(Overloaded{[this](SidebarItem item) { select(item); },
                          [this](const Route& route) {
                              push(route);
                          }},
               *page);
    return true;
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
    const Route route = productRoute(request);
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
    return m_services.preferences.value(preferences::splitPreview) && (!m_session || m_session->hasRoomForPreview());
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
    m_session->openTab(selection(), TabActivation::Activate)->push(productRoute(*m_preview));
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

void Router::openRail(const QString& kind, const QString& key, const QString& title)
{
    push(ShopRoute{ShopRoute::Rail{.kind = kind, .key = key, .title = title}});
}

void Router::openWishlist()
{
    select(SidebarItem::Wishlist);
}

void Router::openPackage(const QString& number, const QString& carrier)
{
    push(OrdersRoute{
        OrdersRoute::Package{.number = number, .carrier = carrier.isEmpty() ? std::nullopt : std::optional(carrier)}});
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
    if (isCallback(link))
        return;
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

void Router::openTool(const QString& key, const QString& title)
{
    if (key == QLatin1String("closet"))
        select(SidebarItem::Closet);
    else if (key == QLatin1String("studio"))
        openStorePage(QStringLiteral("/pages/studio"), title);
    else if (key == QLatin1String("lookbook"))
        openStorePage(QStringLiteral("/pages/lookbook"), title);
    else if (key == QLatin1String("outfitIdeas"))
        openStorePage(QStringLiteral("/pages/outfit-ideas"), title);
    else if (key == QLatin1String("sizeAdvice"))
        openStorePage(QStringLiteral("/pages/size-advice"), title);
    else if (key == QLatin1String("imageSearch"))
        openImageSearch();
    else if (key == QLatin1String("compare"))
        openCompare({});
}

} // namespace loom
