#include "app/WindowState.h"

#include "support/Printing.h"

#include <QJsonArray>

namespace loom
{

namespace
{

const char* const tab = R"({"isPinned":true,"routes":[{"case":"collection","handle":"new-in","type":"shop"}],)"
                        R"("scrollOffsets":[0,240.5],"section":"women","titles":["","New In"]})";

QByteArray window(const QByteArray& tabs, const QByteArray& rest = {})
{
    return "{\"tabs\":[" + tabs + "]" + rest + "}";
}

TabState wholeTab()
{
    TabState state{.isPinned = true};
    state.section = {.selection = SidebarItem::Women,
                     .routes = {ShopRoute{ShopRoute::Collection{QStringLiteral("new-in"), std::nullopt}}}};
    state.titles = {QString(), QStringLiteral("New In")};
    state.scrollOffsets = {0, 240.5};
    return state;
}

} // namespace

TEST(WindowStateTest, AWindowComesBackAsItWasSaved)
{
    const WindowState state{.tabs = {wholeTab(), TabState()}, .selectedIndex = 1, .isSidebarCollapsed = true};
    const QByteArray json = QJsonDocument(toJson(state)).toJson(QJsonDocument::Compact);
    EXPECT_EQ(json, QByteArray(R"({"isSidebarCollapsed":true,"selectedIndex":1,"tabs":[)") + tab +
                        R"(,{"isPinned":false,"routes":[],"scrollOffsets":[],"section":"home","titles":[]}]})");
    const auto restored = decodeJson(json, decodeWindowState);
    ASSERT_TRUE(restored);
    EXPECT_EQ(*restored, state);
}

TEST(WindowStateTest, OfAForeignWindowTheReadableTabsAreTaken)
{
    struct Row {
        QByteArray json;
        int tabs;
        int selected;
    };
    const QByteArray broken = R"({"section":"attic"})";
    for (const Row& row : {
             Row{window(tab, R"(,"selectedIndex":7)"), 1, 0},
             Row{window(QByteArray(tab) + ',' + tab, R"(,"selectedIndex":1)"), 2, 1},
             Row{window(broken + ',' + tab), 1, 0},
             Row{window(QByteArray("7,null,[],") + tab), 1, 0},
         }) {
        const auto state = decodeJson(row.json, decodeWindowState);
        ASSERT_TRUE(state) << row.json.constData();
        EXPECT_EQ(state->tabs.size(), static_cast<std::size_t>(row.tabs)) << row.json.constData();
        EXPECT_EQ(state->selectedIndex, row.selected) << row.json.constData();
    }
    for (const QByteArray& none : {window(""), window(broken), QByteArray("{}"), QByteArray("[]"), QByteArray("7")})
        EXPECT_FALSE(decodeJson(none, decodeWindowState)) << none.constData();
}

TEST(WindowStateTest, WhatDoesNotBelongToItsPagesIsLeftOut)
{
    struct Row {
        const char* from;
        const char* to;
        void (*expected)(TabState& state);
    };
    for (const Row& row : {
             Row(R"(["","New In"])", R"(["New In"])", [](TabState& s) { s.titles.clear(); }),
             Row("[0,240.5]", "[240.5]", [](TabState& s) { s.scrollOffsets.clear(); }),
             Row("[0,240.5]", "[\"a\",-7]", [](TabState& s) { s.scrollOffsets = {0, 0}; }),
             {"\"new-in\"", "7",
              [](TabState& s) {
                  s.section.routes = {UnknownRoute{}};
              }},
         }) {
        TabState expected = wholeTab();
        row.expected(expected);
        const auto state = decodeJson(window(QByteArray(tab).replace(row.from, row.to)), decodeWindowState);
        ASSERT_TRUE(state) << row.to;
        EXPECT_EQ(state->tabs.at(0), expected) << row.to;
    }
}

} // namespace loom
