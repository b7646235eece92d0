#include "stylist/voice/MiraVoiceNavigation.h"

#include "base/Overloaded.h"
#include "support/Printing.h"

using namespace loom;

namespace
{

/// The section, or the page as it is saved without its type; then what it is called. "none" where it leads nowhere.
std::string described(const MiraVoiceEvent::Navigation& request)
{
    static const LinkResolver resolver(QStringLiteral("loom.example"));
    const auto destination = miraVoiceDestination(request, resolver);
    if (!destination)
        return "none";
    const std::string place =
        std::visit(Overloaded{[](SidebarItem item) { return std::string(entryOf(item).rawValue); },
                              [](const Route& route) {
                                  QJsonObject json = toJson(route);
                                  json.remove(QStringLiteral("type"));
                                  return QJsonDocument(json).toJson(QJsonDocument::Compact).toStdString();
                              }},
                   destination->place);
    return place + ' ' + destination->name.toStdString();
}

} // namespace

TEST(MiraVoiceNavigationTest, ARequestLeadsToAPlaceOfTheApplicationOrNowhere)
{
    struct Row {
        MiraVoiceEvent::Navigation request;
        const char* destination;
    };
    const Row rows[] = {
        {{"product", "Silk-Qipao", "/cart"}, R"({"case":"product","handle":"Silk-Qipao"} )"},
        {{" Product ", "", "/collections/dresses/products/red#reviews"}, R"({"case":"product","handle":"red"} )"},
        {{"product", "", ""}, "none"},
        {{"product", "../../account", ""}, "none"},
        {{"product", "a b", "/products/ab"}, R"({"case":"product","handle":"ab"} )"},
        {{"product", "", "/products/a%20\u202e"}, "none"},
        {{"collection", "dresses", ""}, R"({"case":"collection","handle":"dresses"} )"},
        {{"collection", "final-sale", ""}, R"({"case":"collection","handle":"final-sale"} Final Sale)"},
        {{"collection", "all", ""}, R"({"case":"collection","handle":"all-fashion-clothing-for-women"} )"},
        {{"search", " red\n\u202edress ", ""}, R"({"case":"search","query":"red dress"} “red dress”)"},
        {{"search", "", "/search?x=1&q=silk%20top"}, R"({"case":"search","query":"silk top"} “silk top”)"},
        {{"search", " ", "/search?q="}, "none"},
        {{"wishlist", "", ""}, "wishlist Wishlist"},
        {{"brands", "", ""}, "brands Designers"},
        {{"orders", "", ""}, "orders Orders"},
        {{"returns", "", ""}, R"({"case":"returns"} Returns)"},
        {{"coupons", "", "https://evil.example"}, R"({"case":"coupons"} Coupons)"},
        {{"membership", "", ""}, R"({"case":"membership"} Membership)"},
        // The path alone.
        {{"page", "", "/pages/starlook"}, "starlook Starlook"},
        {{"page", "", "https://www.loom.example/cart"}, "cart Cart"},
        {{"", "", "loomstreet://account"}, "account MyLST"},
        {{"", "", "/orders/LST7"}, R"({"case":"order","id":"LST7"} )"},
        {{"", "", "/closet"}, "closet Closet"},
        {{"gift", "silk", ""}, "none"},
        {{"page", "", "https://evil.example/products/silk"}, "none"},
        {{"page", "", "https://loom.example.evil.example/cart"}, "none"},
        {{"page", "", "//evil.example/cart"}, "none"},
        {{"page", "", "javascript:alert(1)"}, "none"},
        {{"page", "", "file:///etc/passwd"}, "none"},
        {{"page", "", "/pages/about-us"}, "none"},
        {{"page", "", "/"}, "none"},
        {{}, "none"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(described(row.request), row.destination)
            << row.request.kind.toStdString() << ' ' << row.request.path.toStdString();
}
