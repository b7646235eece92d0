#include "navigation/SidebarItem.h"

#include <gtest/gtest.h>

#include <cstring>

namespace loom
{

TEST(SidebarItemTest, TheDestinationsStandInTheirOrderWithTheirTitlesKeysAndSymbols)
{
    struct Row {
        const char* rawValue;
        const char* title;
        const char* key;
        const char* symbol;
        const char* heading;
        const char* collection;
    };
    constexpr std::array<Row, 20> rows{{
        {"home", "Explore", nullptr, "house", "Home", nullptr},
        {"newIn", "New In", nullptr, "clock", nullptr, "new-in"},
        {"women", "Women", nullptr, "figure.stand.dress", nullptr, nullptr},
        {"men", "Men", nullptr, "figure.stand", nullptr, nullptr},
        {"luxury", "Luxury", nullptr, "crown", nullptr, nullptr},
        {"bags", "Bags", nullptr, "handbag", nullptr, "bags"},
        {"accessories", "Accessories", nullptr, "eyeglasses", nullptr, "accessories"},
        {"finalSale", "Final Sale", nullptr, "tag", "Sale", "final-sale"},
        {"brands", "Designers", nullptr, "signature", nullptr, nullptr},
        {"starlook", "Starlook", nullptr, "star", nullptr, nullptr},
        {"vessa", "Vessa", nullptr, "person.2", nullptr, nullptr},
        {"mira", "Mira", nullptr, "sparkles", nullptr, nullptr},
        {"cart", "Cart", nullptr, "bag", nullptr, nullptr},
        {"wishlist", "Wishlist", nullptr, "heart", nullptr, nullptr},
        {"tools", "Tools", "tools.title", "square.grid.2x2", nullptr, nullptr},
        {"closet", "Closet", "sidebar.closet", "hanger", nullptr, nullptr},
        {"following", "Following", "sidebar.following", "calendar", nullptr, nullptr},
        {"orders", "Orders", nullptr, "shippingbox", nullptr, nullptr},
        {"notifications", "Notifications", nullptr, "bell", "Inbox", nullptr},
        {"account", "MyLST", nullptr, "person.crop.circle", nullptr, nullptr},
    }};
    const auto same = [](const char* one, const char* other) {
        return one && other ? std::strcmp(one, other) == 0 : one == other;
    };
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Row& row = rows.at(i);
        const auto item = static_cast<SidebarItem>(i);
        const SidebarEntry& entry = entryOf(item);
        EXPECT_EQ(entry.item, item);
        EXPECT_STREQ(entry.rawValue, row.rawValue);
        EXPECT_STREQ(entry.title.english, row.title);
        EXPECT_TRUE(same(entry.title.key, row.key)) << row.rawValue;
        EXPECT_STREQ(entry.symbol, row.symbol);
        EXPECT_EQ(sidebarItemFromRawValue(QLatin1String(row.rawValue)), item);
        EXPECT_TRUE(same(headingAbove(item).english, row.heading)) << row.rawValue;
        EXPECT_EQ(collectionHandle(item),
                  row.collection ? std::optional(QString::fromLatin1(row.collection)) : std::nullopt);
    }
    EXPECT_STREQ(headingAbove(SidebarItem::Home).key, "sidebar.home");
    EXPECT_STREQ(headingAbove(SidebarItem::FinalSale).key, "sidebar.sale");
    EXPECT_STREQ(headingAbove(SidebarItem::Notifications).key, "sidebar.inbox");
    for (const char* const none : {"", "Home", "home ", "checkout"})
        EXPECT_EQ(sidebarItemFromRawValue(QLatin1String(none)), std::nullopt) << none;
}

} // namespace loom
