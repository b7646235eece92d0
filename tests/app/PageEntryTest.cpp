#include "app/PageEntry.h"

#include "navigation/StorePages.h"

#include "support/Printing.h"

namespace loom
{

namespace
{

const StorePages pages(QStringLiteral("https://www.loom.example"));
using Kind = PageKind::Kind;

} // namespace

TEST(PageEntryTest, ARouteHasAPageOfItsOwnOrTheStores)
{
    const auto text = [](const char* utf8) {
        return QString::fromUtf8(utf8);
    };
    struct Row {
        Route route;
        Kind kind;
        const char* handle;
        const char* title;
        const char* address;
    };
    ProductListItem item;
    item.title = text("Silk dress");
    for (const Row& row : {
             Row{ShopRoute{ShopRoute::Product{text("silk"), {}}}, Kind::Product, "silk", "", ""},
             Row{ShopRoute{ShopRoute::Product{text("silk"), item}}, Kind::Product, "silk", "Silk dress", ""},
             Row{ShopRoute{ShopRoute::Collection{text("a"), {}}}, Kind::Collection, "a", "", ""},
             Row{ShopRoute{ShopRoute::Collection{text("a"), text("A")}}, Kind::Collection, "a", "A", ""},
             Row{ShopRoute{ShopRoute::Category{text("men")}}, Kind::Department, "men", "Men", ""},
             Row{ShopRoute{ShopRoute::Category{text("hats")}}, Kind::StorePage, "", "",
                 "https://www.loom.example/collections/hats"},
             Row{ShopRoute{ShopRoute::Search{text("silk")}}, Kind::Search, "silk", "silk", ""},
             Row{ShopRoute{ShopRoute::Wishlist{}}, Kind::Wishlist, "", "Wishlist", ""},
             Row{ShopRoute{ShopRoute::Starlook{}}, Kind::StorePage, "", "", "https://www.loom.example/pages/starlook"},
             Row{ShopRoute{ShopRoute::Rail{text("k"), text("new"), text("New")}}, Kind::StorePage, "", "New",
                 "https://www.loom.example/pages/rail-new"},
             Row{VessaProfileRoute{VessaProfileRoute::Collection{text("1"), text("Mine")}}, Kind::StorePage, "", "Mine",
                 "https://www.loom.example/pages/vessa?collection=1"},
             Row{StorePageRoute{StorePageRoute::Page{text("/pages/help-center"), text("Help")}}, Kind::StorePage, "",
                 "Help", "https://www.loom.example/pages/help-center"},
             Row{LensRoute{LensRoute::Start{}}, Kind::StorePage, "", "", "https://www.loom.example/pages/image-search"},
             Row{UnknownRoute{}, Kind::Unknown, "", "", ""},
         }) {
        const PageEntry page = pageFor(row.route, pages);
        EXPECT_EQ(page.kind, row.kind) << row.title;
        EXPECT_EQ(page.handle, QLatin1String(row.handle));
        EXPECT_EQ(page.title, QLatin1String(row.title));
        EXPECT_EQ(page.address, QUrl(QLatin1String(row.address)));
        EXPECT_FALSE(page.symbol.isEmpty());
    }
}

} // namespace loom
