#include "Desk.h"

#include <QAbstractItemModelTester>

using namespace loom;

namespace
{

/// A page that can be reloaded, and may do something else meanwhile.
class ReloadingPage : public QObject
{
    Q_OBJECT

public:
    int reloads = 0;
    std::function<void()> meanwhile;

    Q_INVOKABLE void reload()
    {
        ++reloads;
        if (meanwhile)
            meanwhile();
    }
};

/// The page at a depth of what the tab shows, as the page container knows it.
const VisitedPage& pageAt(Router& router, int depth)
{
    const NavigationPath& path = *router.navigationPath();
    const int row = path.top() - router.depth() + depth;
    return path.pages().at(static_cast<std::size_t>(row));
}

int idAt(Router& router, int depth)
{
    return pageAt(router, depth).id;
}

class RouterTest : public Desk
{
protected:
    Router& tab() { return *session.selected(); }

    WindowSession session{services, {}};
};

const QString silk = QStringLiteral("silk");

TEST_F(RouterTest, ALinkLeadsToItsTarget)
{
    struct Row {
        const char* link;
        bool isOpened;
        const char* shown;
        const char* browsed;
    };
    for (const Row& row : {
             Row{"/products/silk", true, "home: product silk", ""},
             Row{"/search?q=silk%0Adress", true, "home: search silk dress", ""},
             Row{"/account/orders", true, "account", ""},
             Row{"/cart", true, "home", ""},
             Row{"/pages/about", true, "home", "https://loom.example/pages/about"},
             Row{"https://other.example/a", true, "home", "https://other.example/a"},
             Row{"/", false, "home", ""},
             Row{"", false, "home", ""},
         }) {
        WindowSession window(services, {});
        browsed.clear();
        Router& router = *window.selected();
        EXPECT_EQ(router.openLink(QString::fromUtf8(row.link)), row.isOpened) << row.link;
        EXPECT_EQ(shown(router), row.shown) << row.link;
        EXPECT_EQ(browsed.value(0).toString().toStdString(), row.browsed) << row.link;
        EXPECT_EQ(window.isCartOpen(), QLatin1String(row.link) == QLatin1String("/cart"));
        EXPECT_EQ(window.tabs()->count(), 1);
    }
    EXPECT_FALSE(tab().open(std::nullopt));

    Router alone(services, nullptr, SidebarItem::Home);
    EXPECT_TRUE(alone.openLink(QStringLiteral("/cart"))); // there is no panel to open
    EXPECT_EQ(shown(alone), "home");
}

TEST_F(RouterTest, ALinkInAPageOfTheStoreStaysInTheWindowWhereItCan)
{
    struct Row {
        const char* link;
        const char* shown;
        const char* browsed;
    };
    for (const Row& row : {
             Row{"https://www.loom.example/products/silk", "home: product silk", ""},
             Row{"https://www.loom.example/pages/about?a=%C5%82#b", "home: page /pages/about?a=%C5%82#b", ""},
             Row{"/pages/care", "home: page /pages/care", ""},
             Row{"https://www.loom.example//evil.example/a", "home: page //evil.example/a", ""},
             Row{"https://evil.example/pages/about", "home", "https://evil.example/pages/about"},
             Row{"https://www.loom.example:8443/a", "home", "https://www.loom.example:8443/a"},
             Row{"https://www.loom.example/", "home", ""},
             Row{"wrenfieldstore://auth?code=1&state=2", "home", ""}, // a secret
         }) {
        Router router(services, nullptr, SidebarItem::Home);
        browsed.clear();
        router.openFromStorePage(QString::fromUtf8(row.link));
        EXPECT_EQ(shown(router), row.shown) << row.link;
        EXPECT_EQ(browsed.value(0).toString().toStdString(), row.browsed) << row.link;
        const QUrl address = router.page(router.depth()).address;
        EXPECT_TRUE(address.isEmpty() || services.storePages.mayLoad(address)) << row.link;
    }
    // Nor is the secret searched for, as words are that are no link.
    Router router(services, nullptr, SidebarItem::Home);
    EXPECT_TRUE(router.openLink(QStringLiteral("wrenfieldstore://auth?code=1&state=2")));
    EXPECT_EQ(shown(router), "home");
}

TEST_F(RouterTest, AProductOpensWhereTheKeysSay)
{
    struct Row {
        OpenMode mode;
        Qt::KeyboardModifiers keys;
        bool inNewTab;
        bool isSelected;
    };
    for (const Row& row : {
             Row{OpenMode::Automatic, Qt::NoModifier, false, true},
             Row{OpenMode::Automatic, Qt::ShiftModifier, false, true},
             Row{OpenMode::Automatic, Qt::ControlModifier, true, true},
             Row{OpenMode::Automatic, Qt::ControlModifier | Qt::ShiftModifier, true, false},
             Row{OpenMode::Page, Qt::ControlModifier, false, true},
             Row{OpenMode::NewTab, Qt::NoModifier, true, true},
             Row{OpenMode::NewTab, Qt::ShiftModifier, true, false},
         }) {
        WindowSession window(services, {.section = SidebarItem::Women});
        Router& router = *window.selected();
        keys = row.keys;
        router.openProduct({.handle = silk}, row.mode);
        ASSERT_EQ(window.tabs()->count(), row.inNewTab ? 2 : 1);
        Router& opened = *window.tabs()->at(row.inNewTab ? 1 : 0);
        EXPECT_EQ(shown(opened), "women: product silk");
        EXPECT_EQ(window.selected() == &opened, row.isSelected);

        Router alone(services, nullptr, SidebarItem::Men);
        alone.openProduct({.handle = silk}, row.mode);
        if (row.mode != OpenMode::Automatic || row.inNewTab)
            EXPECT_EQ(shown(alone), "men: product silk");
    }
    keys = {};
}

TEST_F(RouterTest, BackAndForwardFindEveryPageAgain)
{
    struct Row {
        const char* steps; ///< +x opens piece x, *x collection x, @x section x, < and > go back and forward, ^ goes
                           ///< to the section's root, 0 to 9 to that depth
        const char* shown;
        const char* forward; ///< how often one can go forward
    };
    for (const Row& row : {
             Row{"+a +b < < < <", "home", "2"},
             Row{"+a +b < < > > > >", "home: product a > product b", "0"},
             Row{"+a +b < +c", "home: product a > product c", "0"},
             Row{"+a +b +c ^", "home", "3"},
             Row{"+a +b +c ^ > >", "home: product a > product b", "1"},
             Row{"+a +b +c 1", "home: product a", "2"},
             Row{"+a 7", "home: product a", "0"},

             // from one collection to another the stack does not grow, and what was ahead is gone
             Row{"*a *b *c", "home: collection c", "0"},
             Row{"*a +p *b *c", "home: collection a > product p > collection c", "0"},
             Row{"*a +p < *b", "home: collection b", "0"},
             Row{"@women *a @men < *b", "women: collection b", "0"},

             // across sections
             Row{"+a @women < <", "home", "2"},
             Row{"+a @women < < > >", "women", "0"},
             Row{"+a @women +b +c < < < > > >", "women: product b > product c", "0"},
             Row{"+a @women +b @men +c < < < < < > > > > >", "men: product c", "0"},
             Row{"+a @women +b < < +c", "home: product a > product c", "0"},
             Row{"@women +b < < @men", "men", "0"},
             Row{"@women @men @women < <", "women", "2"},
         }) {
        Router router(services, nullptr, SidebarItem::Home);
        const QAbstractItemModelTester tester(router.navigationPath());
        const QStringList steps = QString::fromUtf8(row.steps).split(QLatin1Char(' '));
        for (const QString& step : steps) {
            const QString rest = step.mid(1);
            switch (step.at(0).unicode()) {
            case u'+':
                router.openProduct({.handle = rest}, OpenMode::Page);
                break;
            case u'*':
                router.openCollection(rest);
                break;
            case u'@':
                router.select(*sidebarItemFromRawValue(rest));
                break;
            case u'<':
                router.back();
                break;
            case u'>':
                router.forward();
                break;
            case u'^':
                router.goToSectionHome();
                break;
            default:
                router.backTo(step.toInt());
            }
            EXPECT_EQ(pageAt(router, router.depth()).entry, router.page(router.depth())) << row.steps;
            EXPECT_EQ(pageAt(router, 0).depth, 0) << row.steps;
        }
        EXPECT_EQ(shown(router), row.shown) << row.steps;
        EXPECT_EQ(std::to_string(router.forwardTitles().size()), row.forward) << row.steps;
        const int top = idAt(router, router.depth());
        router.go(99);
        EXPECT_FALSE(router.canGoForward());
        router.go(-row.forward[0] + '0');
        EXPECT_EQ(idAt(router, router.depth()), top) << row.steps; // the very page, not one like it
        router.go(-99);
        EXPECT_FALSE(router.canGoBack());
        EXPECT_EQ(shown(router), "home") << row.steps;
    }
}

TEST_F(RouterTest, APageWhoseFeatureIsOffGivesItsPlaceToANotice)
{
    using enum PageKind::Kind;
    const QAbstractItemModelTester tester(tab().navigationPath(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    const auto kind = [this] {
        return pageAt(tab(), tab().depth()).entry.kind;
    };
    tab().select(SidebarItem::Tools);
    EXPECT_EQ(kind(), Tools);
    features.off = {Feature::ImageSearch};
    tab().openTool(QStringLiteral("imageSearch"), {});
    EXPECT_EQ(kind(), Paused);
    EXPECT_EQ(tab().title(), QStringLiteral("Temporarily unavailable"));
    tab().openStorePage(QStringLiteral("/pages/image-search?image=a"), {});
    EXPECT_EQ(kind(), Paused);
    tab().openTool(QStringLiteral("outfitIdeas"), QStringLiteral("Outfit ideas"));
    EXPECT_EQ(kind(), StorePage);

    // What is open changes with the feature, and the shopper stays where they are.
    const int id = idAt(tab(), tab().depth());
    const int root = idAt(tab(), 0);
    int changes = 0;
    QObject::connect(&tab(), &Router::stackChanged, &session, [&changes] { ++changes; });
    features.off = {Feature::ClosetGenerate};
    session.resolvePagesAgain();
    session.resolvePagesAgain();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(kind(), Paused);
    EXPECT_EQ(tab().title(), QStringLiteral("Outfit ideas"));
    EXPECT_EQ(idAt(tab(), tab().depth()), id);
    EXPECT_EQ(idAt(tab(), 0), root);
    tab().back();
    EXPECT_EQ(kind(), StorePage);
    features.off = {};
    tab().forward();
    EXPECT_EQ(kind(), StorePage);
}

TEST_F(RouterTest, ATitleBelongsToItsPage)
{
    Router router(services, nullptr, SidebarItem::Women);
    EXPECT_EQ(router.trail(), QStringList(QStringLiteral("Women")));
    router.openLink(QStringLiteral("/products/silk"));
    EXPECT_EQ(router.title(), QString());
    router.setPageTitle(idAt(router, 1), QStringLiteral("Silk dress"));
    router.openCollection(QStringLiteral("new-in"), QStringLiteral("From the menu"));
    EXPECT_EQ(router.trail(),
              QStringList({QStringLiteral("Women"), QStringLiteral("Silk dress"), QStringLiteral("From the menu")}));
    const int replaced = idAt(router, 2);
    router.setPageTitle(replaced, QStringLiteral("New In"));

    router.openCollection(QStringLiteral("bags")); // in place of the other
    router.setPageTitle(replaced, QStringLiteral("?"));
    EXPECT_EQ(router.trail(), QStringList({QStringLiteral("Women"), QStringLiteral("Silk dress"), QString()}));
    const int bags = idAt(router, 2);
    router.back();
    EXPECT_EQ(router.title(), QStringLiteral("Silk dress"));
    router.setPageTitle(bags, QStringLiteral("Bags")); // it came late
    EXPECT_EQ(router.forwardTitles(), QStringList(QStringLiteral("Bags")));
    EXPECT_EQ(router.backTitles(), QStringList(QStringLiteral("Women")));
    router.forward();
    router.select(SidebarItem::Men);
    EXPECT_EQ(router.backTitles(),
              QStringList({QStringLiteral("Bags"), QStringLiteral("Silk dress"), QStringLiteral("Women")}));
}

TEST_F(RouterTest, OfALongHistoryThePagesAroundTheShownOneStayInMemory)
{
    Router router(services, nullptr, SidebarItem::Home);
    for (int i = 0; i < 300; ++i) {
        router.select(i % 2 == 0 ? SidebarItem::Women : SidebarItem::Men);
        router.openProduct({.handle = QString::number(i)}, OpenMode::Page);
    }
    EXPECT_LE(router.navigationPath()->rowCount(), 25);
    int back = 0;
    while (router.canGoBack() && back < 1000) {
        router.back();
        ++back;
    }
    EXPECT_GE(back, 100);
    EXPECT_LE(back, 200);
    EXPECT_EQ(router.depth(), 0); // a section is forgotten as a whole
}

TEST_F(RouterTest, APieceOpensBesideThePageWhereThereIsRoom)
{
    struct Row {
        OpenMode mode;
        double width;
        bool isMiraDocked;
        bool isWanted;
        bool isBeside;
    };
    for (const Row& row : {
             Row{OpenMode::Automatic, 1160, false, true, true},
             Row{OpenMode::Automatic, 1159, false, true, false},
             Row{OpenMode::Automatic, 1160, true, true, false},
             Row{OpenMode::Automatic, 1160, false, false, false},
             Row{OpenMode::Docked, 300, false, false, true},
             Row{OpenMode::Docked, 1160, true, true, false},
             Row{OpenMode::Page, 1160, false, true, false},
         }) {
        WindowSession window(services, {});
        window.setWindowWidth(row.width + WindowSession::sidebarWidth);
        window.setMiraDocked(row.isMiraDocked);
        settings.set(preferences::splitPreview, row.isWanted);
        window.selected()->openProduct({.handle = silk}, row.mode);
        EXPECT_EQ(window.selected()->preview().has_value(), row.isBeside);
        EXPECT_EQ(window.selected()->depth(), row.isBeside ? 0 : 1);
        EXPECT_EQ(window.isPreviewShown(), row.isBeside && row.width >= 1160);
    }
    settings.remove(preferences::splitPreview);

    Router alone(services, nullptr, SidebarItem::Home);
    alone.openProduct({.handle = silk}, OpenMode::Automatic);
    ASSERT_TRUE(alone.preview());
    alone.openProduct({.handle = QStringLiteral("linen")}, OpenMode::Page);
    EXPECT_TRUE(alone.preview()); // another piece
    alone.expandPreview();
    EXPECT_FALSE(alone.preview());
    EXPECT_EQ(shown(alone), "home: product linen > product silk");
    alone.openProduct({.handle = silk}, OpenMode::Docked);
    alone.openCollection(QStringLiteral("bags"));
    EXPECT_FALSE(alone.preview());

    for (const auto& [stored, width] : std::map<double, double>{{0, 480}, {300, 420}, {500, 500}, {1000, 640}}) {
        settings.set(preferences::splitPreviewWidth, stored);
        EXPECT_EQ(Router(services, nullptr, SidebarItem::Home).previewWidth(), width) << stored;
    }
    for (const auto& [dragged, width] : std::map<double, double>{{-20, 420}, {0, 420}, {500, 500}, {700, 640}}) {
        alone.setPreviewWidth(dragged);
        EXPECT_EQ(alone.previewWidth(), width) << dragged;
    }
}

TEST_F(RouterTest, AReloadReachesThePagesThatAreShown)
{
    Router router(services, nullptr, SidebarItem::Home);
    ReloadingPage first;
    auto second = std::make_unique<ReloadingPage>();
    const int firstKey = router.addReloadHandler(&first);
    const int secondKey = router.addReloadHandler(second.get());
    EXPECT_NE(firstKey, secondKey);
    router.reload();
    EXPECT_EQ(router.reloadToken(), 1);
    EXPECT_EQ(first.reloads, 1);
    EXPECT_EQ(second->reloads, 1);
    first.meanwhile = [&] {
        router.removeReloadHandler(firstKey);
        second.reset(); // another page goes while this one reloads
    };
    router.reload();
    EXPECT_EQ(first.reloads, 2);
    router.reload();
    EXPECT_EQ(first.reloads, 2);
    EXPECT_EQ(router.reloadToken(), 3);
    router.removeReloadHandler(secondKey);
    router.removeReloadHandler(99);
}

TEST_F(RouterTest, ATabIsAValueThatCanBeShownAgain)
{
    Router router(services, nullptr, SidebarItem::Women);
    router.openCollection(QStringLiteral("new-in"));
    router.setPageTitle(idAt(router, 1), QStringLiteral("New In"));
    router.setScrollPosition(idAt(router, 1), 240);
    router.openProduct({.handle = silk}, OpenMode::Page);
    router.back();
    router.setPreview(ProductPreview{.handle = silk});
    router.setPinned(true);
    const TabState state = router.state();

    Router again(services, nullptr, SidebarItem::Home);
    again.openProduct({.handle = silk}, OpenMode::Page);
    again.select(SidebarItem::Men);
    again.restore(state);
    EXPECT_EQ(again.state(), state);
    EXPECT_TRUE(again.isPinned());
    EXPECT_EQ(again.title(), QStringLiteral("New In"));
    EXPECT_FALSE(again.canGoForward());
    again.back();
    EXPECT_FALSE(again.canGoBack()); // nothing of what the tab showed before
    EXPECT_NE(again.id(), router.id());

    // A pin is the tab's, not the section's.
    router.setPinned(false);
    router.select(SidebarItem::Men);
    router.setPinned(true);
    router.back();
    EXPECT_TRUE(router.isPinned());
}

} // namespace

#include "RouterTest.moc"
