#include "app/PageEntry.h"

#include "catalog/Department.h"
#include "navigation/StorePages.h"

#include <QCoreApplication>

namespace loom
{

namespace
{

/// Routes without a native page show the store's own; some of those know their title.
QString storePageTitle(const Route& route)
{
    if (const auto* const shop = std::get_if<ShopRoute>(&route)) {
        if (const auto* const rail = std::get_if<ShopRoute::Rail>(&shop->page))
            return rail->title;
    }
    if (const auto* const profile = std::get_if<VessaProfileRoute>(&route)) {
        if (const auto* const collection = std::get_if<VessaProfileRoute::Collection>(&profile->page))
            return collection->title;
    }
    if (const auto* const store = std::get_if<StorePageRoute>(&route))
        return std::get<StorePageRoute::Page>(store->page).title;
    return {};
}

/// Pages of the shop that the window draws itself.
std::optional<PageEntry> shopPage(const ShopRoute& route, const StorePages& storePages)
{
    const auto titled = [](PageKind::Kind kind, const char* title, const char* symbol) {
        return PageEntry{.kind = kind,
                         .title = QCoreApplication::translate("Loomstreet", title),
                         .symbol = QString::fromLatin1(symbol),
                         .item = {}};
    };
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
    if (const auto* const shop = std::get_if<ShopRoute>(&route)) {
        if (auto page = shopPage(*shop, storePages))
            return *std::move(page);
    }
    PageEntry page{.symbol = QStringLiteral("browser"), .item = {}};
    page.address = storePages.page(route);
    page.kind = page.address.isValid() ? PageKind::Kind::StorePage : PageKind::Kind::Unknown;
    page.title = storePageTitle(route);
    return page;
}

} // namespace loom
