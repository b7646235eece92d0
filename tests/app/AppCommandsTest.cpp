#include "app/AppCommands.h"

#include "Desk.h"

#include <QSignalSpy>

using namespace loom;

namespace
{

using Id = AppCommand::Id;

class AppCommandsTest : public Desk
{
protected:
    Router& tab() { return *session.selected(); }

    WindowSession session{services, {}};
    QStringList asked;
    AppCommands commands{session,
                         {.openWindow = [this] { asked.append(QStringLiteral("window")); },
                          .openSettings = [this] { asked.append(QStringLiteral("settings")); },
                          .quit =
                              [this] {
                                  asked.append(QStringLiteral("quit"));
                              }}};
};

TEST_F(AppCommandsTest, EveryCommandHasItsPlaceItsNameAndKeysOfItsOwn)
{
    QVariantList inMenus;
    for (const auto menu :
         {AppCommand::Menu::File, AppCommand::Menu::View, AppCommand::Menu::Go, AppCommand::Menu::Help})
        inMenus += commands.commands(menu);
    const QVariantList all = commands.allCommands();
    EXPECT_EQ(inMenus, all);

    QMap<QString, QVariantMap> byTitle;
    QStringList keys;
    for (const QVariant& command : all) {
        const QVariantMap map = command.toMap();
        byTitle.insert(map.value(QStringLiteral("title")).toString(), map);
        const QStringList shortcuts = map.value(QStringLiteral("shortcuts")).toStringList();
        EXPECT_EQ(map.value(QStringLiteral("shortcut")).toString(), shortcuts.value(0));
        keys += shortcuts;
    }
    EXPECT_EQ(byTitle.size(), all.size());
    EXPECT_EQ(QSet<QString>(keys.cbegin(), keys.cend()).size(), keys.size()) << testing::PrintToString(keys);

    struct Row {
        const char* title;
        Id id;
        const char* shortcut;
        const char* accessibilityId;
    };
    for (const Row& row : {
             Row{"New Tab", Id::NewTab, "Ctrl+T", ""},
             Row{"New Window", Id::NewWindow, "Ctrl+N", ""},
             Row{"Close Tab", Id::CloseTab, "Ctrl+W", ""},
             Row{"Close Other Tabs", Id::CloseOtherTabs, "Ctrl+Alt+W", ""},
             Row{"Take a Screenshot", Id::TakeScreenshot, "Ctrl+Shift+S", ""},
             Row{"Back", Id::Back, "Ctrl+[", "nav.back"},
             Row{"Forward", Id::Forward, "Ctrl+]", "nav.forward"},
             Row{"Reload This Page", Id::Reload, "Ctrl+R", ""},
             Row{"Search", Id::Search, "Ctrl+K", ""},
             Row{"Shopping bag", Id::ShoppingBag, "Ctrl+Shift+B", ""},
             Row{"Go to Section Home", Id::GoToSectionHome, "Ctrl+Up", ""},
             Row{"Next Tab", Id::NextTab, "Ctrl+Tab", ""},
             Row{"Previous Tab", Id::PreviousTab, "Ctrl+Shift+Tab", ""},
             Row{"LOOMSTREET Help Center", Id::HelpCenter, "F1", ""},
             Row{"Agreements", Id::Agreements, "", ""},
         }) {
        const QVariantMap map = byTitle.value(QString::fromLatin1(row.title));
        EXPECT_EQ(map.value(QStringLiteral("id")).toInt(), static_cast<int>(row.id)) << row.title;
        EXPECT_EQ(map.value(QStringLiteral("shortcut")).toString(), QLatin1String(row.shortcut)) << row.title;
        EXPECT_EQ(map.value(QStringLiteral("accessibilityId")).toString(), QLatin1String(row.accessibilityId));
    }
}

TEST_F(AppCommandsTest, ACommandActsOnTheSelectedTab)
{
    QSignalSpy closings(&session, &WindowSession::closeRequested);
    QSignalSpy screenshots(&session, &WindowSession::screenshotRequested);
    commands.perform(Id::NewTab);
    commands.perform(Id::NewTab);
    EXPECT_EQ(session.selectedIndex(), 2);
    commands.perform(Id::CloseTab);
    EXPECT_EQ(session.selectedIndex(), 1);
    commands.perform(Id::Reload);
    EXPECT_EQ(tab().reloadToken(), 1);
    EXPECT_EQ(session.tabs()->at(0)->reloadToken(), 0);
    commands.perform(Id::Agreements);
    EXPECT_EQ(tab().title(), QStringLiteral("Agreements"));
    EXPECT_EQ(tab().page(tab().depth()).address, QUrl(QStringLiteral("https://www.loom.example/pages/agreements")));
    commands.perform(Id::CloseOtherTabs);
    EXPECT_EQ(session.tabs()->count(), 1);
    EXPECT_EQ(tab().title(), QStringLiteral("Agreements"));

    for (const bool isOn : {true, false}) {
        commands.perform(Id::ToggleSidebar);
        commands.perform(Id::ToggleFullScreen);
        commands.perform(Id::ShoppingBag);
        EXPECT_EQ(session.isCartOpen(), isOn);
        EXPECT_EQ(session.isSidebarCollapsed(), isOn);
        EXPECT_EQ(session.isWindowFullScreen(), isOn);
    }
    commands.perform(Id::TakeScreenshot);
    EXPECT_EQ(screenshots.count(), 1);
    EXPECT_EQ(closings.count(), 0);
    commands.perform(Id::CloseTab); // the last one
    EXPECT_EQ(closings.count(), 1);
    EXPECT_EQ(session.tabs()->count(), 1);

    EXPECT_TRUE(asked.isEmpty());
    for (const Id id : {Id::NewWindow, Id::Settings, Id::Quit})
        commands.perform(id);
    EXPECT_EQ(asked, QStringList({QStringLiteral("window"), QStringLiteral("settings"), QStringLiteral("quit")}));
}

TEST_F(AppCommandsTest, WhatCannotBeDoneNowIsToldAndDoesNothing)
{
    const QList<Id> conditional{Id::Back,           Id::Forward,           Id::GoToSectionHome,
                                Id::CloseOtherTabs, Id::NextTab,           Id::PreviousTab,
                                Id::MoveTabLeft,    Id::MoveTabRight,      Id::MoveTabToNewWindow,
                                Id::ReopenTab,      Id::PreviewInFullPage, Id::PreviewInNewTab,
                                Id::ClosePreview};
    const auto enabled = [&] {
        QSet<Id> ids;
        for (const AppCommandEntry& entry : appCommandEntries) {
            if (!conditional.contains(entry.id))
                EXPECT_TRUE(commands.isEnabled(entry.id)) << entry.title.english;
            else if (commands.isEnabled(entry.id))
                ids.insert(entry.id);
        }
        return ids;
    };
    QSet<Id> told = enabled();
    EXPECT_TRUE(told.isEmpty());
    QObject::connect(&commands, &AppCommands::availabilityChanged, &commands, [&] { told = enabled(); });
    const TabState before = tab().state();
    for (const Id id : conditional)
        commands.perform(id);
    EXPECT_EQ(tab().state(), before);
    EXPECT_EQ(session.tabs()->count(), 1);

    using Ids = QSet<Id>;
    tab().openLink(QStringLiteral("/products/a"));
    EXPECT_EQ(told, (Ids{Id::Back, Id::GoToSectionHome}));
    tab().back();
    EXPECT_EQ(told, (Ids{Id::Forward}));
    tab().select(SidebarItem::Men);
    EXPECT_EQ(told, (Ids{Id::Back}));
    const Ids manyTabs{Id::CloseOtherTabs, Id::NextTab,      Id::PreviousTab,
                       Id::MoveTabLeft,    Id::MoveTabRight, Id::MoveTabToNewWindow};
    session.openTab(SidebarItem::Home, TabActivation::Background);
    EXPECT_EQ(told, (Ids{Id::Back} + manyTabs));
    session.selectTab(1);
    EXPECT_EQ(told, manyTabs);
    tab().openLink(QStringLiteral("/products/a")); // the tab that is selected now is followed
    EXPECT_EQ(told, (Ids{Id::Back, Id::GoToSectionHome} + manyTabs));
    session.closeTab(0);
    EXPECT_EQ(told, (Ids{Id::Back, Id::GoToSectionHome, Id::ReopenTab}));
    const Ids preview{Id::PreviewInFullPage, Id::PreviewInNewTab, Id::ClosePreview};
    session.setWindowWidth(1440);
    tab().setPreview(ProductPreview{.handle = QStringLiteral("b")});
    EXPECT_EQ(told, (Ids{Id::Back, Id::GoToSectionHome, Id::ReopenTab} + preview));
    session.setWindowWidth(1000); // there, but not to be seen
    EXPECT_EQ(told, (Ids{Id::Back, Id::GoToSectionHome, Id::ReopenTab}));
}

} // namespace
