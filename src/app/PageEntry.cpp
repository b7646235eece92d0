#include "app/PageEntry.h"

#include "catalog/Department.h"
#include "navigation/StorePages.h"

namespace loom
{

namespace
{

/// Routes without a native page show the store's own; some of those know their title.
QString storePageTitle(const Route& route)
{
    if (const auto* const shop = std::get_if<ShopRoute>(&route)) {
        if (const auto* const search = std::get_if<ShopRoute::Search>(&shop->page))
            return search->query;
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

} // namespace

PageEntry pageFor(SidebarItem item, const StorePages& storePages)
{
    const SidebarEntry& entry = entryOf(item);
    PageEntry page{.title = entry.title.translated(), .symbol = QString::fromLatin1(entry.symbol), .item = {}};
    if (item == SidebarItem::Home) {
        page.kind = PageKind::Kind::Explore;
    } else if (item == SidebarItem::Cart) {
        page.kind = PageKind::Kind::Cart;
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
        if (const auto* const product = std::get_if<ShopRoute::Product>(&shop->page)) {
            return {.kind = PageKind::Kind::Product,
                    .handle = product->handle,
                    .title = product->item ? product->item->title : QString(),
                    .symbol = QStringLiteral("hanger"),
                    .item = product->item,
                    .address = {}};
        }
        if (const auto* const collection = std::get_if<ShopRoute::Collection>(&shop->page)) {
            return {.kind = PageKind::Kind::Collection,
                    .handle = collection->handle,
                    .title = collection->title.value_or(QString()),
                    .symbol = QStringLiteral("square.grid.2x2"),
                    .item = {},
                    .address = {}};
        }
        if (const auto* const category = std::get_if<ShopRoute::Category>(&shop->page);
            category && findDepartment(category->id)) {
            return {.kind = PageKind::Kind::Department,
                    .handle = category->id,
                    .title = KeyedText{findDepartment(category->id)->title}.translated(),
                    .symbol = QStringLiteral("square.grid.2x2"),
                    .item = {},
                    .address = {}};
        }
    }
    PageEntry page{.symbol = QStringLiteral("browser"), .item = {}};
    page.address = storePages.page(route);
    page.kind = page.address.isValid() ? PageKind::Kind::StorePage : PageKind::Kind::Unknown;
    page.title = storePageTitle(route);
    return page;
}

} // namespace loom
