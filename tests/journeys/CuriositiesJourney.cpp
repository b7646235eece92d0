#include "kit/Journey.h"

namespace loom
{

namespace
{

const QString site = QStringLiteral("https://www.loomstreet.example");

/// What merchants' data does to a shopping client sooner or later, one piece for each. That nothing was asked of a
/// host outside the store is looked at after every journey.
class CuriositiesJourney : public Journey
{
protected:
    // Some of their pictures are lost or torn.
    CuriositiesJourney()
    {
        tolerate(QStringLiteral("https://cdn.loomstreet.example/"));
        tolerate(QStringLiteral("JPEG"));
        tolerate(QStringLiteral("QNetworkReplyImplPrivate::error")); // a lost picture whose reply fails twice
    }

    void openPiece(const QString& handle, const QString& title)
    {
        const QString link = site + QStringLiteral("/products/") + handle;
        if (!shop)
            start(link);
        else
            follow(link);
        window.awaitPage(title);
        // The card's own page comes before what is fetched.
        window.await(QStringLiteral("section0"));
    }
    /// Every text of the page, one after the other.
    [[nodiscard]] QString words() const
    {
        return window.texts(window.await(QStringLiteral("page"))).join(QLatin1Char('\n'));
    }
    void openAllSections() const
    {
        for (QQuickItem* const header : window.findAll(QStringLiteral("header"))) {
            if (!header->parentItem()->property("expanded").toBool())
                window.click(header);
        }
    }
};

TEST_F(CuriositiesJourney, MarkupInATitleIsText)
{
    const QString title = QStringLiteral("<b>Bold</b> & <img src=x onerror=alert(1)>");
    openPiece(QStringLiteral("bold-markup-shirt"), title);
    for (const QString& name : {QStringLiteral("title"), QStringLiteral("tab0"), QStringLiteral("crumb1")}) {
        const bool isInPage = name == QStringLiteral("title");
        const QQuickItem* const place =
            window.await(name, isInPage ? window.await(QStringLiteral("buyColumn")) : nullptr);
        EXPECT_EQ(place->property("text").toString(), title) << name.toStdString();
    }
    for (const QQuickItem* const item : window.findAll(QString())) {
        if (item->inherits("QQuickText") && item->property("text").toString().contains(QLatin1Char('<')))
            EXPECT_EQ(item->property("textFormat").toInt(), static_cast<int>(Qt::PlainText));
    }
}

TEST_F(CuriositiesJourney, ADescriptionIsReadAndNotRun)
{
    openPiece(QStringLiteral("blazer-with-a-script-in-its-lining"),
              QStringLiteral("Blazer with a script in its lining"));
    openAllSections();
    const QString text = words();
    for (const char* const wanted :
         {"Read this first", "A paragraph that would like to run.", "A link that is a script, one that leaves",
          "5 < 6 && 7 > 6 — always.", "The end tags of this part are missing", "one", "two"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(wanted))) << wanted << " is not in " << text.toStdString();
    for (const char* const unwanted :
         {"document.title", "alert(", "display: none", "javascript:", "<script", "<p", "</"})
        EXPECT_FALSE(text.contains(QString::fromUtf8(unwanted))) << unwanted << " is in " << text.toStdString();
    // Its other fields are broken: they are left out, and the rest is there.
    EXPECT_EQ(window.find(QStringLiteral("reviews")), nullptr);
    EXPECT_EQ(window.find(QStringLiteral("rating")), nullptr);
    EXPECT_NE(window.find(QStringLiteral("size.M")), nullptr);
}

TEST_F(CuriositiesJourney, EveryOneOfThemHasItsCard)
{
    start(site + QStringLiteral("/collections/curiosities"));
    window.awaitPage(QStringLiteral("Curiosities"));
    window.awaitText(QStringLiteral("15 pieces"));
    QQuickItem* const grid = window.await(QStringLiteral("grid"));
    QSet<QString> titles;
    QSet<QString> designers;
    waitUntil(
        [&] {
            for (const QQuickItem* const card : window.findAll(QStringLiteral("card."), grid)) {
                titles.insert(card->property("title").toString());
                designers.insert(card->property("designer").toString());
            }
            window.scroll(grid, 300);
            return window.find(QStringLiteral("end")) != nullptr && titles.size() == 15;
        },
        "all of the collection is seen");
    EXPECT_TRUE(titles.contains(QString::fromUtf8("فستان حريري بقصّة مائلة")));
    EXPECT_TRUE(titles.contains(QString::fromUtf8("👗✨ Party dress 🎉 (really!) 👩🏽‍🎤")));
    EXPECT_TRUE(designers.contains(QString())) << "a piece without a maker";
    // All cards are of one height, whatever is written on them.
    QSet<double> heights;
    for (const QQuickItem* const card : window.findAll(QStringLiteral("card."), grid))
        heights.insert(card->height());
    EXPECT_EQ(heights.size(), 1);
}

TEST_F(CuriositiesJourney, TitlesOfOtherScriptsStandWhereTheyBelong)
{
    openPiece(QStringLiteral("silk-dress-in-arabic"), QString::fromUtf8("فستان حريري بقصّة مائلة"));
    // The page stays as it is, and so does the price.
    EXPECT_LT(window.await(QStringLiteral("sidebar"))->mapToScene({}).x(), 10);
    EXPECT_TRUE(accessibleName(window.await(QStringLiteral("price"), window.await(QStringLiteral("buyColumn"))))
                    .startsWith(QLatin1Char('$')));
    openPiece(QStringLiteral("party-dress"), QString::fromUtf8("👗✨ Party dress 🎉 (really!) 👩🏽‍🎤"));
    // A very long title and a very long maker keep to their column.
    follow(site + QStringLiteral("/products/long-title-coat"));
    waitUntil([this] { return window.window()->title().startsWith(QStringLiteral("The extraordinarily")); },
              "the coat's page is there");
    const QQuickItem* const column = window.await(QStringLiteral("buyColumn"));
    for (const QString& name : {QStringLiteral("title"), QStringLiteral("designer")}) {
        const QQuickItem* const text = window.await(name, column);
        EXPECT_LE(text->mapRectToItem(column, QRectF(0, 0, text->property("contentWidth").toDouble(), 1)).right(),
                  column->width())
            << name.toStdString();
    }
}

TEST_F(CuriositiesJourney, WhatIsNotThereLeavesNoGap)
{
    openPiece(QStringLiteral("skirt-without-a-maker"), QStringLiteral("Skirt without a maker"));
    EXPECT_EQ(window.find(QStringLiteral("designer"), window.await(QStringLiteral("buyColumn"))), nullptr);

    openPiece(QStringLiteral("dress-that-sold-out-overnight"), QStringLiteral("Dress that sold out overnight"));
    window.awaitText(QStringLiteral("Sold out"), window.await(QStringLiteral("gallery")));
    EXPECT_EQ(accessibleName(window.await(QStringLiteral("size.M"))), QStringLiteral("M, sold out"));

    openPiece(QStringLiteral("coat-from-the-future"), QStringLiteral("Coat from the future"));
    window.awaitText(QStringLiteral("Ships from 29 February"), window.await(QStringLiteral("presale")));

    openPiece(QStringLiteral("sample-that-costs-nothing"), QStringLiteral("Sample that costs nothing"));
    EXPECT_EQ(accessibleName(window.await(QStringLiteral("price"), window.await(QStringLiteral("buyColumn")))),
              QStringLiteral("$0.00"));

    // One variant that stands for the piece itself is nothing to choose from; and it has no description.
    follow(site + QStringLiteral("/products/gift-wrapping"));
    window.awaitPage(QStringLiteral("Gift wrapping"));
    window.await(QStringLiteral("price"), window.await(QStringLiteral("buyColumn")));
    EXPECT_FALSE(words().contains(QStringLiteral("Default Title")));
    EXPECT_EQ(window.find(QStringLiteral("section0")), nullptr);
}

TEST_F(CuriositiesJourney, PicturesThatAreMissingLostOrTornLeaveThePageWhole)
{
    openPiece(QStringLiteral("shirt-nobody-photographed"), QStringLiteral("Shirt nobody photographed"));
    EXPECT_EQ(window.find(QStringLiteral("counter")), nullptr);
    window.awaitFocus(QStringLiteral("gallery"));
    window.press(QStringLiteral("Return"));
    window.press(QStringLiteral("Right"));
    EXPECT_EQ(window.find(QStringLiteral("lightbox")), nullptr);

    for (const auto& [handle, title] : {std::pair("knit-with-a-lost-picture", "Knit with a lost picture"),
                                        std::pair("bag-with-a-torn-picture", "Bag with a torn picture")}) {
        openPiece(QString::fromLatin1(handle), QString::fromLatin1(title));
        const QQuickItem* const lost = window.await(QStringLiteral("picture0"));
        waitUntil([lost] { return lost->property("broken").toBool(); }, "the picture is known to be lost");
        waitUntil([this] { return window.await(QStringLiteral("picture1"))->property("ready").toBool(); },
                  "the next picture is there");
        // Enlarged it says so too, and the next one is there.
        window.click(QStringLiteral("picture0"));
        const QQuickItem* const lightbox = window.await(QStringLiteral("lightbox"));
        window.press(QStringLiteral("Right"));
        window.await(QStringLiteral("picture"), lightbox);
        window.press(QStringLiteral("Esc"));
        window.awaitGone(QStringLiteral("lightbox"));
    }
}

} // namespace

} // namespace loom
