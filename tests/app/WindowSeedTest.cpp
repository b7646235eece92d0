#include "app/WindowSeed.h"

#include "support/Printing.h"

namespace loom
{

TEST(WindowSeedTest, ASeedIsSavedUnderItsTwoKeysAndComesBackAsItWas)
{
    for (const auto& [seed, json] : {
             std::pair(WindowSeed{}, R"({"section":"home"})"),
             std::pair(WindowSeed{.link = QStringLiteral("/products/silk"), .section = SidebarItem::FinalSale},
                       R"({"link":"/products/silk","section":"finalSale"})"),
             std::pair(WindowSeed{.link = QString()}, R"({"link":"","section":"home"})"),
         }) {
        EXPECT_EQ(QJsonDocument(toJson(seed)).toJson(QJsonDocument::Compact), json);
        const auto restored = decodeJson(json, decodeWindowSeed);
        ASSERT_TRUE(restored);
        EXPECT_EQ(*restored, seed);
        EXPECT_EQ(qHash(*restored), qHash(seed));
    }
    EXPECT_NE(qHash(WindowSeed{}), qHash(WindowSeed{.link = QString()}));
    EXPECT_NE(qHash(WindowSeed{}), qHash(WindowSeed{.section = SidebarItem::Men}));
    for (const char* const foreign : {"{}", "[]", "7", R"({"link":7,"section":7})", R"({"section":"attic"})"})
        EXPECT_EQ(*decodeJson(foreign, decodeWindowSeed), WindowSeed{}) << foreign;
}

} // namespace loom
