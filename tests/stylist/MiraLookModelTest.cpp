#include "stylist/MiraLookModel.h"

#include "base/Announcements.h"
#include "commerce/CheckoutStarter.h"
#include "net/WidgetClient.h"
#include "stylist/MiraSizeAPI.h"

#include "commerce/CartFixture.h"
#include "support/Printing.h"

namespace loom
{

namespace
{

using Phase = MiraLookModel::Phase;

class MiraLookModelTest : public CartFixture
{
protected:
    ~MiraLookModelTest() override
    {
        look.reset();
        starter.reset();
    }

    /// A dress in ink, S for $260 and M for $255, whose variants are called after it: "a-S" and "a-M".
    static QJsonValue piece(const QString& handle)
    {
        QJsonValue product = changed(productJson(handle), "title", "Piece " + handle);
        product = changed(product, "id", "gid://shopify/Product/" + handle);
        for (const auto& [place, size] : {std::pair(0, "red"), std::pair(1, "S"), std::pair(2, "M")})
            product = changed(product, QStringLiteral("variants.nodes[%1].id").arg(place), handle + '-' + size);
        return product;
    }
    static QJsonObject found(const QJsonValue& product) { return {{QStringLiteral("product"), product}}; }
    void tell(const QString& handle, const QJsonValue& product)
    {
        answer("Product " + handle, envelope(found(product)));
    }
    void advise(Answer answer) { server.expect("POST /api/support/widget/size-reco", std::move(answer)); }
    void open(const QStringList& handles)
    {
        look = std::make_unique<MiraLookModel>(handles, MiraLookModel::Services{.catalog = api,
                                                                                .sizes = sizes,
                                                                                .cart = *store,
                                                                                .checkout = *starter,
                                                                                .market = market,
                                                                                .money = money});
        QObject::connect(look.get(), &MiraLookModel::added, look.get(),
                         [this](const QStringList& handles) { added.append(handles.join('+')); });
        QObject::connect(look.get(), &MiraLookModel::checkoutShown, look.get(), [this] { ++checkouts; });
    }
    /// With pieces that have come, of which the size service knows nothing.
    void openWith(const QStringList& handles)
    {
        const std::size_t before = sent();
        for (const QString& handle : handles) {
            tell(handle, piece(handle));
            advise(Answer::json({}));
        }
        open(handles);
        settle(before + 2 * static_cast<std::size_t>(handles.size()));
    }
    [[nodiscard]] QVariant role(int row, const char* name) const
    {
        return look->data(look->index(row), look->roleNames().key(name));
    }
    [[nodiscard]] Phase phase(int row) const { return static_cast<Phase>(role(row, "phase").toInt()); }
    [[nodiscard]] QStringList alternatives(int row) const
    {
        QStringList handles;
        for (const QVariant& other : role(row, "alternatives").toList())
            handles.append(other.toMap().value("handle").toString());
        return handles;
    }

