#include "navigation/StorePages.h"

#include "support/Printing.h"

namespace loom
{

namespace
{

const StorePages pages(QStringLiteral("https://www.loom.example"));

} // namespace

TEST(StorePagesTest, OnlyPagesOfTheStoreItselfMayLoad)
{
    struct Row {
        const char* address;
        bool mayLoad;
    };
    for (const Row& row : {
             Row{"https://www.loom.example/pages/a?b#c", true},
             Row{"https://loom.example", true},
             Row{"https://www.loom.example:443/", true},
             Row{"https://www.loom.example:8443/", false},
             Row{"http://www.loom.example/", false},
             Row{"https://user@www.loom.example/", false},
             Row{"https://www.loom.example@evil.example/", false},
             Row{"https://www.loom.example.evil.example/", false},
             Row{"https://evil.example/www.loom.example", false},
             Row{"https://shop.loom.example/", false},
             Row{"https://www.loom.example./", false},
             Row{"https://www.loom.exampl\u0435/", false}, // not the letter it looks like
             Row{"javascript:alert(1)", false},
             Row{"data:text/html,www.loom.example", false},
             Row{"file://www.loom.example/etc/passwd", false},
             Row{"//www.loom.example/", false},
             Row{"", false},
         })
        EXPECT_EQ(pages.mayLoad(QUrl(QString::fromUtf8(row.address))), row.mayLoad) << row.address;

    // Without a store nothing may load, not even what has no host either.
    for (const char* const none : {"", "loom.example", "https://"}) {
        for (const char* const address : {"https:/etc/passwd", "https:", "https://www.", "https://www.loom.example/"})
            EXPECT_FALSE(StorePages(QLatin1String(none)).mayLoad(QUrl(QLatin1String(address)))) << none << address;
    }
}

TEST(StorePagesTest, EveryPageIsOnTheStoresSiteWhateverItsNameHolds)
{
    const auto address = [](const Route& route) {
        return pages.page(route).toEncoded().toStdString();
    };
    const QString hostile = QString::fromUtf8("../a b?c#d/e&f=%2F@łódź");
    const char* const written = "..%2Fa%20b%3Fc%23d%2Fe%26f%3D%252F%40%C5%82%C3%B3d%C5%BA";
    struct Row {
        Route route;
        const char* path; ///< what comes before the name
    };
    for (const Row& row : {
             Row{ShopRoute{ShopRoute::Product{hostile, {}}}, "/products/"},
             Row{ShopRoute{ShopRoute::Collection{hostile, {}}}, "/collections/"},
             Row{ShopRoute{ShopRoute::Search{hostile}}, "/search?q="},
             Row{ShopRoute{ShopRoute::Rail{{}, hostile, {}}}, "/pages/rail-"},
             Row{ShopRoute{ShopRoute::Compare{{hostile}}}, "/pages/compare?handles="},
             Row{VessaRoute{VessaRoute::Note{hostile}}, "/pages/vessa?note="},
             Row{VessaProfileRoute{VessaProfileRoute::User{hostile}}, "/pages/vessa?user="},
             Row{OrdersRoute{OrdersRoute::Order{hostile}}, "/account/orders/"},
             Row{OrdersRoute{OrdersRoute::Package{hostile, {}}}, "/account/tracking?number="},
             Row{OrdersRoute{OrdersRoute::ReturnDetail{hostile}}, "/account/returns/"},
         }) {
        EXPECT_EQ(address(row.route), std::string("https://www.loom.example") + row.path + written);
        EXPECT_TRUE(pages.mayLoad(pages.page(row.route))) << row.path;
    }
    EXPECT_EQ(address(ShopRoute{ShopRoute::Compare{{QStringLiteral("a"), QStringLiteral("b")}}}),
              "https://www.loom.example/pages/compare?handles=a%2Cb");
    EXPECT_FALSE(pages.page(Route(UnknownRoute{})).isValid());
    for (const SidebarEntry& entry : sidebarEntries)
        EXPECT_TRUE(pages.mayLoad(pages.page(entry.item))) << entry.rawValue;

    // A path may come from a file or a page: it never leads to another host.
    for (const auto& [path, expected] :
         {std::pair("/pages/a?b#c", "/pages/a?b#c"), std::pair("pages/a", "/pages/a"), std::pair("?a=b", "/?a=b"),
          std::pair("", "/"), std::pair("@evil.example/a", "/@evil.example/a"),
          std::pair(".evil.example/a", "/.evil.example/a"), std::pair(":8443/a", "/:8443/a"),
          std::pair("//evil.example", "//evil.example")})
        EXPECT_EQ(address(StorePageRoute{StorePageRoute::Page{QLatin1String(path), {}}}),
                  std::string("https://www.loom.example") + expected);
}

} // namespace loom
