#include "app/PageEntry.h"

#include "catalog/Department.h"
#include "navigation/StorePages.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace loom
{

namespace
{

/// Routes without a native page show the store's own; some of those know their title.
QString storePageTitle(const Route& route)
{
    if (const auto* const account = std::get_if<AccountRoute>(&route)) {
        if (std::holds_alternative<AccountRoute::Membership>(account->page))
            return QCoreApplication::translate("Loomstreet", "Membership");
        if (std::holds_alternative<AccountRoute::Coupons>(account->page))
            return QCoreApplication::translate("Loomstreet", "Coupons");
    }
    if (const auto* const orders = std::get_if<OrdersRoute>(&route)) {
        if (std::holds_alternative<OrdersRoute::Returns>(orders->page))
            return QCoreApplication::translate("Loomstreet", "Returns");
    }
    if (const auto* const profile = std::get_if<VessaProfileRoute>(&route)) {
        if (const auto* const collection = std::get_if<VessaProfileRoute::Collection>(&profile->page))
            return collection->title;
    }
    if (const auto* const store = std::get_if<StorePageRoute>(&route))
        return std::get<StorePageRoute::Page>(store->page).title;
    return {};
}

PageEntry titled(PageKind::Kind kind, const char* title, const char* symbol)
{
    return {.kind = kind,
            .title = QCoreApplication::translate("Loomstreet", title),
            .symbol = QString::fromLatin1(symbol),
            .item = {}};
}

/// Pages of the account that the window draws itself.
std::optional<PageEntry> accountPage(const AccountRoute& route, const StorePages& storePages)
{
    if (std::holds_alternative<AccountRoute::Notifications>(route.page))
        return pageFor(SidebarItem::Notifications, storePages);
    if (std::holds_alternative<AccountRoute::Profile>(route.page))
        return titled(PageKind::Kind::Profile, QT_TRANSLATE_NOOP("Loomstreet", "Profile"), "person.crop.circle");
    if (std::holds_alternative<AccountRoute::Alerts>(route.page))
        return titled(PageKind::Kind::Alerts, QT_TRANSLATE_NOOP("Loomstreet", "Alerts"), "bell");
    return std::nullopt;
}

/// Pages of orders that the window draws itself.
std::optional<PageEntry> ordersPage(const OrdersRoute& route, const StorePages& storePages)
{
    if (const auto* const list = std::get_if<OrdersRoute::List>(&route.page)) {
        PageEntry page = pageFor(SidebarItem::Orders, storePages);
        page.handle = list->tab.value_or(QString());
        return page;
    }
    if (const auto* const order = std::get_if<OrdersRoute::Order>(&route.page)) {
        PageEntry page = titled(PageKind::Kind::Order, QT_TRANSLATE_NOOP("Loomstreet", "Order"), "shippingbox");
        page.handle = order->id;
        return page;
    }
    if (const auto* const package = std::get_if<OrdersRoute::Package>(&route.page)) {
        return PageEntry{.kind = PageKind::Kind::Package,
                         .handle = package->number,
                         .title = package->carrier.value_or(QString()),
                         .symbol = QStringLiteral("shippingbox"),
                         .item = {}};
    }
    if (std::holds_alternative<OrdersRoute::Tracking>(route.page))
        return titled(PageKind::Kind::Tracking, QT_TRANSLATE_NOOP("Loomstreet", "Track a package"), "shippingbox");
    return std::nullopt;
}

/// Pages of the shop that the window draws itself.
std::optional<PageEntry> shopPage(const ShopRoute& route, const StorePages& storePages)
{
    if (const auto* const product = std::get_if<ShopRoute::Product>(&route.page)) {
        return PageEntry{.kind = PageKind::Kind::Product,
                         .handle = product->handle,
                         .title = product->item ? product->item->title : QString(),
                         .symbol = QStringLiteral("hanger"),
                         .item = product->item};
    }
    if (const auto* const collection = std::get_if<ShopRoute::Collection>(&route.page)) {
        return PageEntry{.kind = PageKind::Kind::Collection,
                         .handle = collection->handle,
                         .title = collection->title.value_or(QString()),
                         .symbol = QStringLiteral("square.grid.2x2"),
                         .item = {}};
    }
    if (const auto* const search = std::get_if<ShopRoute::Search>(&route.page)) {
        return PageEntry{.kind = PageKind::Kind::Search,
                         .handle = search->query,
                         .title = search->query,
                         .symbol = QStringLiteral("magnifyingglass"),
                         .item = {}};
    }
    if (const auto* const compare = std::get_if<ShopRoute::Compare>(&route.page)) {
        PageEntry page = titled(PageKind::Kind::Compare, QT_TRANSLATE_NOOP("Loomstreet", "Compare"), "square.grid.2x2");
        page.handles = compare->handles;
        return page;
    }
    if (const auto* const rail = std::get_if<ShopRoute::Rail>(&route.page)) {
        return PageEntry{.kind = PageKind::Kind::Rail,
                         .title = rail->title,
                         .symbol = QStringLiteral("sparkles"),
                         .item = {},
                         .handles = {rail->kind, rail->key}};
    }
    if (const auto* const category = std::get_if<ShopRoute::Category>(&route.page)) {
        const Department* const department = findDepartment(category->id);
        if (!department)
            return std::nullopt;
        return PageEntry{.kind = PageKind::Kind::Department,
                         .handle = category->id,
                         .title = KeyedText{department->title}.translated(),
                         .symbol = QStringLiteral("square.grid.2x2"),
                         .item = {}};
    }
    if (std::holds_alternative<ShopRoute::RecentlyViewed>(route.page))
        return titled(PageKind::Kind::RecentlyViewed, QT_TRANSLATE_NOOP("Loomstreet", "Recently viewed"), "footprints");
    if (std::holds_alternative<ShopRoute::PriceDrops>(route.page))
        return titled(PageKind::Kind::PriceDrops, QT_TRANSLATE_NOOP("Loomstreet", "Price drops"), "chart.down");
    if (std::holds_alternative<ShopRoute::Brands>(route.page))
        return pageFor(SidebarItem::Brands, storePages);
    if (std::holds_alternative<ShopRoute::Wishlist>(route.page))
        return pageFor(SidebarItem::Wishlist, storePages);
    return std::nullopt;
}

} // namespace

PageEntry pageFor(SidebarItem item, const StorePages& storePages)
{
    const SidebarEntry& entry = entryOf(item);
    PageEntry page{.title = entry.title.translated(), .symbol = QString::fromLatin1(entry.symbol), .item = {}};
    if (item == SidebarItem::Home) {
        page.kind = PageKind::Kind::Explore;
    } else if (item == SidebarItem::Cart) {
        page.kind = PageKind::Kind::Cart;
    } else if (item == SidebarItem::Brands) {
        page.kind = PageKind::Kind::Brands;
    } else if (item == SidebarItem::Wishlist) {
        page.kind = PageKind::Kind::Wishlist;
    } else if (item == SidebarItem::Orders) {
        page.kind = PageKind::Kind::Orders;
    } else if (item == SidebarItem::Account) {
        page.kind = PageKind::Kind::Account;
    } else if (item == SidebarItem::Tools) {
        page.kind = PageKind::Kind::Tools;
    } else if (item == SidebarItem::Mira) {
        page.kind = PageKind::Kind::Mira;
    } else if (item == SidebarItem::Notifications) {
        page.kind = PageKind::Kind::Notifications;
    } else if (const auto handle = collectionHandle(item)) {
        page.kind = PageKind::Kind::Collection;
        page.handle = *handle;
    } else if (findDepartment(QLatin1String(entry.rawValue))) {
        page.kind = PageKind::Kind::Department;
        page.handle = QString::fromLatin1(entry.rawValue);
    } else {
        page.kind = PageKind::Kind::StorePage;
        page.address = storePages.page(item);
    }
    return page;
}

PageEntry pageFor(const Route& route, const StorePages& storePages)
{
    std::optional<PageEntry> drawn;
    if (const auto* const shop = std::get_if<ShopRoute>(&route))
        drawn = shopPage(*shop, storePages);
    else if (const auto* const account = std::get_if<AccountRoute>(&route))
        drawn = accountPage(*account, storePages);
    else if (const auto* const orders = std::get_if<OrdersRoute>(&route))
        drawn = ordersPage(*orders, storePages);
    else if (std::holds_alternative<MiraRoute>(route))
        drawn = pageFor(SidebarItem::Mira, storePages);
    if (drawn)
        return *std::move(drawn);
    PageEntry page{.symbol = QStringLiteral("browser"), .item = {}};
    page.address = storePages.page(route);
    page.kind = page.address.isValid() ? PageKind::Kind::StorePage : PageKind::Kind::Unknown;
    page.title = storePageTitle(route);
    return page;
}

std::optional<Feature> featureOf(const Route& route)
{
    if (std::holds_alternative<LensRoute>(route))
        return Feature::ImageSearch;
    const auto* const store = std::get_if<StorePageRoute>(&route);
    if (!store)
        return std::nullopt;
    // The same pages, where a link within the store's site leads to them.
    const QString path =
        std::get<StorePageRoute::Page>(store->page).path.section(QRegularExpression(QStringLiteral("[?#]")), 0, 0);
    if (path == QLatin1String("/pages/image-search"))
        return Feature::ImageSearch;
    if (path == QLatin1String("/pages/outfit-ideas"))
        return Feature::ClosetGenerate;
    return std::nullopt;
}

PageEntry pausedPage(const PageEntry& page, Feature feature)
{
    PageEntry paused =
        titled(PageKind::Kind::Paused, QT_TRANSLATE_NOOP("Loomstreet", "Temporarily unavailable"), "pause");
    paused.handle = QString::fromLatin1(featureKeys.at(static_cast<std::size_t>(feature)).second);
    if (!page.title.isEmpty())
        paused.title = page.title;
    return paused;
}

} // namespace loom
