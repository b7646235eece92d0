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
    [[nodiscard]] QString shown() const
    {
        QStringList tiles;
        for (int row = 0; row < model->rowCount(); ++row) {
            const QModelIndex index = model->index(row);
            tiles.append(model->data(index, CollectionTilesModel::HandleRole).toString() + QLatin1Char(' ') +
                         model->data(index, CollectionTilesModel::TitleRole).toString() + QLatin1Char(' ') +
                         model->data(index, CollectionTilesModel::PictureRole).toString());
        }
        return tiles.join(QLatin1Char('|'));
    }

    std::unique_ptr<CollectionTilesModel> model = std::make_unique<CollectionTilesModel>(
        QStringList{QStringLiteral("women"), QStringLiteral("gone"), QStringLiteral("bags")}, api, market);
    QAbstractItemModelTester tester{model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal};
};

const char* const both = R"({"c0": {"handle": "women", "title": "Women", "image": {"url": "w.jpg"}}, "c1": null,
    "c2": {"handle": "bags", "title": "Bags"}})";

TEST_F(CollectionTilesModelTest, TilesOfTheMarketAreShownAndStayAcrossAFailure)
{
    const auto told = emissions(*model, &CollectionTilesModel::changed);
    answer(probe, Answer::body("", 404));
    model->load();
    EXPECT_TRUE(model->isLoading());
    model->load();
    settle(1);
    EXPECT_EQ(*told, 2);
    EXPECT_EQ(model->errorText(), errorDescription({APIError::Http{.status = 404}}));
    EXPECT_FALSE(model->isLoaded());

    answer(probe, json(both));
    model->load();
    settle(2);
    EXPECT_EQ(shown(), QStringLiteral("women Women w.jpg|bags Bags "));
    EXPECT_EQ(model->errorText(), QString());
    EXPECT_TRUE(model->isLoaded());
    model->load();
    EXPECT_FALSE(model->isLoading());

    const auto resets = emissions(*model, &CollectionTilesModel::modelReset);
    answer(probe, json(both));
    model->reload();
    settle(3);
    EXPECT_EQ(*resets, 0); // nothing new, nothing moves
    answer(probe, Answer::body("", 404));
    model->reload();
    settle(4);
    EXPECT_EQ(model->count(), 2);
    EXPECT_NE(model->errorText(), QString());
}

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
    answer(probe, json("{}"));
    answer("Countries", Answer::body("", 404));
    market.setLanguage(AppLanguage::Greek);
    settle(7);
    EXPECT_EQ(model->count(), 0);
    EXPECT_TRUE(model->isLoaded());
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
