#include "kit/Journey.h"

#include <QFont>

namespace loom
{

namespace
{

const QString dress = QStringLiteral("https://www.loomstreet.example/products/sabine-bias-slip-dress");

class BrowsingJourney : public Journey
{
protected:
    /// "3 / 8", as the gallery counts.
    void awaitPicture(int number) const
    {
        window.awaitText(QStringLiteral("%1 / 8").arg(number), window.await(QStringLiteral("counter")));
    }
    /// The words on a sold-out size are struck through.
    [[nodiscard]] bool isStruckOut(const QQuickItem* size) const
    {
        return window.await(QStringLiteral("label"), size)->property("font").value<QFont>().strikeOut();
    }
    /// A card of the grid of which all can be seen.
    [[nodiscard]] QQuickItem* cardInView() const
    {
        const QQuickItem* const grid = window.await(QStringLiteral("grid"));
        for (QQuickItem* const card : window.findAll(QStringLiteral("card."), grid)) {
            const QRectF place = card->mapRectToItem(grid, QRectF(0, 0, card->width(), card->height()));
            if (place.top() > 0 && place.bottom() < grid->height())
                return card;
        }
        throw std::runtime_error("no card is in view");
    }
    /// The widths that a picture was asked for, in pixels, of those larger than the dots of colours.
    [[nodiscard]] QList<int> askedWidths(const QString& picture)
    {
        QList<int> widths;
        const QJsonArray requests = store.requests();
        for (const auto request : requests) {
            const int width = request[u"operation"].toString().section(u' ', 1).toInt();
            if (request[u"path"] == picture && request[u"status"] == 200 && width > 64)
                widths.append(width);
        }
        return widths;
    }
    /// The path of a card's first picture.
    [[nodiscard]] static QString pictureOf(const QQuickItem* card)
    {
        return QUrl(card->property("pictures").toStringList().value(0)).path();
    }
    /// A card that has been made before it can be seen.
    [[nodiscard]] QQuickItem* cardAhead() const
    {
        const QQuickItem* const grid = window.await(QStringLiteral("grid"));
        const auto find = [&]() -> QQuickItem* {
            for (QQuickItem* const card : window.findAll(QStringLiteral("card."), grid)) {
                if (card->mapToItem(grid, QPointF()).y() > grid->height() + card->height())
                    return card;
            }
            return nullptr;
        };
        waitUntil([&] { return find() != nullptr; }, "cards are made ahead");
        return find();
    }
    [[nodiscard]] double scrollY() const
    {
        return window.await(QStringLiteral("grid"))->property("scrollY").toDouble();
    }
    /// Turns the wheel until the last piece of a collection has gone by.
    void scrollToEnd() const
    {
        QQuickItem* const grid = window.await(QStringLiteral("grid"));
        waitUntil(
            [&] {
                window.scroll(grid, 400);
                return window.find(QStringLiteral("end")) != nullptr;
            },
            "the collection comes to its end");
    }
};

TEST_F(BrowsingJourney, APieceIsLookedAtFromAllSides)
{
    start(dress);
    window.awaitPage(QStringLiteral("Sabine bias slip dress"));

    // The gallery, by its small pictures and by the arrow keys.
    awaitPicture(1);
    window.click(QStringLiteral("thumb2"));
    awaitPicture(3);
    window.press(QStringLiteral("Right"));
    awaitPicture(4);
    window.press(QStringLiteral("Left"));
    window.press(QStringLiteral("Left"));
    awaitPicture(2);

    // Enlarged, from the keyboard and back, then with the pointer.
    window.press(QStringLiteral("Return"));
    QQuickItem* const lightbox = window.await(QStringLiteral("lightbox"));
    window.awaitText(QStringLiteral("2 / 8"), lightbox);
    window.press(QStringLiteral("Left"));
    window.press(QStringLiteral("Left"));
    window.awaitText(QStringLiteral("8 / 8"), lightbox);
    window.await(QStringLiteral("picture"), lightbox);
    window.press(QStringLiteral("Esc"));
    window.awaitGone(QStringLiteral("lightbox"));
    window.awaitFocus(QStringLiteral("gallery"));
    window.click(QStringLiteral("picture1"));
    window.click(window.await(QStringLiteral("close"), window.await(QStringLiteral("lightbox"))));
    window.awaitGone(QStringLiteral("lightbox"));

    // Another colour brings its picture; a size that is gone in it stays within reach and says so.
    QQuickItem* const smallest = window.await(QStringLiteral("size.XXS"));
    EXPECT_EQ(accessibleName(smallest), QStringLiteral("XXS"));
    EXPECT_FALSE(isStruckOut(smallest));
    window.click(QStringLiteral("swatch.Ink"));
    window.awaitText(QStringLiteral("Ink"));
    window.awaitNoText(QStringLiteral("2 / 8"));
    EXPECT_EQ(accessibleName(smallest), QStringLiteral("XXS, sold out"));
    EXPECT_TRUE(isStruckOut(smallest));
    EXPECT_TRUE(smallest->isEnabled());
    window.click(smallest);
    EXPECT_TRUE(smallest->hasActiveFocus());
    window.awaitText(QStringLiteral("Sold out"), window.await(QStringLiteral("buyColumn")));
    window.click(QStringLiteral("size.M"));
    window.awaitNoText(QStringLiteral("Sold out"));

    // What is looked at stays, through another size of the same colour and a reload.
    window.click(QStringLiteral("thumb4"));
    awaitPicture(5);
    window.click(QStringLiteral("size.S"));
    const int asked = store.count(QStringLiteral("Product"));
    window.press(QStringLiteral("F5"));
    waitUntil([&] { return store.count(QStringLiteral("Product")) > asked; }, "the piece is asked for anew");
    window.awaitPage(QStringLiteral("Sabine bias slip dress"));
    awaitPicture(5);

    // The table of sizes in both units.
    window.awaitText(QStringLiteral("Garment measurements (cm)"));
    window.awaitText(QStringLiteral("76 – 80"), window.await(QStringLiteral("sizeTable0")));
    const QQuickItem* const units = window.await(QStringLiteral("units"));
    window.click(window.await(QStringLiteral("segment1"), units));
    window.awaitText(QStringLiteral("Garment measurements (in)"));
    window.awaitText(QStringLiteral("30 – 31.5"), window.await(QStringLiteral("sizeTable0")));
    window.click(window.await(QStringLiteral("segment0"), units));
    window.awaitText(QStringLiteral("76 – 80"), window.await(QStringLiteral("sizeTable0")));

    // Reviews, a few at first, and their pictures.
    QQuickItem* const reviews = window.await(QStringLiteral("reviews"));
    window.awaitText(QString::fromUtf8("4.7  ·  212 reviews"), reviews);
    EXPECT_EQ(window.findAll(QStringLiteral("review"), reviews).size(), 3);
    window.click(window.await(QStringLiteral("more"), reviews));
    waitUntil([&] { return window.findAll(QStringLiteral("review"), reviews).size() > 3; }, "all reviews are there");
}

TEST_F(BrowsingJourney, ACollectionIsWalkedToItsEndAndComeBackTo)
{
    start(dress);
    window.awaitPage(QStringLiteral("Sabine bias slip dress"));

    // A department and a collection of it, in a second tab.
    window.press(QStringLiteral("Ctrl+T"));
    window.await(QStringLiteral("tab1"));
    window.click(QStringLiteral("section.women"));
    window.awaitPage(QStringLiteral("Women"));
    window.click(QStringLiteral("tile.dresses"));
    window.awaitPage(QStringLiteral("Dresses"));
    window.awaitText(QStringLiteral("92 pieces"));
    scrollToEnd();
    window.awaitText(QStringLiteral("You've seen all 92"));
    const int pages = store.count(QStringLiteral("CollectionProducts"));

    // A piece in a tab of its own, and back to where the grid was.
    QQuickItem* const grid = window.await(QStringLiteral("grid"));
    window.scroll(grid, -700);
    const double place = scrollY();
    QQuickItem* const card = cardInView();
    const QString piece = window.texts(card).at(1);
    window.click(card, Qt::ControlModifier);
    window.await(QStringLiteral("tab2"));
    window.awaitPage(piece);
    window.press(QStringLiteral("Ctrl+W"));
    window.awaitGone(QStringLiteral("tab2"));
    EXPECT_EQ(window.await(QStringLiteral("grid")), grid);
    EXPECT_EQ(scrollY(), place);

    // The same from a piece in the same tab, first beside the grid, whose rows become shorter meanwhile.
    const QString name = card->objectName();
    const double top = card->mapToScene(QPointF()).y();
    window.click(card);
    window.awaitText(piece, window.await(QStringLiteral("preview")));
    window.press(QStringLiteral("Ctrl+Shift+Return"));
    window.awaitPage(piece);
    window.click(QStringLiteral("nav.back"));
    EXPECT_EQ(window.await(QStringLiteral("grid")), grid);
    // Rows above may have become a little lower.
    waitUntil([&] { return std::abs(window.await(name)->mapToScene(QPointF()).y() - top) < 12; },
              "the card is where it was");
    EXPECT_EQ(store.count(QStringLiteral("CollectionProducts")), pages);

    // The first tab is as it was left.
    window.click(QStringLiteral("tab0"));
    window.awaitPage(QStringLiteral("Sabine bias slip dress"));
    EXPECT_EQ(store.count(QStringLiteral("Product")), 4);
}

TEST_F(BrowsingJourney, APieceThatThePointerRestsOnOpensWithItsPictures)
{
    start(QStringLiteral("https://www.loomstreet.example/collections/dresses"));
    for (const bool isBeside : {false, true}) {
        window.awaitPage(QStringLiteral("Dresses"));
        shop->model().settings()->setSplitPreview(isBeside);
        QQuickItem* const card = isBeside ? window.findInOrder(QStringLiteral("card.")).value(1) : cardInView();
        const QString picture = pictureOf(card);
        waitUntil([&] { return askedWidths(picture).size() == 1; }, "the card has its picture");
        window.hover(card);
        waitUntil([&] { return askedWidths(picture).size() == 2; }, "so has its page");
        window.click(card);
        const QQuickItem* const gallery = window.await(QStringLiteral("gallery"));
        waitUntil([&] { return gallery->property("settled").toBool(); }, "the pictures are there");
        EXPECT_EQ(askedWidths(picture).size(), 2)
            << testing::PrintToString(askedWidths(picture)) << " they were asked for at the width of the page";
        EXPECT_GT(askedWidths(picture).last(), askedWidths(picture).first());
        if (!isBeside)
            window.press(QStringLiteral("Alt+Left"));
    }
}

TEST_F(BrowsingJourney, PicturesOutOfSightWaitWhereNothingIsToBeFetchedAhead)
{
    store.setConfig({{QStringLiteral("features"), QJsonObject{{QStringLiteral("prefetchImages"), false}}}});
    start(QStringLiteral("https://www.loomstreet.example/pages/brands-at-loomstreet"));
    waitUntil([&] { return !shop->model().remoteConfig()->prefetchesImages(); }, "the store has switched it off");
    follow(QStringLiteral("https://www.loomstreet.example/collections/dresses"));
    window.awaitPage(QStringLiteral("Dresses"));
    waitUntil([&] { return askedWidths(pictureOf(cardInView())).size() == 1; }, "what is in sight comes");
    const QString ahead = pictureOf(cardAhead());
    window.hover(cardInView());
    EXPECT_FALSE(cardAhead()->property("due").toBool());
    EXPECT_TRUE(askedWidths(ahead).isEmpty());

    store.setConfig({{QStringLiteral("features"), QJsonValue::Null}});
    shop->model().remoteConfig()->refresh();
    waitUntil([&] { return askedWidths(ahead).size() == 1; }, "what comes next is there already");
    shop->network().setMetered(true);
    EXPECT_FALSE(cardAhead()->property("due").toBool());
}

} // namespace

} // namespace loom
