#include "commerce/BuyModel.h"

#include "CartFixture.h"
#include "catalog/ProductModel.h"

using namespace loom;
using namespace std::chrono_literals;

namespace
{

const QString size = QStringLiteral("Size");
const QString small = QStringLiteral("S");

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
