#include "commerce/BuyModel.h"

#include "CartFixture.h"
#include "catalog/ProductModel.h"

using namespace loom;
using namespace std::chrono_literals;

namespace
{

const QString size = QStringLiteral("Size");
const QString small = QStringLiteral("S");
const QString variant = QStringLiteral("gid://shopify/ProductVariant/2");

class BuyModelTest : public CartFixture
{
protected:
    ~BuyModelTest() override { buy.reset(); }

    void load(const QJsonValue& json)
    {
        answer("Product", QJsonObject{{QStringLiteral("product"), json}});
        product.reload();
        waitUntil([this] { return !product.isLoading(); }, "the piece has come");
    }
    [[nodiscard]] QString message() const { return buy->property("message").toString(); }

    QJsonObject dress = productJson(QStringLiteral("silk"));
    ProductModel product{QStringLiteral("silk"), {}, 99, api, market, preferences, money, clock};
    std::unique_ptr<BuyModel> buy = std::make_unique<BuyModel>(product, *store, time);
};

TEST_F(BuyModelTest, NothingIsBoughtBeforeEverythingIsChosen)
{
    EXPECT_FALSE(buy->canBuy()); // there is no piece yet
    buy->add();
    buy->buyNow();
    EXPECT_EQ(message(), QString());
    load(dress); // its first colour that can be bought is chosen
    EXPECT_TRUE(buy->canBuy());
    EXPECT_EQ(buy->missingOption(), size);
    for (const auto& act : {&BuyModel::add, &BuyModel::buyNow}) {
        (buy.get()->*act)();
        EXPECT_EQ(message(), QStringLiteral("Choose a size first."));
        EXPECT_FALSE(buy->isAdding() || buy->isBuying());
        product.choose(size, small);
        EXPECT_EQ(message(), QString());
        EXPECT_EQ(buy->missingOption(), QString());
        product.choose(size, small); // taken back
    }
    product.choose(size, small);
    product.choose(QStringLiteral("Colour"), QStringLiteral("Red")); // sold out
    EXPECT_FALSE(buy->canBuy());
    buy->add();
    EXPECT_EQ(sent(), 1U);
}

TEST_F(BuyModelTest, WhatWasAddedIsSaidForAWhile)
{
    load(dress);
    product.choose(size, small);
    const auto told = emissions(*buy, &BuyModel::added);
    answer("CartCreate", changedTo(cartJson()));
    answer("CartLinesAdd", changedTo(cartJson({{"one", "gid://shopify/ProductVariant/2", 1}})));
    buy->add();
    EXPECT_TRUE(buy->isAdding());
    buy->add(); // one click too many
    settle(3);
    EXPECT_EQ(bytes(lastVariables().value(QStringLiteral("lines"))),
              R"([{"merchandiseId":"gid://shopify/ProductVariant/2","quantity":1}])");
    EXPECT_FALSE(buy->isAdding());
    EXPECT_TRUE(buy->wasAdded());
    EXPECT_EQ(*told, 1);
    time.advance(3999ms);
    EXPECT_TRUE(buy->wasAdded());
    time.advance(1ms);
    EXPECT_FALSE(buy->wasAdded());

    answer("CartLinesAdd", changedTo(cartJson({{"one", "gid://shopify/ProductVariant/2", 2}})));
    buy->add();
    settle(4);
    EXPECT_TRUE(buy->wasAdded());
    product.choose(size, QStringLiteral("M")); // something else
    EXPECT_FALSE(buy->wasAdded());
}

TEST_F(BuyModelTest, WhatIsInTheWayIsSaid)
{
    load(dress);
    product.choose(size, small);
    show({});
    answer("CartLinesAdd", Answer::body("", 500));
    buy->add();
    settle(3);
    EXPECT_EQ(message(), QStringLiteral("LOOMSTREET is having trouble right now. Try again shortly."));
    answer("CartLinesAdd", changedTo(cartJson({{"one", "gid://shopify/ProductVariant/2", 0}})));
    buy->add();
    EXPECT_EQ(message(), QString());
    settle(4);
    EXPECT_EQ(message(), QStringLiteral("Sold out"));
    EXPECT_FALSE(buy->wasAdded());

    network.setOffline(true);
    answer("CartCreate", Answer::drop());
    buy->buyNow();
    settle(5);
    EXPECT_EQ(message(), QStringLiteral("You appear to be offline. Check your connection and try again."));
}

TEST_F(BuyModelTest, BuyingAtOnceMakesACartOfItsOwn)
{
    load(dress);
    product.choose(size, small);
    std::vector<QUrl> wanted;
    QObject::connect(buy.get(), &BuyModel::checkoutWanted, buy.get(), [&](const QUrl& url) { wanted.push_back(url); });
    answer("CartCreate", changedTo(cartJson({{"one", "gid://shopify/ProductVariant/2", 1}}, cartB)));
    buy->buyNow();
    buy->buyNow();
    EXPECT_TRUE(buy->isBuying());
    settle(2);
    EXPECT_FALSE(buy->isBuying());
    EXPECT_EQ(bytes(lastVariables().value(QStringLiteral("input")).toObject().value(QStringLiteral("lines"))),
              R"([{"merchandiseId":"gid://shopify/ProductVariant/2","quantity":1}])");
    EXPECT_THAT(wanted, testing::ElementsAre(QUrl(QStringLiteral("https://shop.example/cart/c/a?key=1"))));
    EXPECT_EQ(remembered(), QString());
    EXPECT_EQ(shown(), "none");

    for (const std::vector<Goods>& goods :
         {std::vector<Goods>{}, std::vector<Goods>{{"one", "gid://shopify/ProductVariant/2", 0}}}) {
        answer("CartCreate", changedTo(cartJson(goods, cartB)));
        buy->buyNow();
        settle(sent() + 1);
        EXPECT_EQ(message(), QStringLiteral("Sold out"));
    }
    EXPECT_EQ(wanted.size(), 1U);
}

TEST_F(BuyModelTest, ThePageMayGoAtAnyTime)
{
    load(dress);
    product.choose(size, small);
    show({});
    answer("CartLinesAdd", changedTo(cartJson({{"one", "gid://shopify/ProductVariant/2", 1}})).pauseAfter(0));
    answer("CartCreate", changedTo(cartJson({}, cartB)).pauseAfter(0));
    buy->add();
    buy->buyNow();
    server.waitForRequests(4);
    buy.reset();
    server.proceed();
    settle(4);
    EXPECT_EQ(shown(), "one:1"); // the cart has it all the same
    time.advance(4s);

    // Even when it is told of its own news.
    buy = std::make_unique<BuyModel>(product, *store, time);
    answer("CartLinesAdd", changedTo(cartJson({{"one", "gid://shopify/ProductVariant/2", 2}})));
    buy->add();
    QObject::connect(buy.get(), &BuyModel::changed, store.get(), [this] {
        if (buy && !buy->isAdding())
            buy.reset();
    });
    waitUntil([this] { return !buy; }, "the model is gone");
}

} // namespace
