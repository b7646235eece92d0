#include "app/AppLifecycle.h"

#include "AppFixture.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

/// Windows that show nothing of the store, so that time is all that passes.
class AppLifecycleTest : public AppFixture
{
protected:
    AppLifecycleTest()
    {
        start({});
        lifecycle.emplace(*model, host, clock);
    }

    std::optional<AppLifecycle> lifecycle;
};

QStringList calls(std::initializer_list<const char*> list)
{
    QStringList texts;
    for (const char* const text : list)
        texts.append(QString::fromLatin1(text));
    return texts;
}

TEST_F(AppLifecycleTest, AWindowThatCannotBeSeenIsBroughtBackOrAnotherIsOpened)
{
    lifecycle->didFinishLaunching({});
    host.isVisible = false;
    clock.advance(499ms);
    EXPECT_EQ(host.takeCalls(), calls({"show 1"}));
    clock.advance(1ms);
    EXPECT_EQ(host.takeCalls(), calls({"raise 1", "style"}));
    model->closeWindow(model->keySession());
    host.isVisible = false;
    clock.advance(1s);
    EXPECT_EQ(host.takeCalls(), calls({"show 2", "style"}));
    ASSERT_TRUE(model->keySession());
    EXPECT_EQ(model->keySession()->selected()->selection(), SidebarItem::Home);
    clock.advance(1h);
    EXPECT_EQ(host.takeCalls(), calls({}));
    lifecycle->didFinishLaunching({});
    static_cast<void>(host.takeCalls());
    lifecycle.reset();
    clock.advance(2s);
    EXPECT_EQ(host.takeCalls(), calls({}));
}

