#include "commerce/CartStore.h"
#include "commerce/WishlistStore.h"
#include "kit/StylistJourney.h"
#include "stylist/MiraLookModel.h"
#include "stylist/MiraWeatherStore.h"

namespace loom
{

namespace
{

const QString dress = QStringLiteral("Sabine bias slip dress");
const QString dressPage = QStringLiteral("/products/sabine-bias-slip-dress");
const QString blazer = QStringLiteral("linden-tailored-blazer");
const QString ines = QStringLiteral("ines.marinho@example.com");

/// From a piece to a conversation about it, and from there to the checkout.
class MiraJourney : public StylistJourney
{
};

TEST_F(MiraJourney, AConversationEndsWithALookInTheBagInTheRightSizes)
{
    tolerateEngine();
    start(dressPage);
    window.awaitPage(dress);
    signIn();
    window.click(QStringLiteral("styleProduct"));
    window.awaitText(dress, window.await(QStringLiteral("context.product")));
    waitUntil([this] { return field(window)->hasActiveFocus() && !mira().isLoading(); }, "she is there");
    window.press(QStringLiteral("Return"));
    awaitAnswer();
    EXPECT_EQ(lastBody(), QStringLiteral("Help me style this: Sabine bias slip dress\n") + dressPage);
    const QJsonObject sent = lastMessage();
    EXPECT_EQ(sent[u"attachments"][0][u"handle"], QStringLiteral("sabine-bias-slip-dress"));
    EXPECT_EQ(sent[u"email"], ines);
    EXPECT_EQ(sent[u"name"], QStringLiteral("Ines Marinho"));
    EXPECT_TRUE(sent.contains(u"customer"));
    EXPECT_EQ(timesShown(QStringLiteral("Help me style this: Sabine bias slip dress")), 1);
    window.awaitGone(QStringLiteral("context.product"));

    // She asks for the shopper's measurements, and the sheet for them is at hand.
    sayAndAwait(QStringLiteral("Which size should I take?"));
    window.click(QStringLiteral("measurements"));
    window.click(window.await(QStringLiteral("segment1"), window.await(QStringLiteral("measurementsSheet"))));
    fill(QStringLiteral("feet"), QStringLiteral("2"));
    fill(QStringLiteral("inches"), QStringLiteral("7"));
    fill(QStringLiteral("weight"), QStringLiteral("137"));
    window.click(QStringLiteral("sendMeasurements"));
    window.awaitText(QStringLiteral("That height or weight doesn't look right. Check the numbers and the units."));
    fill(QStringLiteral("feet"), QStringLiteral("5"));
    window.press(QStringLiteral("Return"));
    window.awaitGone(QStringLiteral("measurementsSheet"));
    awaitAnswer();
    EXPECT_EQ(lastBody(), QStringLiteral("📏 My measurements: height 170.2cm, weight 62.1kg, I prefer a regular fit. "
                                         "What size should I take?"));

    // Back to the look: its sizes are those that suit her.
    window.click(QStringLiteral("look"));
    QQuickItem* const sheet = window.await(QStringLiteral("lookSheet"));
    QList<QQuickItem*> pieces;
    const auto isAdvised = [](const QQuickItem* piece) {
        return piece->property("phase").toInt() == static_cast<int>(MiraLookModel::Phase::Ready) &&
               (piece->property("sizes").toList().size() < 2 ||
                !piece->property("recommendedSize").toString().isEmpty());
    };
    waitUntil(
        [&] {
            pieces = window.findAll(QStringLiteral("lookPiece."), sheet);
            return pieces.size() > 1 && std::ranges::all_of(pieces, isAdvised);
        },
        "there is advice for every piece");
    for (const QQuickItem* const piece : std::as_const(pieces)) {
        for (const QQuickItem* const size : window.findAll(QStringLiteral("size."), piece)) {
            const bool isWanted = size->property("recommended").toBool() && !size->property("soldOut").toBool();
            EXPECT_EQ(size->property("selected").toBool(), isWanted) << size->objectName().toStdString();
        }
    }
    // One is chosen by hand, one stays away.
    QList<QQuickItem*> others = window.findAll(QStringLiteral("size."), pieces.front());
    others.removeIf([](const QQuickItem* size) {
        return size->property("selected").toBool() || size->property("soldOut").toBool();
    });
    ASSERT_FALSE(others.isEmpty());
    const QString byHand = others.front()->objectName().mid(5);
    window.click(others.front());
    EXPECT_EQ(pieces.front()->property("chosenSize"), byHand);
    window.click(window.await(QStringLiteral("leaveOut"), pieces.last()));
    EXPECT_TRUE(window.shows(QStringLiteral("%1 of %2 pieces").arg(pieces.size() - 1).arg(pieces.size()), sheet));
    QMap<QString, QString> wanted;
    for (const QQuickItem* const piece : pieces.first(pieces.size() - 1))
        wanted.insert(piece->property("handle").toString(), piece->property("chosenSize").toString());
    const QQuickItem* const action = window.await(QStringLiteral("lookAction"));
    window.click(QStringLiteral("lookAction"));
    waitUntil([action] { return action->property("paying").toBool(); }, "the look is in the bag");
    EXPECT_EQ(store.count(QStringLiteral("CartCreate")), 1);
    EXPECT_EQ(store.count(QStringLiteral("CartLinesAdd")), 1) << "all of it goes in at once";
    QMap<QString, QString> bought;
    for (const CartLine& line : shop->model().cartStore().cart()->lines) {
        EXPECT_EQ(line.quantity, 1);
        const auto size = std::ranges::find(line.selectedOptions, QStringLiteral("Size"), &SelectedOption::name);
        bought.insert(line.productHandle, size == line.selectedOptions.end() ? QString() : size->value);
    }
    EXPECT_EQ(bought, wanted);

    waitUntil([action] { return !action->property("locked").toBool(); }, "a double click is over");
    window.click(QStringLiteral("lookAction"));
    const WindowDriver checkout = shop->checkoutWindow();
    checkout.awaitGone(QStringLiteral("opening"));
    window.awaitGone(QStringLiteral("lookSheet"));
}

TEST_F(MiraJourney, WhatTheShopperCannotSeeInTheirWordsGoesAlongByteForByte)
{
    start(dressPage);
    window.awaitPage(dress);
    for (const ProductVariant& variant : shop->variants(blazer)) {
        if (variant.availableForSale && !shop->model().cartStore().cart()) {
            shop->leaveCart({{.merchandiseId = variant.id, .quantity = 1}});
            shop->model().cartStore().refresh();
            waitUntil([this] { return shop->model().cartStore().cart().has_value(); }, "the bag is there");
        }
    }
    window.click(QStringLiteral("saveProduct"));
    openDock();
    window.click(QStringLiteral("weather"));
    fill(QStringLiteral("city"), QStringLiteral("Nowhere at all"));
    window.press(QStringLiteral("Return"));
    waitUntil([this] { return !shop->model().weather()->failure().isEmpty(); }, "there is no such city");
    fill(QStringLiteral("city"), QStringLiteral("nyc"));
    window.press(QStringLiteral("Return"));
    window.awaitText(QStringLiteral("6 °C · New York"), window.await(QStringLiteral("context.weather")));
    window.press(QStringLiteral("Esc"));
    window.awaitGone(QStringLiteral("shareWeather"));
    window.click(QStringLiteral("wardrobe"));
    window.click(QStringLiteral("piece.") + blazer);
    window.click(QStringLiteral("piece.sabine-bias-slip-dress"));
    window.click(QStringLiteral("doneWardrobe"));
    window.awaitGone(QStringLiteral("miraWardrobe"));
    sayAndAwait(QStringLiteral("What is missing?"));
    const QString weather = QStringLiteral("[Weather: 6°C Partly cloudy in New York]");
    EXPECT_EQ(lastBody(),
              QStringLiteral("What is missing?\n\n[MY WARDROBE — style me using THESE pieces first, only suggest "
                             "something new if a slot is truly missing: Linden tailored blazer [outerwear/cart]; "
                             "Sabine bias slip dress [dress/wishlist]]\n") +
                  weather);
    EXPECT_EQ(timesShown(QStringLiteral("What is missing?")), 1);
    // A guest tells no more than this.
    EXPECT_EQ(lastMessage().keys(), QStringList({"attachments", "body", "guide", "lang", "visitorId", "visitorToken"}));

    // What is taken away stays away.
    window.click(QStringLiteral("context.wardrobe"));
    mira().anchorLook(blazer, QStringLiteral("Linden [tailored] blazer"));
    window.await(QStringLiteral("context.anchor"));
    sayAndAwait(QStringLiteral("And around it?"));
    EXPECT_EQ(lastBody(),
              QStringLiteral("And around it?\n[Build the look around: Linden (tailored) blazer]\n") + weather);
    window.click(QStringLiteral("context.anchor"));
    window.click(QStringLiteral("context.weather"));
    sayAndAwait(QStringLiteral("Only this"));
    EXPECT_EQ(lastBody(), QStringLiteral("Only this"));
}

} // namespace

} // namespace loom
