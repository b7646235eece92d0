#include "navigation/LinkResolver.h"

#include <gtest/gtest.h>

namespace loom
{

namespace
{

/// "product silk", "external https://…" or the bare name of a target.
std::string described(const LinkResolver::Target& target)
{
    struct Describe {
        std::string operator()(const LinkResolver::Product& to) const { return "product " + to.handle.toStdString(); }
        std::string operator()(const LinkResolver::Collection& to) const
        {
            return "collection " + to.handle.toStdString();
        }
        std::string operator()(const LinkResolver::Search& to) const { return "search " + to.query.toStdString(); }
        std::string operator()(const LinkResolver::External& to) const
        {
            return "external " + to.url.toEncoded().toStdString();
        }
        std::string operator()(const LinkResolver::None&) const { return "none"; }
        std::string operator()(const LinkResolver::Brands&) const { return "brands"; }
        std::string operator()(const LinkResolver::Starlook&) const { return "starlook"; }
        std::string operator()(const LinkResolver::Cart&) const { return "cart"; }
        std::string operator()(const LinkResolver::Account&) const { return "account"; }
    };
    return std::visit(Describe{}, target);
}

} // namespace

TEST(LinkResolverTest, EveryLinkHasOneMeaning)
{
    const LinkResolver resolver(QStringLiteral("shop.loom.example"));
    struct Row {
        const char* link;
        const char* target;
    };
    for (const Row& row : {
             // nothing to open
             Row{"", "none"},
             Row{"/", "none"},
             Row{" HTTPS://WWW.Shop.Loom.EXAMPLE ", "none"},
             Row{"/?utm_source=mail", "none"},
             Row{"loomstreet://", "none"},
             Row{"https:///products/a", "none"},

             // the application's own schemes
             Row{"LOOMSTREET://products/Silk-Qipao", "product Silk-Qipao"},
             Row{"Shopify://collections/dresses", "collection dresses"},
             Row{"loomstreet://cart", "cart"},
             Row{"loomstreet:/products/a", "product a"}, // a bare path, oddly written

             // the store's site, with and without its prefix
             Row{"https://shop.loom.example/products/a", "product a"},
             Row{"http://www.shop.loom.example/collections/all?page=2", "collection all-fashion-clothing-for-women"},
             Row{"https://shop.loom.example.evil.example/products/a",
                 "external https://shop.loom.example.evil.example/products/a"},
             Row{"https://shop.loom.example@evil.example/cart", "external https://shop.loom.example@evil.example/cart"},
             Row{"https://shop.loom.example:8443/cart", "external https://shop.loom.example:8443/cart"},

             // other sites
             Row{"https://other.example/products/a?b=c#d", "external https://other.example/products/a?b=c#d"},
             Row{"javascript:alert(1)", "external https://shop.loom.example/javascript:alert(1)"},
             Row{"file:///etc/passwd", "external https://shop.loom.example/file:///etc/passwd"},

             // pages with names
             Row{"/pages/brands-at-loomstreet", "brands"},
             Row{"pages/starlook", "starlook"},

             // pieces and collections
             Row{"/products/a", "product a"},
             Row{"/PRODUCTS/Silk-Qipao?variant=1", "product Silk-Qipao"},
             Row{"/fr/products/a", "product a"},
             Row{"/collections/dresses/products/red-qipao#reviews", "product red-qipao"},
             Row{"/en-de/collections/a/products/b/c", "product b"},
             Row{"/products/caf%C3%A9", "product caf%C3%A9"},
             Row{"/collections/dresses?sort_by=price", "collection dresses"},
             Row{"/collections/all/products", "collection all-fashion-clothing-for-women"},
             Row{"/products", "external https://shop.loom.example/products"},
             Row{"/products/", "external https://shop.loom.example/products/"},
             Row{"/?next=/products/a", "none"},

             // search
             Row{"/search?x=1&q=silk", "search silk"},
             Row{"/SEARCH?q=Silk%20dress", "search Silk dress"},
             Row{"/search?q=silk+dress", "search silk+dress"},
             Row{"/search?q=%23a%26b%3Dc%2Bd", "search #a&b=c+d"},
             Row{"/search?q=%C5%82%C3%B3d%C5%BA 👗", "search łódź 👗"},
             Row{"/search/?q=a&q=b", "search a"},
             Row{"/search?q=&q=b", "none"},
             Row{"/search", "none"},

             // the shopper's own
             Row{"/CART", "cart"},
             Row{"/cart/", "external https://shop.loom.example/cart/"},
             Row{"/Account/orders/1", "account"},
             Row{"/accounting", "account"},

             // everything else of the store
             Row{"/pages/about-us", "external https://shop.loom.example/pages/about-us"},
             Row{"pages/about us?a=b#c", "external https://shop.loom.example/pages/about%20us?a=b#c"},
             Row{"//evil.example/a", "external https://shop.loom.example//evil.example/a"},
         })
        EXPECT_EQ(described(resolver.resolve(QString::fromUtf8(row.link))), row.target) << row.link;
    EXPECT_EQ(described(resolver.resolve(std::nullopt)), "none");
}

TEST(LinkResolverTest, NoLinkIsTooStrange)
{
    const LinkResolver resolver(QStringLiteral("shop.loom.example"));
    for (const QString& link :
         {QString(QChar(u'\0')), QStringLiteral("/search?q=%"), QStringLiteral("/search?q=%ZZ%00"),
          QString(100'000, u'/'), QStringLiteral("/products/") + QString(100'000, u'a'), QString(QChar(0xd83d)),
          QStringLiteral("https://[::1"), QStringLiteral("https://a b/"),
          QStringLiteral("https://shop.loom.example/\n/cart")})
        EXPECT_FALSE(described(resolver.resolve(link)).empty());
    EXPECT_EQ(described(resolver.resolve(QStringLiteral("https://[::1"))), "none");
}

} // namespace loom
