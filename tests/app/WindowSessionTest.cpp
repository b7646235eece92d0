#include "Desk.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using namespace loom;

namespace
{

class WindowSessionTest : public Desk
{
protected:
    /// A letter for each tab in the order in which they were opened.
    [[nodiscard]] char letter(const QUuid& id)
    {
        if (!known.contains(id))
            known.append(id);
        return static_cast<char>('a' + known.indexOf(id));
    }
    /// The tabs in their order, the selected one in capitals.
    [[nodiscard]] std::string tabs(WindowSession& session)
    {
        std::string text;
        for (int i = 0; i < session.tabs()->count(); ++i) {
            const char one = letter(session.tabs()->at(i)->id());
            text += i == session.selectedIndex() ? static_cast<char>(std::toupper(one)) : one;
        }
        return text;
    }
    [[nodiscard]] std::string recency(WindowSession& session)
    {
        std::string text;
        for (const QUuid& id : session.recency())
            text += letter(id);
        return text;
    }

    QList<QUuid> known;
};

TEST_F(WindowSessionTest, OfItsTabsTheMostRecentlyUsedComesNext)
{
    struct Row {
        const char* steps; ///< + opens a tab, & one behind, 0 to 9 selects, xN closes, oN closes the others, rN opens
                           ///< to the right of it, pN pins or unpins, mNM moves N to M, z reopens the tab closed last,
                           ///< tN tears N off, > and < go to the next and the previous
        const char* tabs;
        const char* recency;
        int closings; ///< how often the window was asked to close
    };
    for (const Row& row : {
             Row{"& &", "Abc", "abc", 0},
             Row{"+ + 0 1", "aBc", "bac", 0},
             Row{"+ + 7 -", "abC", "cba", 0},

             Row{"+ + + 0 3 x3", "Abc", "acb", 0}, // not the neighbour
             Row{"+ + + 1 x1 x2", "aC", "ca", 0},
             Row{"+ + x0", "bC", "cb", 0},
             Row{"& & x0", "Bc", "bc", 0}, // none of them was ever seen
             Row{"& & 2 x0 x1", "B", "b", 0},
             Row{"x0", "A", "a", 1},
             Row{"+ x1 x0 x0", "A", "a", 2},
             Row{"+ x2 x7 o2 r2", "aB", "ba", 0},

             Row{"+ + 0 o1", "B", "b", 0},
             Row{"+ + + p0 p2 o1", "C", "c", 0}, // pinned ones too
             Row{"+ p0 x0", "B", "b", 0},

             Row{"+ + 0 r0", "aDbc", "dacb", 0},
             Row{"+ p0 p1 r0", "abC", "cba", 0}, // not among the pinned ones

             Row{"+ + m02", "bCa", "cba", 0},
             Row{"+ + m20 m09 m79", "abC", "cba", 0},
             Row{"+ + p2 m01 m20", "Cba", "cba", 0}, // each among its own kind
             Row{"+ + p2 p1 p0", "aCb", "cba", 0},
             Row{"& x1 z", "aC", "ca", 0},
             Row{"z", "A", "a", 0},
             Row{"+ + t2 z", "aB", "ba", 0}, // what was torn off is not closed
             Row{"t0", "A", "a", 0},

             Row{"+ + 0 > >", "abC", "cba", 0},
             Row{"+ + 0 <", "abC", "cab", 0},
             Row{"> < >", "A", "a", 0},
         }) {
        while (!closedTabs.isEmpty())
            static_cast<void>(closedTabs.take());
        WindowSession session(services, {});
        static_cast<void>(letter(session.selectedID()));
        QAbstractItemModelTester tester(session.tabs());
        QSignalSpy closings(&session, &WindowSession::closeRequested);
        QObject::connect(&session, &WindowSession::selectedChanged, &session, [&] {
            EXPECT_TRUE(session.selected()) << row.steps; // the window always has a page to show
        });
        for (const QString& step : QString::fromUtf8(row.steps).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const int index = step.mid(1).toInt();
            switch (step.at(0).unicode()) {
            case u'+':
                session.newTab();
                break;
            case u'&':
                session.openTab(SidebarItem::Men, TabActivation::Background);
                break;
            case u'x':
                session.closeTab(index);
                break;
            case u'o':
                session.closeOtherTabs(index);
                break;
            case u'r':
                session.newTabToTheRight(index);
                break;
            case u'p':
                session.setTabPinned(index, !session.tabs()->at(index)->isPinned());
                break;
            case u'm':
                session.moveTab(index / 10, index % 10);
                break;
            case u'z':
                session.reopenTab();
                break;
            case u't':
                session.tearOffTab(index);
                break;
            case u'>':
                session.selectNextTab();
                break;
            case u'<':
                session.selectPreviousTab();
                break;
            case u'-':
                session.selectTab(-1);
                break;
            default:
                session.selectTab(step.toInt());
            }
            for (int i = 0; i < session.tabs()->count(); ++i) // letters in the order of opening
                static_cast<void>(letter(session.tabs()->at(i)->id()));
            EXPECT_EQ(session.selectedID(), session.recency().first()) << row.steps;
        }
        EXPECT_EQ(tabs(session), row.tabs) << row.steps;
        EXPECT_EQ(recency(session), row.recency) << row.steps;
        EXPECT_EQ(closings.count(), row.closings) << row.steps;
        known.clear();
    }
}

TEST_F(WindowSessionTest, ATabMayBeClosedByWhatItDoesItself)
{
    WindowSession session(services, {});
    session.newTab();
    const QPointer<Router> tab = session.selected();
    QObject::connect(tab, &Router::stackChanged, &session, [&] {
        if (session.tabs()->count() > 1)
            session.closeTab(1);
    });
    tab->openLink(QStringLiteral("/products/silk"));
    EXPECT_EQ(session.tabs()->count(), 1);
    ASSERT_TRUE(tab);
    EXPECT_EQ(shown(*tab), "home: product silk");
    drainEvents();
    EXPECT_FALSE(tab);
}

TEST_F(WindowSessionTest, OnePanelIsOpenAtATime)
{
    WindowSession session(services, {});
    QSignalSpy told(&session, &WindowSession::panelsChanged);
    const std::array<const char*, 4> panels{"isCartOpen", "isHistoryOpen", "isInboxOpen", "isSupportOpen"};
    session.setSignInPresented(true);
    session.setMiraDocked(true);
    EXPECT_EQ(told.count(), 2);
    for (const char* const opened : panels) {
        told.clear();
        session.setProperty(opened, true);
        session.setProperty(opened, true);
        EXPECT_EQ(told.count(), 1) << opened;
        for (const char* const panel : panels)
            EXPECT_EQ(session.property(panel).toBool(), panel == opened) << opened << ' ' << panel;
    }
    session.setCartOpen(false); // it is another that is open
    EXPECT_TRUE(session.isSupportOpen());
    session.setSupportOpen(false);
    EXPECT_FALSE(session.isSupportOpen());
    EXPECT_EQ(told.count(), 2);
    EXPECT_TRUE(session.isSignInPresented()); // lies over the panels
    EXPECT_TRUE(session.isMiraDocked());
}

} // namespace