    Announcements announcements;
    WidgetClient widget{server.base(), QStringLiteral("key-1"), transport, session, random};
    MiraSizeAPI sizes{widget, [] {
                          return CallerIdentity{.visitorId = "v-1", .customer = {}, .email = {}, .name = {}};
                      }};
    std::unique_ptr<CheckoutStarter> starter = std::make_unique<CheckoutStarter>(
        widget, *store, QStringLiteral("https://back.example"),
        CheckoutModel::Services{
            .clock = time, .announcements = announcements, .openExternally = [](const QUrl&) {}, .appVersion = "1"},
        CheckoutStarter::Questions{.locale = [] { return QStringLiteral("EN"); },
                                   .sessionKnown = [](std::stop_token) -> QCoro::Task<> { co_return; },
                                   .mayHandOver = {},
                                   .appToken =
                                       [] {
                                           return QString();
                                       }});
    std::unique_ptr<MiraLookModel> look;
    QStringList added;
    int checkouts = 0;
};

TEST_F(MiraLookModelTest, ALookIsAddedInOneStepOnceEverySizeIsChosen)
{
    show({});
    tell("a", piece("a"));
    tell("b", piece("b"));
    advise(Answer::json({{"recommendedSize", "m"}}));
    advise(Answer::json({{"recommendedSize", "m"}}));
    open({"a", "b", "a", ""});
    EXPECT_EQ(look->count(), 2);
    EXPECT_TRUE(look->isLoading());
    EXPECT_FALSE(look->canAdd());
    EXPECT_EQ(look->total(), "");
    settle(5);
    EXPECT_EQ(role(0, "chosenSize"), "M");
    EXPECT_EQ(look->total(), "$510.00");
    EXPECT_EQ(look->formerTotal(), "");

    tell("a", piece("a"));
    tell("c", piece("c"));
    advise(Answer::body("", 500));
    advise(Answer::body("", 500));
    open({"a", "c"});
    settle(9);
    EXPECT_EQ(look->sizesText(), "");
    look->chooseSize(0, "S");
    EXPECT_EQ(look->formerTotal(), "$565.00"); // S is reduced from 310
    look->add();
    EXPECT_EQ(look->sizesText(), "Choose sizes for Piece c");
    EXPECT_TRUE(role(1, "lacksSize").toBool());
    EXPECT_FALSE(look->isAdding());
    look->chooseSize(1, "M");
    EXPECT_EQ(look->sizesText(), "");

    answer("CartLinesAdd", changedTo(cartJson({{"one", "a-S", 1}, {"two", "c-M", 1}})));
    look->add();
    look->add();
    settle(10);
    EXPECT_EQ(lastVariables().value("lines"),
              json(R"([{"merchandiseId": "a-S", "quantity": 1}, {"merchandiseId": "c-M", "quantity": 1}])"));
    EXPECT_EQ(added, QStringList("a+c"));
    EXPECT_TRUE(look->isInCart());
    EXPECT_FALSE(look->canAdd());

    // In another size it is another purchase, and what is taken out of the cart can be put there again.
    look->chooseSize(1, "S");
    EXPECT_TRUE(look->canAdd());
    look->chooseSize(1, "M");
    EXPECT_TRUE(look->isInCart());
    answer("CartLinesRemove", changedTo(cartJson({{"one", "a-S", 1}})));
    store->remove("two");
    settle(11);
    EXPECT_TRUE(role(0, "isInCart").toBool());
    EXPECT_FALSE(role(1, "isInCart").toBool());
    EXPECT_TRUE(look->canAdd());
}

TEST_F(MiraLookModelTest, WhatTheCartHasNoneOfIsSaidAndTheRestIsAdded)
{
    show({});
    openWith({"a", "b"});
    look->chooseSize(0, "S");
    look->chooseSize(1, "S");
    answer("CartLinesAdd", Answer::body("", 500));
    look->add();
    settle(6);
    EXPECT_EQ(look->failure(), "LOOMSTREET is having trouble right now. Try again shortly.");
    EXPECT_EQ(added, QStringList());

    answer("CartLinesAdd", changedTo(cartJson({{"one", "a-S", 1}, {"two", "b-S", 0}})));
    look->add();
    EXPECT_EQ(look->failure(), "");
    settle(7);
    EXPECT_EQ(look->soldOutText(), "Sold out meanwhile and not added: Piece b");
    EXPECT_EQ(added, QStringList("a"));
    EXPECT_FALSE(look->isInCart());
    look->add();
    EXPECT_EQ(look->sizesText(), "Choose sizes for Piece b");
    look->chooseSize(1, "M");
    answer("CartLinesAdd", changedTo(cartJson({{"one", "a-S", 1}, {"three", "b-M", 1}})));
    look->add();
    settle(8);
    EXPECT_EQ(lastVariables().value("lines").toArray().size(), 1);
    EXPECT_TRUE(look->isInCart());
    EXPECT_EQ(look->soldOutText(), "");
}

TEST_F(MiraLookModelTest, ACheckoutThatDoesNotBeginIsWordedForTheLook)
{
    show({});
    openWith({"a"});
    look->chooseSize(0, "S");
    answer("CartLinesAdd", changedTo(cartJson({{"one", "a-S", 1}})));
    look->add();
    settle(4);
    server.expect("POST /api/support/widget/shopify-checkout/prepare", Answer::drop());
    look->startCheckout();
    EXPECT_TRUE(look->isStartingCheckout());
    settle(5);
    EXPECT_EQ(look->failure(), "Couldn't start checkout. Check your connection and try again.");
    EXPECT_EQ(starter->cartErrorText(), "");
    EXPECT_FALSE(look->isStartingCheckout());
    EXPECT_EQ(checkouts, 0);
    server.expect("POST /api/support/widget/shopify-checkout/prepare", Answer::body("{}", 404));
    look->startCheckout();
    EXPECT_EQ(look->failure(), "");
    settle(6);
    EXPECT_EQ(checkouts, 1);
    EXPECT_TRUE(starter->isPayingCart());
    // One that the cart begins is no concern of the look's.
    starter->start({.url = store->cart()->checkoutURL, .fromCart = true});
    EXPECT_EQ(checkouts, 1);
}

TEST_F(MiraLookModelTest, OnlyWhatCanBeBoughtCounts)
{
    QJsonValue soldOut = piece("d");
    for (int variant = 0; variant < 3; ++variant)
        soldOut = changed(soldOut, QStringLiteral("variants.nodes[%1].availableForSale").arg(variant), false);
    tell("a", piece("a"));
    advise(Answer::json({{"recommendedSize", "M"}}));
    tell("b", QJsonValue());
    answer("Product c", graphQLError("no"));
    tell("d", soldOut);
    open({"a", "b", "c", "d"});
    settle(5);
    EXPECT_EQ(phase(0), Phase::Ready);
    EXPECT_EQ(phase(1), Phase::Missing);
    EXPECT_EQ(phase(2), Phase::Failed);
    EXPECT_EQ(phase(3), Phase::SoldOut);
    EXPECT_NE(role(2, "errorText"), "");
    EXPECT_EQ(look->pieces(), 1);
    EXPECT_EQ(look->total(), "$255.00");
    EXPECT_TRUE(look->hasFailed());
    EXPECT_TRUE(look->canAdd());
    tell("c", piece("c"));
    advise(Answer::json({}));
    look->retry();
    EXPECT_FALSE(look->canAdd());
    settle(7);
    EXPECT_EQ(look->total(), "$510.00");
    look->setLeftOut(0, true);
    look->setLeftOut(2, true);
    EXPECT_EQ(look->pieces(), 0);
    EXPECT_FALSE(look->canAdd());
    look->add();
    EXPECT_EQ(look->sizesText(), "");
    look->setLeftOut(0, false);
    EXPECT_EQ(role(0, "chosenSize"), "M");
}

TEST_F(MiraLookModelTest, APieceIsSwappedForOneLikeIt)
{
    openWith({"a", "b"});
    answer("Recommendations", graphQLError("no"));
    look->seekAlternatives(0);
    look->seekAlternatives(0);
    EXPECT_TRUE(role(0, "isSeeking").toBool());
    settle(5);
    EXPECT_FALSE(role(0, "isSeeking").toBool());
    EXPECT_NE(role(0, "seekErrorText"), "");
    const QJsonValue gone = changed(cardJson("gone"), "availableForSale", false);
    answer("Recommendations",
           QJsonObject{{"productRecommendations",
                        QJsonArray{cardJson("x"), cardJson("b"), cardJson("a"), gone, cardJson("x"), cardJson("y")}}});
    look->seekAlternatives(0);
    settle(6);
    EXPECT_EQ(lastVariables().value("productId"), "gid://shopify/Product/a");
    EXPECT_EQ(alternatives(0), (QStringList{"x", "y"}));
    look->seekAlternatives(0); // they are all there are

    // The first answer comes too late.
    answer("Product x", envelope(found(piece("x"))).pauseAfter(0));
    look->swap(0, "b"); // stands in the look already
    look->swap(0, "x");
    EXPECT_EQ(role(0, "title"), "Silk dress"); // as its card says
    EXPECT_EQ(phase(0), Phase::Loading);
    EXPECT_EQ(alternatives(0), (QStringList{"a", "y"}));
    server.waitForRequests(7);
    tell("y", piece("y"));
    advise(Answer::json({{"recommendedSize", "S"}}));
    look->swap(0, "y");
    settle(9);
    server.proceed();
    drainEvents();
    EXPECT_EQ(role(0, "title"), "Piece y");
    EXPECT_EQ(role(0, "chosenSize"), "S");
    EXPECT_TRUE(role(0, "isSwapped").toBool());
    tell("a", piece("a"));
    advise(Answer::json({}));
    look->swap(0, "a");
    settle(11);
    EXPECT_FALSE(role(0, "isSwapped").toBool());
    EXPECT_EQ(alternatives(0), (QStringList{"x", "y"}));
}

TEST_F(MiraLookModelTest, AnotherMarketHasOtherPrices)
{
    openWith({"a"});
    look->chooseSize(0, "S");
    QJsonValue there =
        changed(piece("a"), "variants.nodes[1].price", json(R"({"amount": "240", "currencyCode": "EUR"})"));
    tell("a", there);
    advise(Answer::json({}));
    answer("RateSample DE", Answer::drop());
    answer("RateSample US", Answer::drop());
    market.setCountry("DE");
    settle(6);
    EXPECT_EQ(look->total(), "€240.00");
    EXPECT_EQ(role(0, "chosenSize"), "S");
}

TEST_F(MiraLookModelTest, ThePageMayGoAtAnyTime)
{
    show({});
    openWith({"a"});
    look->chooseSize(0, "S");
    answer("Recommendations", Answer::silence());
    answer("CartLinesAdd", changedTo(cartJson({{"one", "a-S", 1}})).pauseAfter(0));
    look->seekAlternatives(0);
    look->add();
    server.waitForRequests(5);
    look.reset();
    server.proceed();
    waitUntil([this] { return shown() == "one:1"; }, "the cart has it all the same");
    answer("Product b", Answer::silence());
    open({"b"});
    server.waitForRequests(6);
    look.reset();
    EXPECT_EQ(clock.sleepers(), 0);
}

} // namespace

} // namespace loom
