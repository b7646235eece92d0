#include "stylist/SizeAdviceModel.h"

#include "catalog/ProductModel.h"
#include "net/WidgetClient.h"
#include "stylist/MiraSizeAPI.h"

#include "support/Printing.h"
#include "support/ShopFixture.h"

namespace loom
{

namespace
{

class SizeAdviceModelTest : public ShopFixture
{
protected:
    void load(const QJsonValue& json = productJson(QStringLiteral("silk")))
    {
        answer("Product", QJsonObject{{QStringLiteral("product"), json}});
        product->reload();
        waitUntil([this] { return !product->isLoading(); }, "the piece has come");
    }
    void expect(Answer answer) { server.expect("POST /api/support/widget/size-reco", std::move(answer)); }
    void settle(std::size_t requests)
    {
        server.waitForRequests(requests);
        waitUntil([this] { return clock.sleepers() == 0; }, "every answer has arrived");
        drainEvents();
    }

    WidgetClient widget{server.base(), QStringLiteral("key-1"), transport, session, random};
    MiraSizeAPI sizes{widget, [] {
                          return CallerIdentity{.visitorId = "v-1", .customer = {}, .email = {}, .name = {}};
                      }};
    std::unique_ptr<ProductModel> product =
        std::make_unique<ProductModel>("silk", std::nullopt, 99, api, market, preferences, money, clock);
    std::unique_ptr<SizeAdviceModel> advice = std::make_unique<SizeAdviceModel>(*product, sizes, market);
};

TEST_F(SizeAdviceModelTest, AdviceIsAskedForOnceAndCanBeTaken)
{
    expect(Answer::json({{"recommendedSize", "m"}}));
    load();
    settle(2);
    EXPECT_EQ(server.requests().back().json().value("locale"), "en");
    EXPECT_EQ(advice->recommendedSize(), "M");
    EXPECT_EQ(advice->option(), "Size");
    EXPECT_TRUE(advice->isAvailable());
    EXPECT_FALSE(advice->isChosen());
    product->choose("Colour", "Red"); // of which there is no M
    EXPECT_FALSE(advice->isAvailable());
    product->choose("Colour", "Ink");
    advice->choose();
    EXPECT_TRUE(advice->isChosen());
    advice->choose(); // would take it back
    EXPECT_EQ(product->selection().value("Size"), "M");
    load();
    settle(3);
    EXPECT_TRUE(advice->isChosen());
}

TEST_F(SizeAdviceModelTest, WhereThereIsNoAdviceNothingIsSaid)
{
    for (const Answer& none : {Answer::body("", 500), Answer::body("[]"), Answer::json({}),
                               Answer::json({{"recommendedSize", "44"}}), Answer::drop()}) {
        expect(none);
        advice = std::make_unique<SizeAdviceModel>(*product, sizes, market);
        const std::size_t before = sent();
        if (!product->isComplete())
            load();
        settle(before + (before == 0 ? 2 : 1));
        EXPECT_FALSE(advice->isKnown());
        EXPECT_FALSE(advice->isAvailable());
        advice->choose();
        EXPECT_EQ(product->selection().value("Size"), "");
    }
    // One size needs none.
    const std::size_t before = sent();
    product = std::make_unique<ProductModel>("silk", std::nullopt, 99, api, market, preferences, money, clock);
    advice = std::make_unique<SizeAdviceModel>(*product, sizes, market);
    load(changed(productJson("silk"), "options[1].optionValues", json(R"([{"name": "One size"}])")));
    drainEvents();
    EXPECT_EQ(sent(), before + 1);
}

TEST_F(SizeAdviceModelTest, ThePageMayGoAtAnyTime)
{
    expect(Answer::silence());
    load();
    server.waitForRequests(2);
    advice.reset();
    product.reset();
    EXPECT_EQ(clock.sleepers(), 0);
}

} // namespace

} // namespace loom
