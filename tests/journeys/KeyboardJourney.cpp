#include "kit/Journey.h"

#include <QAccessible>
#include <QTest>

namespace loom
{

namespace
{

class KeyboardJourney : public Journey
{
protected:
    /// Whether a line is drawn around the item that has the keyboard.
    [[nodiscard]] bool isRingShown() const
    {
        const QObject* const focused = window.window()->activeFocusItem();
        const QList<QQuickItem*> all = window.findAll(QString());
        return std::ranges::any_of(all, [focused](const QQuickItem* item) {
            return QByteArray(item->metaObject()->className()).startsWith("FocusRing_") &&
                   item->property("target").value<QObject*>() == focused;
        });
    }
    /// What is wrong with where the keyboard is, in words.
    [[nodiscard]] QString faultOfFocus() const
    {
        QQuickItem* const item = window.window()->activeFocusItem();
        if (!item)
            return QStringLiteral("nothing has the keyboard");
        const QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(item);
        const QString where = window.focusName() + QStringLiteral(" (") +
                              QString::fromLatin1(item->metaObject()->className()) + QLatin1Char(')');
        if (!seen || seen->role() == QAccessible::NoRole || seen->text(QAccessible::Name).isEmpty())
            return where + QStringLiteral(" tells nothing of itself");
        const QRectF place = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
        if (!QRectF(QPointF(), window.window()->size()).intersects(place))
            return where + QStringLiteral(" is out of sight");
        // The cursor shows where one types.
        if (seen->role() != QAccessible::EditableText && !isRingShown())
            return where + QStringLiteral(" does not show that it has the keyboard");
        return {};
    }
    /// Goes once around all stops of a page and returns their names.
    [[nodiscard]] QStringList goAround(const QString& key) const
    {
        window.press(key);
        const QPointer<QQuickItem> first = window.window()->activeFocusItem();
        QStringList stops;
        do {
            drainEvents(); // the page follows
            stops.append(window.focusName());
            const QString fault = faultOfFocus();
            EXPECT_TRUE(fault.isEmpty()) << fault.toStdString();
            if (stops.size() > 100) {
                ADD_FAILURE() << "round and round: " << stops.join(QStringLiteral(", ")).toStdString();
                break;
            }
            window.press(key);
        } while (window.window()->activeFocusItem() != first);
        return stops;
    }
    /// Wherever the Tab key leads to it leads back to; but what lies over a card comes only when the card is reached.
    void expectGoodStops() const
    {
        const QStringList forth = goAround(QStringLiteral("Tab"));
        const QStringList back = goAround(QStringLiteral("Shift+Tab"));
        EXPECT_GT(forth.size(), 10);
        for (const QString& stop : forth)
            EXPECT_TRUE(back.contains(stop) || stop == QStringLiteral("openFull"))
                << stop.toStdString() << " is not among " << back.join(QStringLiteral(", ")).toStdString();
    }
};

TEST_F(KeyboardJourney, EveryStopOfTheTabKeyShowsAndNamesItself)
{
    start();
    window.awaitPage(QStringLiteral("Explore"));
    window.await(QStringLiteral("tile.dresses"));
    window.press(QStringLiteral("Tab"));
    EXPECT_NE(window.focusName(), QStringLiteral("sidebarToggle")) << "not from the page on, but from the beginning";
    expectGoodStops();
    follow(QStringLiteral("https://www.loomstreet.example/collections/dresses"));
    window.awaitPage(QStringLiteral("Dresses"));
    expectGoodStops();
    follow(QStringLiteral("https://www.loomstreet.example/products/sabine-bias-slip-dress"));
    window.awaitPage(QStringLiteral("Sabine bias slip dress"));
    window.await(QStringLiteral("sizeTable0"));
    expectGoodStops();
}

TEST_F(KeyboardJourney, TheShopIsBrowsedWithoutAPointer)
{
    start();
    window.awaitPage(QStringLiteral("Explore"));

    // The sections at the side are one stop; the arrows move within.
    window.tabTo(QStringLiteral("section.home"), QStringLiteral("Shift+Tab"));
    window.press(QStringLiteral("Down"));
    window.press(QStringLiteral("Down"));
    EXPECT_EQ(window.focusName(), QStringLiteral("section.women"));
    window.press(QStringLiteral("Return"));
    window.awaitPage(QStringLiteral("Women"));

    // The keyboard follows to the page. A collection, its grid, and a piece of the second row.
    window.tabTo(QStringLiteral("tile.dresses"));
    window.press(QStringLiteral("Space"));
    window.awaitPage(QStringLiteral("Dresses"));
    const QQuickItem* const grid = window.await(QStringLiteral("grid"));
    const QString first = window.findAll(QStringLiteral("card."), grid).front()->objectName();
    window.awaitFocus(first);
    window.press(QStringLiteral("Right"));
    window.press(QStringLiteral("Down"));
    const QString reached = window.focusName();
    EXPECT_TRUE(reached.startsWith(QStringLiteral("card.")));
    EXPECT_NE(reached, first);
    EXPECT_EQ(faultOfFocus(), QString());
    const QString piece = window.texts(window.await(reached)).at(1);

    // The piece beside the grid, and from there its page.
    window.press(QStringLiteral("Return"));
    window.awaitText(piece, window.await(QStringLiteral("preview")));
    EXPECT_EQ(window.focusName(), reached);
    window.tabTo(QStringLiteral("previewFull"));
    EXPECT_EQ(faultOfFocus(), QString());
    window.press(QStringLiteral("Return"));
    window.awaitPage(piece);

    // Its pictures, enlarged: the Tab key stays with them, and Esc leads back to where one was.
    window.awaitFocus(QStringLiteral("gallery"));
    EXPECT_EQ(faultOfFocus(), QString());
    window.press(QStringLiteral("Right"));
    window.press(QStringLiteral("Return"));
    const QQuickItem* const lightbox = window.await(QStringLiteral("lightbox"));
    // Nothing is enlarged, and no stop made at it, before the picture is there.
    const QQuickItem* const zoomIn = window.await(QStringLiteral("zoomIn"));
    ASSERT_TRUE(QTest::qWaitFor([zoomIn] { return zoomIn->isEnabled(); }));
    QSet<QString> stops;
    for (int i = 0; i < 8; ++i) {
        window.press(QStringLiteral("Tab"));
        stops.insert(window.focusName());
        EXPECT_EQ(faultOfFocus(), QString());
        EXPECT_TRUE(lightbox->isAncestorOf(window.window()->activeFocusItem()));
    }
    EXPECT_EQ(stops, (QSet<QString>{QStringLiteral("stage"), QStringLiteral("play"), QStringLiteral("zoomIn"),
                                    QStringLiteral("close"), QStringLiteral("previous"), QStringLiteral("next")}));
    window.press(QStringLiteral("Esc"));
    window.awaitGone(QStringLiteral("lightbox"));
    EXPECT_EQ(window.focusName(), QStringLiteral("gallery"));

    // Further on in the page, and back to what of the grid had the keyboard last.
    window.await(QStringLiteral("section0"));
    window.tabTo(QStringLiteral("header"));
    window.press(QStringLiteral("Alt+Left"));
    window.awaitPage(QStringLiteral("Dresses"));
    window.awaitFocus(QStringLiteral("openFull"));
    EXPECT_TRUE(window.await(reached)->isAncestorOf(window.window()->activeFocusItem()));
    EXPECT_EQ(faultOfFocus(), QString());
}

TEST_F(KeyboardJourney, CommandsHaveTheirKeys)
{
    start(QStringLiteral("https://www.loomstreet.example/collections/knitwear"));
    window.awaitPage(QStringLiteral("Knitwear"));

    // A card in a tab of its own, and from tab to tab.
    window.press(QStringLiteral("Ctrl+Return"));
    window.await(QStringLiteral("tab1"));
    window.awaitFocus(QStringLiteral("gallery"));
    window.press(QStringLiteral("Ctrl+Tab"));
    window.awaitPage(QStringLiteral("Knitwear"));
    EXPECT_TRUE(window.focusName().startsWith(QStringLiteral("card.")));
    window.press(QStringLiteral("Ctrl+Shift+Tab"));
    window.awaitFocus(QStringLiteral("gallery"));
    window.press(QStringLiteral("Ctrl+W"));
    window.awaitGone(QStringLiteral("tab1"));
    window.awaitPage(QStringLiteral("Knitwear"));

    // To the search and back to the page.
    window.press(QStringLiteral("Ctrl+K"));
    EXPECT_EQ(window.focusName(), QStringLiteral("input"));
    window.type(QStringLiteral("wool"));
    window.await(QStringLiteral("query0"));
    window.press(QStringLiteral("Esc"));
    EXPECT_EQ(window.focusName(), QStringLiteral("input"));
    window.press(QStringLiteral("Esc"));
    EXPECT_TRUE(window.focusName().startsWith(QStringLiteral("card."))) << window.focusName().toStdString();

    // Section home and the sidebar.
    window.press(QStringLiteral("Ctrl+Up"));
    window.awaitPage(QStringLiteral("Explore"));
    window.press(QStringLiteral("Alt+Right"));
    window.awaitPage(QStringLiteral("Knitwear"));
    window.press(QStringLiteral("Ctrl+B"));
    waitUntil([this] { return !window.shows(QStringLiteral("Luxury")); }, "the sidebar is a rail");
    window.press(QStringLiteral("Ctrl+B"));
    window.awaitText(QStringLiteral("Luxury"));

    // The menu bar, which gives the keyboard back.
    window.press(QStringLiteral("F10"));
    window.await(QStringLiteral("menuBar"));
    window.press(QStringLiteral("Esc"));
    window.awaitGone(QStringLiteral("menuBar"));
    EXPECT_TRUE(window.focusName().startsWith(QStringLiteral("card.")));

    // The settings, in a window of their own.
    window.press(QStringLiteral("Ctrl+,"));
    const WindowDriver settings = shop->settingsWindow();
    settings.awaitFocus(QStringLiteral("settings.appearance"));
    settings.press(QStringLiteral("Down"));
    settings.awaitFocus(QStringLiteral("settings.privacy"));
    settings.press(QStringLiteral("Esc"));
    waitUntil([&settings] { return !settings.window()->isVisible(); }, "the settings are closed");
}

TEST_F(KeyboardJourney, ArrowsFollowTheDirectionOfTheScript)
{
    start(QStringLiteral("https://www.loomstreet.example/products/sabine-bias-slip-dress"));
    window.awaitPage(QStringLiteral("Sabine bias slip dress"));
    shop->appearance().setRightToLeft(true);
    window.awaitFocus(QStringLiteral("gallery"));
    window.press(QStringLiteral("Left"));
    window.awaitText(QStringLiteral("2 / 8"), window.await(QStringLiteral("counter")));
    window.press(QStringLiteral("Right"));
    window.awaitText(QStringLiteral("1 / 8"), window.await(QStringLiteral("counter")));
    // The sidebar stands on the other side.
    EXPECT_GT(window.await(QStringLiteral("sidebar"))->mapToScene({}).x(), window.window()->width() / 2);
}

} // namespace

} // namespace loom
