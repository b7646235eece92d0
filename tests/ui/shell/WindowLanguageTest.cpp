#include "ui/shell/WindowLanguage.h"

#include "WindowFixture.h"

namespace loom
{

namespace
{

/// The texts of what can be seen, each with its place.
void addTexts(const QQuickItem* item, QStringList& texts)
{
    if (!item->isVisible())
        return;
    const QString text = item->property("text").toString();
    if (!text.isEmpty()) {
        const QPointF place = item->mapToScene({});
        texts.append(QStringLiteral("%1 at %2, %3").arg(text).arg(qRound(place.x())).arg(qRound(place.y())));
    }
    for (const QQuickItem* const child : item->childItems())
        addTexts(child, texts);
}

/// One to a line, once its page is there.
std::string textsOf(const QQuickWindow& window)
{
    if (window.property("settled").isValid())
        waitUntil([&window] { return window.property("settled").toBool(); }, "the page is there");
    drainEvents();
    QStringList texts{window.title()};
    addTexts(window.contentItem(), texts);
    texts.sort();
    return texts.join(QLatin1Char('\n')).toStdString();
}

QQuickWindow* lastWindow(const QString& name)
{
    QQuickWindow* found = nullptr;
    for (QWindow* const window : QGuiApplication::topLevelWindows()) {
        if (window->objectName() == name)
            found = qobject_cast<QQuickWindow*>(window);
    }
    return found;
}

class WindowLanguageTest : public WindowFixture
{
protected:
    WindowLanguageTest()
    {
        QObject::connect(&language, &WindowLanguage::changed, &*windows, &WindowManager::retranslate);
        QObject::connect(&language, &WindowLanguage::directionChanging, &*windows, &WindowManager::holdDirection);
        model->market()->setLanguage(AppLanguage::English);
        language.follow(*model->market());
    }

    void speak(AppLanguage wanted)
    {
        model->market()->setLanguage(wanted);
        waitUntil([this] { return !windows->isRetranslating(); }, "the windows speak the language");
        drainEvents();
    }

    /// A page that asks the store for nothing.
    static void showTools(WindowSession& session) { session.selected()->select(SidebarItem::Tools); }

    WindowLanguage language;
};

TEST_F(WindowLanguageTest, AWindowThatIsOpenSaysWhatOneSaysThatOpensLater)
{
    QQuickWindow& first = open({});
    showTools(*model->keySession());
    windows->showSettings();
    QQuickWindow* const settings = lastWindow(QStringLiteral("settings"));
    ASSERT_NE(settings, nullptr);
    const std::string english = textsOf(first);
    for (const AppLanguage wanted :
         {AppLanguage::German, AppLanguage::Arabic, AppLanguage::Japanese, AppLanguage::Hebrew, AppLanguage::English}) {
        const std::string code = appLanguageCode(wanted).toStdString();
        speak(wanted);
        const std::string texts = textsOf(first);
        const std::string settingsTexts = textsOf(*settings);
        EXPECT_EQ(texts == english, wanted == AppLanguage::English) << code;

        WindowManager others(engine, *model, appearance);
        WindowSession& second = model->openWindow({});
        showTools(second);
        QQuickWindow* const fresh = windows->windowOf(second);
        ASSERT_TRUE(QTest::qWaitForWindowActive(fresh));
        EXPECT_EQ(texts, textsOf(*fresh)) << code;
        others.showSettings();
        QQuickWindow* const freshSettings = lastWindow(QStringLiteral("settings"));
        ASSERT_NE(freshSettings, settings);
        EXPECT_EQ(settingsTexts, textsOf(*freshSettings)) << code;
        model->closeWindow(&second);
    }
}

TEST_F(WindowLanguageTest, DirectionNumbersAndFormsFollow)
{
    QQuickWindow& window = open({});
    const auto sold = [] {
        return QCoreApplication::translate("Loomstreet", "%Ln pieces", nullptr, 1234);
    };
    const QQuickItem* const sidebar = find(QStringLiteral("sidebar"), window.contentItem());
    ASSERT_NE(sidebar, nullptr);
    EXPECT_EQ(sidebar->x(), 0);
    EXPECT_EQ(sold(), QStringLiteral("1,234 pieces"));
    speak(AppLanguage::German);
    EXPECT_TRUE(sold().startsWith(QStringLiteral("1.234 "))) << sold().toStdString();
    EXPECT_EQ(QLocale().language(), QLocale::German);
    speak(AppLanguage::Hebrew);
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    EXPECT_EQ(sidebar->x() + sidebar->width(), sidebar->parentItem()->width());
    speak(AppLanguage::English);
    EXPECT_EQ(sidebar->x(), 0);
}

TEST_F(WindowLanguageTest, OnlyTheLastOfSeveralChangesCounts)
{
    QQuickWindow& window = open({});
    showTools(*model->keySession());
    const std::string english = textsOf(window);
    for (const AppLanguage wanted : {AppLanguage::Arabic, AppLanguage::Japanese, AppLanguage::Hebrew})
        model->market()->setLanguage(wanted);
    QCoreApplication::processEvents();
    model->market()->setLanguage(AppLanguage::Arabic);
    speak(AppLanguage::English);
    EXPECT_EQ(textsOf(window), english);
}

TEST_F(WindowLanguageTest, WhatIsTypedStays)
{
    QQuickWindow& window = open({});
    model->keySession()->selected()->openTracking();
    QQuickItem* field = nullptr;
    waitUntil(
        [&] {
            field = find(QStringLiteral("number"), window.contentItem());
            return field != nullptr;
        },
        "the field is there");
    const QString label = field->property("label").toString();
    field->setProperty("text", QStringLiteral("LP123456789"));
    speak(AppLanguage::German);
    EXPECT_EQ(field->property("text").toString(), QStringLiteral("LP123456789"));
    EXPECT_NE(field->property("label").toString(), label);
}

TEST_F(WindowLanguageTest, WhoeverHearsOfTheChangeFindsItDone)
{
    QString title;
    QObject::connect(model->market(), &MarketStore::revisionChanged, model->market(),
                     [&title] { title = QCoreApplication::translate("Loomstreet", "Close"); });
    speak(AppLanguage::German);
    EXPECT_EQ(title, QCoreApplication::translate("Loomstreet", "Close"));
    EXPECT_NE(title, QStringLiteral("Close"));
}

} // namespace

} // namespace loom
