#include "WindowFixture.h"

#include <QGuiApplication>

namespace loom
{

namespace
{

/// A call that rings, for as long as a test wants it to, in front of a window with pages.
class CallWindowTest : public WindowFixture
{
protected:
    CallWindowTest()
    {
        voiceAudio.holdsOpening = true;
        server.allow("POST /api/support/widget/init", [](const ReceivedRequest&) { return Answer::body("", 404); });
        open({});
    }
    ~CallWindowTest() override
    {
        call().hangUp();
        drainEvents(); // what is held hears of it
    }

    [[nodiscard]] MiraVoiceSession& call() { return *model->call(); }
    [[nodiscard]] static QQuickWindow* windowNamed(const QString& name)
    {
        for (QWindow* const window : QGuiApplication::topLevelWindows()) {
            if (window->objectName() == name)
                return qobject_cast<QQuickWindow*>(window);
        }
        return nullptr;
    }
    QQuickWindow& place(bool isFromChat, MiraVoiceMode mode = MiraVoiceMode::Full)
    {
        call().call(isFromChat);
        call().setMode(mode);
        QQuickWindow* const window = windowNamed(QStringLiteral("callWindow"));
        if (!window || !QTest::qWaitForWindowActive(window))
            throw std::runtime_error("the call has no window");
        return *window;
    }
    static bool shows(QQuickWindow& window, const char* name)
    {
        const QQuickItem* const item = find(QLatin1String(name), window.contentItem());
        return item && item->isVisible();
    }
    static QPoint corner(const QQuickWindow& window) { return {window.x() + window.width(), window.y()}; }
};

TEST_F(CallWindowTest, EachFormHasItsSizeAndItsItemsAndTheCornerStays)
{
    QQuickWindow& window = place(false);
    EXPECT_EQ(window.size(), QSize(400, 704));
    EXPECT_TRUE(shows(window, "chat"));
    const QPoint before = corner(window);
    window.resize(420, 640);
    drainEvents();
    const QPoint grown = corner(window);

    struct Row {
        MiraVoiceMode mode;
        QSize size;
        bool isOnTop;
        const char* item;
    };
    for (const Row& row :
         {Row{MiraVoiceMode::Mini, {320, 72}, true, "fullCall"}, Row{MiraVoiceMode::Floating, {72, 72}, true, "end"},
          Row{MiraVoiceMode::Mini, {320, 72}, true, "floatCall"},
          Row{MiraVoiceMode::Full, {420, 640}, false, "dockCall"}}) {
        SCOPED_TRACE(row.item);
        call().setMode(row.mode);
        drainEvents();
        EXPECT_EQ(window.size(), row.size);
        EXPECT_EQ(corner(window), grown);
        EXPECT_EQ(window.flags().testFlag(Qt::WindowStaysOnTopHint), row.isOnTop);
        EXPECT_TRUE(shows(window, row.item));
    }
    EXPECT_NE(before, grown);
}

TEST_F(CallWindowTest, KeysMuteShrinkEnlargeAndEndIt)
{
    QQuickWindow& window = place(false);
    QTest::keyClick(&window, Qt::Key_M);
    EXPECT_TRUE(call().isMuted());
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(call().mode(), MiraVoiceMode::Mini);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(call().mode(), MiraVoiceMode::Floating);
    QTest::keyClick(&window, Qt::Key_Return);
    EXPECT_EQ(call().mode(), MiraVoiceMode::Full);
    QTest::keyClick(&window, Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(call().isActive());
    EXPECT_TRUE(window.isVisible()) << "what was said can be read";
    QTest::keyClick(&window, Qt::Key_Return);
    EXPECT_FALSE(window.isVisible()) << "by its button, which has the keyboard";
}

TEST_F(CallWindowTest, WhatIsLeftOfASmallCallIsShownOnlyWhereSomethingIsToBeSaid)
{
    struct Row {
        MiraVoiceMode mode;
        bool hasFailed;
        bool isShown;
        MiraVoiceMode modeThen;
    };
    for (const Row& row : {Row{MiraVoiceMode::Mini, false, false, MiraVoiceMode::Mini},
                           Row{MiraVoiceMode::Floating, false, false, MiraVoiceMode::Floating},
                           Row{MiraVoiceMode::Mini, true, true, MiraVoiceMode::Mini},
                           Row{MiraVoiceMode::Floating, true, true, MiraVoiceMode::Mini}}) {
        SCOPED_TRACE(testing::Message() << static_cast<int>(row.mode) << " failed: " << row.hasFailed);
        voiceAudio.streams.reset();
        QQuickWindow& window = place(false, row.mode);
        if (row.hasFailed)
            voiceAudio.finishOpening();
        else
            call().hangUp();
        waitUntil(
            [&] { return !call().isActive() && window.isVisible() == row.isShown && call().mode() == row.modeThen; },
            "what is left has its place");
        EXPECT_EQ(shows(window, "callAgain"), row.hasFailed);
        call().dismiss();
        EXPECT_FALSE(window.isVisible());
    }
}

TEST_F(CallWindowTest, ClosingGoesBackToTheChatItBeganInOrEndsTheCall)
{
    QQuickWindow& pages = *windows->windowOf(*model->keySession());
    QQuickWindow& window = place(true);
    window.close();
    EXPECT_TRUE(call().isActive());
    EXPECT_FALSE(window.isVisible());
    ASSERT_TRUE(QTest::qWaitFor([&] { return shows(pages, "callBar"); }));
    EXPECT_FALSE(shows(pages, "callSign")) << "it is here";
    call().showInWindow();
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(shows(pages, "callBar"));
    EXPECT_TRUE(shows(pages, "callSign"));
    call().hangUp();
    call().dismiss();

    place(false);
    window.close();
    EXPECT_FALSE(call().isActive());
    EXPECT_FALSE(window.isVisible());
}

TEST_F(CallWindowTest, TheSettingsListenToTheMicrophoneOnlyWhileTheyAreLookedAt)
{
    voiceAudio.holdsOpening = false;
    model->settings()->setSettingsTab(QStringLiteral("general"));
    windows->showSettings();
    QQuickWindow& window = *windowNamed(QStringLiteral("settings"));
    EXPECT_EQ(voiceAudio.watchers, 0);
    for (const bool byClosing : {false, true}) {
        model->settings()->setSettingsTab(QStringLiteral("sound"));
        windows->showSettings();
        drainEvents();
        EXPECT_EQ(voiceAudio.watchers, 1);
        QMetaObject::invokeMethod(find(QStringLiteral("measure"), window.contentItem()), "press");
        waitUntil([this] { return voiceAudio.isOpen(); }, "it listens");
        if (byClosing)
            window.close();
        else
            model->settings()->setSettingsTab(QStringLiteral("general"));
        drainEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(voiceAudio.isOpen());
        EXPECT_EQ(voiceAudio.watchers, 0);
    }
}

} // namespace

} // namespace loom
