#include "WindowFixture.h"

#include <QGuiApplication>

namespace loom
{

namespace
{

/// A window of an application that can be kept current, in front of a store that announces what a test wants it to.
class UpdatePanelTest : public WindowFixture
{
protected:
    UpdatePanelTest()
    {
        server.allow("GET /api/support/widget/app-version", [this](const ReceivedRequest&) {
            return latest.isEmpty()
                       ? Answer::body("", 503)
                       : Answer::json({{QStringLiteral("macos"), QJsonObject{{QStringLiteral("latest"), latest},
                                                                             {QStringLiteral("url"), imageUrl}}}});
        });
        windows.reset();
        config.updateKey = QStringLiteral("RWRNmKIEp73BgQlbrr9VXUN2dOZmWrhZUZNiS+exgX6n5cIxn0rnUxwb");
        updates.workingFolder = home.path();
        start();
        windows.emplace(engine, *model, appearance);
        model->setWindowHost(&*windows);
        window = &open({});
        awaitHolder("retry"); // the page has nothing to show, and wants the keyboard for another try
    }

    [[nodiscard]] WindowSession& session() { return *model->keySession(); }
    [[nodiscard]] AppUpdater& updater() { return *model->updater(); }
    [[nodiscard]] QQuickItem& item(const char* name) const
    {
        QQuickItem* const found = find(QLatin1String(name), window->contentItem());
        if (!found)
            throw std::runtime_error(name);
        return *found;
    }
    [[nodiscard]] bool isCalling() const { return item("update").isVisible(); }
    /// What has the keyboard; empty for the window itself.
    [[nodiscard]] QString holder() const
    {
        const QQuickItem* const holder = window->activeFocusItem();
        return holder && holder != window->contentItem() ? holder->objectName() : QString();
    }
    /// Whether the keyboard is somewhere in the page.
    [[nodiscard]] bool isInPage() const
    {
        const QQuickItem* holder = window->activeFocusItem();
        while (holder && holder->objectName() != QLatin1String("page"))
            holder = holder->parentItem();
        return holder != nullptr;
    }
    void command() { model->makeCommands(window, &session())->perform(AppCommand::Id::CheckForUpdates); }
    void await(AppUpdater::Phase phase)
    {
        waitUntil([&] { return updater().phase() == phase; }, "the updater comes as far as that");
        drainEvents();
    }
    void awaitHolder(const char* name)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return holder() == QLatin1String(name); }))
            << name << " has not the keyboard, but " << holder().toStdString();
    }
    void awaitClosed()
    {
        EXPECT_FALSE(session().isUpdateOpen());
        waitUntil([this] { return !find(QStringLiteral("updateAction"), window->contentItem()); }, "the panel is gone");
        drainEvents();
    }

    QString latest;
    QString imageUrl = server.url(QStringLiteral("/image")).toString();
    QQuickWindow* window = nullptr;
};

TEST_F(UpdatePanelTest, TheCommandShowsWhatCameOutWhereNothingCalls)
{
    const QPointer<QQuickItem> before = window->activeFocusItem();
    command();
    await(AppUpdater::Phase::Failed);
    awaitHolder("updateAction");
    EXPECT_FALSE(isCalling());

    latest = AppModel::version();
    QTest::keyClick(window, Qt::Key_Return);
    await(AppUpdater::Phase::UpToDate);
    awaitHolder("updateAction");
    EXPECT_EQ(item("updateTitle").property("text").toString(), QStringLiteral("You're up to date"));
    EXPECT_FALSE(isCalling());

    QTest::keyClick(window, Qt::Key_Escape);
    awaitClosed();
    EXPECT_EQ(window->activeFocusItem(), before);
}

TEST_F(UpdatePanelTest, WhatIsTurnedDownTakesItsButtonAlongAndNotTheKeyboard)
{
    latest = QStringLiteral("99.1");
    updater().checkByHand();
    waitUntil([this] { return isCalling(); }, "the button calls");
    QQuickItem& button = item("update");
    button.forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(window, Qt::Key_Space);
    awaitHolder("updateAction");
    // The button closes what it opened, and has the keyboard again.
    QTest::mouseClick(window, Qt::LeftButton, {},
                      button.mapToScene({button.width() / 2, button.height() / 2}).toPoint());
    awaitClosed();
    EXPECT_EQ(holder(), QStringLiteral("update"));

    QTest::keyClick(window, Qt::Key_Return);
    awaitHolder("updateAction");
    QTest::keyClick(window, Qt::Key_Tab);
    EXPECT_EQ(holder(), QStringLiteral("skipUpdate"));
    QTest::keyClick(window, Qt::Key_Space);
    awaitClosed();
    EXPECT_FALSE(isCalling());
    EXPECT_TRUE(QTest::qWaitFor([this] { return isInPage(); })) << holder().toStdString();
}

TEST_F(UpdatePanelTest, TheSettingsKeepTheKeyboardWhateverItPresses)
{
    latest = QStringLiteral("99.1");
    server.expect("GET /image", Answer::body("", 503));
    model->settings()->setSettingsTab(QStringLiteral("updates"));
    windows->showSettings();
    for (QWindow* const other : QGuiApplication::topLevelWindows()) {
        if (other->objectName() == QLatin1String("settings"))
            window = qobject_cast<QQuickWindow*>(other);
    }
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    item("checkForUpdates").forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(window, Qt::Key_Space);
    await(AppUpdater::Phase::Idle);
    EXPECT_EQ(holder(), QStringLiteral("checkForUpdates"));

    item("updateAction").forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(window, Qt::Key_Space);
    ASSERT_EQ(updater().phase(), AppUpdater::Phase::Downloading);
    awaitHolder("checkForUpdates");
    await(AppUpdater::Phase::Failed);
    item("skipUpdate").forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(window, Qt::Key_Space);
    awaitHolder("checkForUpdates");
}

TEST_F(UpdatePanelTest, TheKeyboardWaitsForADownloadAndThenHasAnotherTry)
{
    latest = QStringLiteral("99.1");
    server.expect("GET /image", Answer::body("", 503));
    command();
    await(AppUpdater::Phase::Idle);
    awaitHolder("updateAction");
    QTest::keyClick(window, Qt::Key_Return);
    ASSERT_EQ(updater().phase(), AppUpdater::Phase::Downloading);
    awaitHolder("closeUpdate");
    EXPECT_TRUE(item("updateProgress").isVisible());

    await(AppUpdater::Phase::Failed);
    awaitHolder("updateAction");
    EXPECT_FALSE(item("updateProgress").isVisible());
    EXPECT_EQ(item("updateText").property("text").toString(), QStringLiteral("The download failed (HTTP 503)."));
}

} // namespace

} // namespace loom