TEST_F(AppLifecycleTest, WindowsAndTabsComeBackAfterARestartAndAfterAKill)
{
    const auto kill = [this] {
        lifecycle.reset();
        start({}); // nothing was told that it ends
        lifecycle.emplace(*model, host, clock);
        static_cast<void>(host.takeCalls());
    };
    const auto tab = [this](std::size_t window, int index) -> Router& {
        return *model->windows().at(window)->tabs()->at(index);
    };
    lifecycle->didFinishLaunching({.section = SidebarItem::Men});
    WindowSession& first = *model->keySession();
    first.openTab(SidebarItem::Women, TabActivation::Background)->openCollection(QStringLiteral("new-in"));
    model->openWindow({.section = SidebarItem::Luxury});
    model->windowBecameKey(&first);
    clock.advance(1s);
    model->keySession()->newTab(); // too late to be written
    kill();

    lifecycle->didFinishLaunching({.link = QStringLiteral("/products/silk")});
    ASSERT_EQ(model->windows().size(), 2U);
    EXPECT_EQ(tab(0, 0).selection(), SidebarItem::Luxury);
    EXPECT_EQ(model->keySession(), model->windows().at(1).get()); // it was in front
    ASSERT_EQ(model->keySession()->tabs()->count(), 3);
    EXPECT_EQ(tab(1, 1).page(1).handle, QStringLiteral("new-in"));
    EXPECT_EQ(tab(1, 2).page(1).handle, QStringLiteral("silk")); // the link, in front

    // A closed tab can be had again after a restart, and what was closed last stays for the next start.
    model->keySession()->closeTab(2);
    model->closeWindow(model->windows().at(0).get());
    model->closeWindow(model->windows().at(0).get());
    kill();
    lifecycle->handleReopen();
    ASSERT_EQ(model->windows().size(), 1U);
    EXPECT_EQ(model->keySession()->tabs()->count(), 2);
    model->keySession()->reopenTab();
    EXPECT_EQ(model->keySession()->selected()->selection(), SidebarItem::Luxury);

    // Windows that close because the application ends are open at the next start.
    EXPECT_TRUE(lifecycle->shouldTerminate());
    model->closeWindow(model->keySession());
    kill();
    lifecycle->didFinishLaunching({});
    EXPECT_EQ(model->keySession()->tabs()->count(), 3);

    // A file that was cut off has what is whole in it.
    kill();
    QFile file(home.path() + QStringLiteral("/data/lst_windows.json"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.resize(file.size() / 2);
    file.close();
    lifecycle->didFinishLaunching({.section = SidebarItem::Bags});
    EXPECT_EQ(model->keySession()->selected()->selection(), SidebarItem::Bags);
}

TEST_F(AppLifecycleTest, SafeModeTakesNothingFromTheLastStartAndLeavesItToTheNext)
{
    const auto restart = [this](bool safely) {
        lifecycle.reset();
        isSafeMode = safely;
        start({});
        lifecycle.emplace(*model, host, clock);
        lifecycle->didFinishLaunching({.link = QStringLiteral("/collections/bags")});
    };
    QDir(home.path()).mkpath(QStringLiteral("data"));
    QFile kept(home.path() + QStringLiteral("/data/remote-config-macos.json"));
    ASSERT_TRUE(kept.open(QIODevice::WriteOnly));
    kept.write(R"({"revision": 5, "features": {"imageSearch": false}})");
    kept.close();
    lifecycle->didFinishLaunching({.section = SidebarItem::Men});
    clock.advance(1s);

    restart(true);
    ASSERT_EQ(model->windows().size(), 1U);
    EXPECT_EQ(model->keySession()->tabs()->count(), 1);
    EXPECT_TRUE(model->remoteConfig()->isEnabled(Feature::ImageSearch));
    model->keySession()->newTab();
    clock.advance(2s);
    EXPECT_TRUE(lifecycle->shouldTerminate());

    restart(false);
    ASSERT_EQ(model->keySession()->tabs()->count(), 2);
    EXPECT_EQ(model->keySession()->tabs()->at(0)->selection(), SidebarItem::Men);
    EXPECT_FALSE(model->remoteConfig()->isEnabled(Feature::ImageSearch));
}

TEST_F(AppLifecycleTest, ALinkFromOutsideOpensInATabOfItsOwn)
{
    const auto shown = [](const Router& tab) {
        return tab.page(tab.depth()).handle;
    };
    lifecycle->handleOpen(QStringLiteral("loomstreet://products/silk"));
    WindowSession& session = *model->keySession();
    EXPECT_EQ(session.tabs()->count(), 1);
    lifecycle->handleOpen(QStringLiteral("/collections/bags"));
    EXPECT_EQ(session.tabs()->count(), 2);
    EXPECT_EQ(shown(*session.selected()), QStringLiteral("bags"));
    static_cast<void>(host.takeCalls());

    // What is no page needs no tab.
    for (const char* const link : {"loomstreet://cart", "https://elsewhere.example/a", "/", ""}) {
        lifecycle->handleOpen(QString::fromLatin1(link));
        EXPECT_EQ(host.takeCalls(), calls({"raise 1"})) << link;
        EXPECT_EQ(session.tabs()->count(), 2) << link;
    }
    EXPECT_TRUE(session.isCartOpen());
    EXPECT_EQ(browsed, QList<QUrl>{QUrl(QStringLiteral("https://elsewhere.example/a"))});
    EXPECT_EQ(shown(*session.selected()), QStringLiteral("bags"));
    lifecycle->handleOpen(QStringLiteral("/account"));
    EXPECT_EQ(session.tabs()->count(), 3);
}

TEST_F(AppLifecycleTest, OfManyLinksAnybodyMayHaveWrittenOnlySensibleOnesAreOpened)
{
    QStringList links{QString(10'000, u'a'), QStringLiteral("/products/a\nb"), QStringLiteral("/products/a\u0085b"),
                      QStringLiteral("loomstreet://products/silk\n"), QStringLiteral("https://elsewhere.example/a")};
    lifecycle->handleOpen(links);
    WindowSession& session = *model->keySession();
    EXPECT_EQ(session.tabs()->count(), 1);
    EXPECT_EQ(browsed, QList<QUrl>{QUrl(QStringLiteral("https://elsewhere.example/a"))});
    for (int i = 0; i < 5000; ++i)
        links.append(QStringLiteral("/products/%1").arg(i));
    lifecycle->handleOpen(links);
    EXPECT_LT(session.tabs()->count(), 20);
    static_cast<void>(host.takeCalls());
    lifecycle->handleOpen(QStringList(QString(100'000, u'/')));
    EXPECT_EQ(host.takeCalls(), calls({"raise 1"})); // the shopper asked for the application all the same
}

TEST_F(AppLifecycleTest, EveryActionOfTheDesktopEntryDoesWhatItSays)
{
    QFile entry(QStringLiteral(LOOM_DESKTOP_ENTRY));
    ASSERT_TRUE(entry.open(QIODevice::ReadOnly));
    EXPECT_TRUE(entry.readAll().contains("\nActions=new-window;search;bag;\n"));
    for (const char* const name : {"new-window", "search", "bag"})
        lifecycle->handleAction(QLatin1String(name)); // the first opens a window, the others act in it
    const WindowSession& session = *model->keySession();
    EXPECT_TRUE(session.pendingSearchFocus());
    EXPECT_TRUE(session.isCartOpen());
    lifecycle->handleAction(QStringLiteral("new-window"));
    lifecycle->handleAction(QStringLiteral("something else"));
    EXPECT_EQ(host.takeCalls(), calls({"show 1", "raise 1", "raise 1", "show 2", "raise 2"}));
    const auto link = [](const char* handle) {
        return QStringLiteral("/collections/") + QLatin1String(handle);
    };
    lifecycle->handleAction(QStringLiteral("new-window"), {link("a\nb"), link("bags"), link("dresses")});
    EXPECT_EQ(model->keySession()->tabs()->count(), 2);
    EXPECT_EQ(model->keySession()->tabs()->at(0)->page(1).handle, QStringLiteral("bags"));
    EXPECT_EQ(host.takeCalls(), calls({"show 3", "raise 3"}));
    const QSignalSpy quits(&*model, &AppModel::quitRequested);
    lifecycle->handleAction(QStringLiteral("quit"));
    EXPECT_EQ(quits.count(), 1);
    EXPECT_EQ(host.takeCalls(), calls({}));
}

} // namespace
