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
    AppCommands commands{session, {}};
};

TEST_F(AppCommandsTest, EveryCommandHasItsPlaceItsNameAndKeysOfItsOwn)
{
    QVariantList inMenus;
    for (const auto menu :
         {AppCommand::Menu::File, AppCommand::Menu::View, AppCommand::Menu::Go, AppCommand::Menu::Help})
        inMenus += commands.commands(menu);
    const QVariantList all = commands.allCommands();
    EXPECT_EQ(inMenus, all);
    QStringList titles;
    QStringList keys;
    for (const QVariant& command : all) {
        titles.append(command.toMap().value(QStringLiteral("title")).toString());
        keys += command.toMap().value(QStringLiteral("shortcuts")).toStringList();
    }
    EXPECT_EQ(titles.removeDuplicates() + keys.removeDuplicates(), 0);
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
