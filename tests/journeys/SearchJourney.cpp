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
    window.awaitText(QStringLiteral("24 results for “silk dress”"));

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

} // namespace

} // namespace loom
