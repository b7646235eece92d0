#include "kit/Journey.h"

namespace loom
{

namespace
{

using SearchJourney = Journey;

TEST_F(SearchJourney, ALetterAnywhereBeginsASearchThatTheKeysFinish)
{
    start(QStringLiteral("https://www.loomstreet.example/collections/knitwear"));
    window.awaitPage(QStringLiteral("Knitwear"));
    window.type(QStringLiteral("dres"));
    EXPECT_EQ(window.focusName(), QStringLiteral("input"));
    window.await(QStringLiteral("suggestedPiece0"));
    window.press(QStringLiteral("Esc"));
    window.awaitGone(QStringLiteral("query0"));
    EXPECT_EQ(window.focusName(), QStringLiteral("input")); // first the suggestions close, then the text goes
    window.press(QStringLiteral("Down"));
    window.await(QStringLiteral("query1"));
    window.press(QStringLiteral("Down"));
    window.press(QStringLiteral("Return"));
    window.awaitGone(QStringLiteral("query0"));
    window.awaitText(QStringLiteral("25 results for “silk dress”"));

    // It is suggested again, until it is taken out; a link leaves no trace.
    window.press(QStringLiteral("Ctrl+K"));
    window.await(QStringLiteral("recent0"));
    window.press(QStringLiteral("Down"));
    window.press(QStringLiteral("Delete"));
    window.awaitGone(QStringLiteral("recent0"));
    window.type(QStringLiteral("/products/sabine-bias-slip-dress"));
    window.press(QStringLiteral("Return"));
    window.awaitPage(QStringLiteral("Sabine bias slip dress"));
    window.press(QStringLiteral("Ctrl+K"));
    window.await(QStringLiteral("suggestedPiece0"));
    EXPECT_FALSE(window.find(QStringLiteral("recent0")));
}

TEST_F(SearchJourney, AnotherMarketIsAnotherPriceOnEveryPage)
{
    start(QStringLiteral("https://www.loomstreet.example/products/sabine-bias-slip-dress"));
    window.awaitPage(QStringLiteral("Sabine bias slip dress"));
    window.awaitText(QStringLiteral("$248.00"));
    window.click(QStringLiteral("market"));
    window.awaitFocus(QStringLiteral("filter"));
    window.type(QStringLiteral("jpy"));
    window.press(QStringLiteral("Return"));
    window.awaitNoText(QStringLiteral("$248.00"));
    window.awaitText(QStringLiteral("Japan · JPY"));
    window.press(QStringLiteral("Ctrl+Up"));
    window.awaitPage(QStringLiteral("Explore"));
    window.awaitText(QStringLiteral("¥52,300"));
}

} // namespace

} // namespace loom
