#include "ui/shell/WindowManager.h"

#include "TestEngine.h"
#include "app/AppFixture.h"
#include "app/SystemAppearance.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

namespace loom
{

namespace
{

class PlainAppearance final : public SystemAppearance
{
public:
    [[nodiscard]] bool isDark() const override { return false; }
    [[nodiscard]] bool reducesMotion() const override { return true; }
    [[nodiscard]] bool isRightToLeft() const override { return false; }
    [[nodiscard]] double textScale() const override { return 1; }
};

/// The real windows, in front of a store that has nothing.
class WindowManagerTest : public AppFixture
{
protected:
    WindowManagerTest()
    {
        prepareTestEngine(engine);
        start();
        windows.emplace(engine, *model, appearance);
        model->setWindowHost(&*windows);
    }
    ~WindowManagerTest() override
    {
        while (!model->windows().empty())
            model->closeWindow(model->windows().front().get());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        drainEvents();
    }

    QQuickWindow& open(const WindowSeed& seed)
    {
        QQuickWindow* const window = windows->windowOf(model->openWindow(seed));
        if (!window || !QTest::qWaitForWindowActive(window))
            throw std::runtime_error("no window came to the front");
        return *window;
    }
    static const QQuickItem* find(const QString& name, const QQuickItem* below)
    {
        if (below->objectName() == name)
            return below;
        for (const QQuickItem* const child : below->childItems()) {
            if (const QQuickItem* const found = find(name, child))
                return found;
        }
        return nullptr;
    }

    PlainAppearance appearance;
    QQmlEngine engine;
    std::optional<WindowManager> windows;
};

TEST_F(WindowManagerTest, AWindowShowsWhatWasAskedForBeforeItWasThere)
{
    const QQuickWindow& window = open({.link = QStringLiteral("loomstreet://cart")});
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
