#include "WindowFixture.h"

namespace loom
{

namespace
{

using WindowManagerTest = WindowFixture;

bool isIn(const QQuickItem* item, const QString& name)
{
    while (item && item->objectName() != name)
        item = item->parentItem();
    return item != nullptr;
}

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

TEST_F(WindowManagerTest, AStylistWhoIsBeingMadeWhenHerWindowGoesComesToTheOthersAllTheSame)
{
    open({});
    WindowSession& first = *model->keySession();
    QQuickWindow& window = open({});
    WindowSession& second = *model->keySession();
    ASSERT_NE(&first, &second);
    first.setMiraDocked(true);
    second.setMiraDocked(true);
    QCoreApplication::processEvents();
    model->closeWindow(&first);
    waitUntil([&] { return isIn(window.activeFocusItem(), QStringLiteral("miraDock")); }, "she is beside the page");
}

TEST_F(WindowManagerTest, AStylistWhoComesWhenNobodyWantsHerAnyMoreLeavesTheKeyboardWhereItIs)
{
    QQuickWindow& window = open({});
    WindowSession& session = *model->keySession();
    session.setMiraDocked(true);
    session.setMiraDocked(false);
    const auto isMade = [&] {
        constexpr int ready = 1; // of a loader's states
        const QQuickItem* const dock = find(QStringLiteral("miraDock"), window.contentItem());
        return dock && dock->parentItem()->property("status").toInt() == ready;
    };
    waitUntil(isMade, "she has been made");
    EXPECT_FALSE(isIn(window.activeFocusItem(), QStringLiteral("miraDock")));
    session.setMiraDocked(true);
    EXPECT_TRUE(isIn(window.activeFocusItem(), QStringLiteral("miraDock")));
}

} // namespace

} // namespace loom
