#include "app/AppLifecycle.h"

#include "AppFixture.h"

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

TEST_F(AppLifecycleTest, WindowsAreLookedAfterTwice)
{
    lifecycle->didFinishLaunching({.section = SidebarItem::Men});
    EXPECT_EQ(host.takeCalls(), calls({"show 1"}));
    EXPECT_EQ(model->keySession()->selected()->selection(), SidebarItem::Men);
    clock.advance(499ms);
    EXPECT_EQ(host.takeCalls(), calls({}));
    clock.advance(1ms);
    EXPECT_EQ(host.takeCalls(), calls({"style"}));
    clock.advance(999ms);
    EXPECT_EQ(host.takeCalls(), calls({}));
    clock.advance(1ms);
    EXPECT_EQ(host.takeCalls(), calls({"style"}));
    clock.advance(1h);
    EXPECT_EQ(host.takeCalls(), calls({}));
}

TEST_F(AppLifecycleTest, AWindowThatCannotBeSeenIsBroughtBackOrAnotherIsOpened)
{
    lifecycle->didFinishLaunching({});
    host.isVisible = false;
    clock.advance(500ms);
    EXPECT_EQ(host.takeCalls(), calls({"show 1", "raise 1", "style"}));
    model->closeWindow(model->keySession());
    host.isVisible = false;
    clock.advance(1s);
    EXPECT_EQ(host.takeCalls(), calls({"show 2", "style"}));
    ASSERT_TRUE(model->keySession());
    EXPECT_EQ(model->keySession()->selected()->selection(), SidebarItem::Home);
}

TEST_F(AppLifecycleTest, NobodyIsLookedAfterOnceItIsGone)
{
    lifecycle->didFinishLaunching({});
    static_cast<void>(host.takeCalls());
    lifecycle.reset();
    EXPECT_EQ(clock.sleepers(), 0);
    clock.advance(2s);
    EXPECT_EQ(host.takeCalls(), calls({}));
}

TEST_F(AppLifecycleTest, AnotherStartBringsTheFrontWindowForwardOrOpensOne)
{
    lifecycle->handleReopen();
    lifecycle->handleReopen();
    EXPECT_EQ(host.takeCalls(), calls({"show 1", "raise 1"}));
    model->openWindow({});
    lifecycle->handleReopen();
    model->windowBecameKey(model->windows().front().get());
    lifecycle->handleReopen();
    EXPECT_EQ(host.takeCalls(), calls({"show 2", "raise 2", "raise 1"}));
    EXPECT_EQ(model->windows().size(), 2U);
    // Closing the last window leaves the application running.
    EXPECT_FALSE(AppLifecycle::shouldTerminateAfterLastWindowClosed());
    EXPECT_TRUE(lifecycle->shouldTerminate());
}

TEST_F(AppLifecycleTest, ALinkFromOutsideOpensInATabOfItsOwn)
{
    const auto shown = [](const Router& tab) {
        return tab.page(tab.depth()).handle;
    };
    lifecycle->handleOpen(QStringLiteral("loomstreet://products/silk"));
    EXPECT_EQ(host.takeCalls(), calls({"show 1"}));
    WindowSession& session = *model->keySession();
    EXPECT_EQ(session.tabs()->count(), 1);
    EXPECT_EQ(shown(*session.selected()), QStringLiteral("silk"));

    lifecycle->handleOpen(QStringLiteral("/collections/bags"));
    EXPECT_EQ(host.takeCalls(), calls({"raise 1"}));
    EXPECT_EQ(session.tabs()->count(), 2);
    EXPECT_EQ(session.selectedIndex(), 1);
    EXPECT_EQ(shown(*session.selected()), QStringLiteral("bags"));
    EXPECT_EQ(shown(*session.tabs()->at(0)), QStringLiteral("silk"));

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

} // namespace
