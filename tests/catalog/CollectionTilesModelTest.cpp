#include "catalog/CollectionTilesModel.h"

#include "support/ShopFixture.h"

#include <QAbstractItemModelTester>

using namespace loom;

namespace
{

const char* const probe = "CollectionProbe";

class CollectionTilesModelTest : public ShopFixture
{
protected:
    void settle(std::size_t requests)
    {
        server.waitForRequests(requests);
        waitUntil([this] { return !model->isLoading(); }, "the model has its answer");
    }
    std::unique_ptr<CollectionTilesModel> model = std::make_unique<CollectionTilesModel>(
        QStringList{QStringLiteral("women"), QStringLiteral("gone"), QStringLiteral("bags")}, api, market);
    QAbstractItemModelTester tester{model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal};
};

const char* const both = R"({"c0": {"handle": "women", "title": "Women", "image": {"url": "w.jpg"}}, "c1": null,
    "c2": {"handle": "bags", "title": "Bags"}})";

TEST_F(CollectionTilesModelTest, TheLatestAnswerCountsAndAnotherMarketLoadsAnew)
{
    market.setCountry(QStringLiteral("US"));
    EXPECT_EQ(sent(), 0U);
    answer(probe, envelope(json(both)).pauseAfter(0));
    model->load();
    server.waitForRequests(1);
    answer(probe, Answer::body("", 404));
    answer("Countries", Answer::body("", 404));
    market.setLanguage(AppLanguage::French);
    settle(3);
    server.proceed();
    drainEvents();
    EXPECT_EQ(model->count(), 0);

    answer(probe, json(both)); // what failed in one market is tried in the next
    answer("Countries", Answer::body("", 404));
    market.setLanguage(AppLanguage::German);
    settle(5);
    EXPECT_EQ(model->count(), 2);
}

TEST_F(CollectionTilesModelTest, AModelMayGoWhileItLoadsAndOneWithoutHandlesAsksNobody)
{
    answer(probe, Answer::silence());
    model->load();
    server.waitForRequests(1);
    model.reset();
    EXPECT_EQ(clock.sleepers(), 0);

    CollectionTilesModel none({}, api, market);
    none.load();
    EXPECT_TRUE(none.isLoaded());
    EXPECT_EQ(sent(), 1U);
}

} // namespace
