#include "WindowFixture.h"

namespace loom
{

namespace
{

using WindowManagerTest = WindowFixture;

TEST_F(WindowManagerTest, AWindowShowsWhatWasAskedForBeforeItWasThere)
{
    QQuickWindow& window = open({.link = QStringLiteral("loomstreet://cart")});
    const QQuickItem* const panel = find(QStringLiteral("cartPanel"), window.contentItem());
    ASSERT_NE(panel, nullptr);
    EXPECT_TRUE(panel->property("open").toBool());
}

TEST_F(WindowManagerTest, AWindowAndItsSessionAgreeOnTheFullScreen)
{
    QQuickWindow& window = open({});
    WindowSession& session = *model->keySession();
    const auto expectFullScreen = [&](bool isFullScreen) {
        drainEvents();
        EXPECT_EQ(session.isWindowFullScreen(), isFullScreen);
        EXPECT_EQ(window.windowStates().testFlag(Qt::WindowFullScreen), isFullScreen);
    };
    session.setWindowFullScreen(true);
    expectFullScreen(true);
    session.setWindowFullScreen(false);
    expectFullScreen(false);

    // The window manager's own ways.
    window.setWindowStates(Qt::WindowFullScreen);
    expectFullScreen(true);
    window.setWindowStates(Qt::WindowMaximized);
    expectFullScreen(false);
    EXPECT_EQ(window.visibility(), QWindow::Maximized);
    windows->raise(session);
    EXPECT_EQ(window.visibility(), QWindow::Maximized);

    // One that is away comes back as it was.
    session.setWindowFullScreen(true);
    window.setWindowStates(Qt::WindowMinimized | Qt::WindowFullScreen);
    expectFullScreen(true);
    EXPECT_EQ(window.visibility(), QWindow::Minimized);
    windows->raise(session);
    EXPECT_EQ(window.visibility(), QWindow::FullScreen);
    window.hide();
    expectFullScreen(true);
    EXPECT_FALSE(window.isVisible());
}

} // namespace

} // namespace loom
