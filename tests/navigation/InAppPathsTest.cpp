#include "navigation/InAppPaths.h"

#include "base/Overloaded.h"

#include <QJsonDocument>
#include <gtest/gtest.h>

using namespace loom;

namespace
{

/// The section by its name, the page as it is saved without its type, or "none".
std::string described(const std::optional<InAppPage>& page)
{
    if (!page)
        return "none";
    return std::visit(Overloaded{[](SidebarItem item) { return std::string(entryOf(item).rawValue); },
                                 [](const Route& route) {
                                     QJsonObject json = toJson(route);
                                     json.remove(QStringLiteral("type"));
                                     return QJsonDocument(json).toJson(QJsonDocument::Compact).toStdString();
                                 }},
                      *page);
}

TEST(InAppPathsTest, APathNamesAPageOfThisWindowOrNone)
{
    struct Row {
        const char* path;
        const char* page;
    };
    for (const Row& row : {
             Row{"/orders", "orders"},
             Row{" /Orders/ ", "orders"},
             Row{"/orders?tab=open#1", "orders"},
             Row{"/notifications", "notifications"},
             Row{"/wishlist", "wishlist"},
             Row{"/mira", "mira"},
             Row{"/tools", "tools"},
             Row{"/closet", "closet"},
             Row{"/following", "following"},
             Row{"/vessa", "vessa"},
             Row{"/alerts", R"({"case":"alerts"})"},
             Row{"/coupons", R"({"case":"coupons"})"},
             Row{"/membership", R"({"case":"membership"})"},
             Row{"/profile", R"({"case":"profile"})"},
             Row{"/returns", R"({"case":"returns"})"},
             Row{"/tracking", R"({"case":"tracking"})"},
             Row{"/orders/LST1001", R"({"case":"order","id":"LST1001"})"},
             Row{"/orders/%231001", R"({"case":"order","id":"#1001"})"},
             Row{"/orders/gid%3A%2F%2Fshop%2FOrder%2F1", R"({"case":"order","id":"gid://shop/Order/1"})"},
             Row{"/returns/R-1", R"({"case":"returnDetail","rmaNo":"R-1"})"},
             Row{"/tracking/1Z5", R"({"case":"package","number":"1Z5"})"},
             // Links like any other.
             Row{"", "none"},
             Row{"/", "none"},
             Row{"orders", "none"},
             Row{"/cart", "none"},
             Row{"/products/silk", "none"},
             Row{"/alerts/1", "none"},
             Row{"/orders/1/items", "none"},
             Row{"/orders/../cart", "none"},
             Row{"//orders/1", "none"},
             Row{"//evil.example/orders", "none"},
             Row{"https://evil.example/orders", "none"},
             Row{"loomstreet://orders", "none"},
             Row{"file:///orders", "none"},
             Row{"javascript:/orders", "none"},
             Row{"wrenfieldstore://callback?code=1", "none"},
             Row{"\\\\evil.example\\orders", "none"},
         })
        EXPECT_EQ(described(inAppPage(QString::fromUtf8(row.path))), row.page) << row.path;
}

} // namespace
