#include "catalog/CollectionModel.h"

#include "support/ShopFixture.h"

#include <QAbstractItemModelTester>
#include <QThreadPool>

using namespace loom;
using namespace std::chrono_literals;
using Phase = CollectionModel::Phase;

namespace
{

const char* const products = "CollectionProducts";
const char* const counting = "CollectionProductCount";

class CollectionModelTest : public ShopFixture
{
protected:
    /// One piece for each letter; without a cursor the last page.
    [[nodiscard]] static QJsonValue page(const char* letters, const char* cursor = nullptr)
    {
        QStringList handles;
        for (const QChar letter : QString::fromLatin1(letters))
            handles.append(letter);
        QJsonValue data = json(R"({"collection": {"id": "1", "handle": "dresses", "title": "Dresses",
            "products": {"pageInfo": {"hasNextPage": false, "endCursor": null}}}})");
        if (cursor) {
            data = changed(data, QStringLiteral("collection.products.pageInfo"),
                           QJsonObject{{QStringLiteral("hasNextPage"), true},
                                       {QStringLiteral("endCursor"), QLatin1String(cursor)}});
        }
        return changed(data, QStringLiteral("collection.products.nodes"), cards(handles));
    }
    [[nodiscard]] static QJsonValue counted(int count)
    {
        QJsonArray nodes;
        for (int i = 0; i < count; ++i)
            nodes.append(QJsonObject());
        return changed(json(R"({"collection": {"products": {"pageInfo": {"hasNextPage": false}}}})"),
                       QStringLiteral("collection.products.nodes"), nodes);
    }
    void settle(std::size_t requests)
    {
        server.waitForRequests(requests);
        waitUntil([this] { return !model->isLoading() && !model->isLoadingMore(); }, "the model has its answer");
    }
    /// What comes after the model has its answer, such as a count.
    void settleAll(std::size_t requests)
    {
        settle(requests);
        waitUntil([this] { return clock.sleepers() == 0; }, "every answer has arrived");
        QThreadPool::globalInstance()->waitForDone();
        drainEvents();
    }
    void load()
    {
        model->load();
        settle(sent() + 1);
    }
    void loadMore()
    {
        model->loadMore();
        settle(sent() + 1);
    }
    [[nodiscard]] std::string shown() const
    {
        std::string letters;
        for (const ProductListItem& item : model->products()->items())
            letters += item.handle.toStdString();
        return letters;
    }

    std::unique_ptr<CollectionModel> model = std::make_unique<CollectionModel>(
        QStringLiteral("dresses"), QStringLiteral("From the menu"), api, market, money, clock);
    QAbstractItemModelTester tester{model->products(), QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(CollectionModelTest, MoreIsAppendedOnceUntilTheListEnds)
{
    model->loadMore(); // before there is anything
    answer(products, page("ab", "c1"));
    answer(counting, counted(5));
    model->load();
    model->loadMore(); // while the first page is on its way
    settleAll(2);
    EXPECT_EQ(model->totalCount(), 5);
    EXPECT_TRUE(model->hasNextPage());

    answer(products, page("bcd", "c2"));
    model->loadMore();
    EXPECT_TRUE(model->isLoadingMore());
    EXPECT_EQ(model->phase(), Phase::Loaded);
    model->loadMore();
    settle(3);
    EXPECT_EQ(shown(), "abcd");
    EXPECT_EQ(lastVariables().value(QStringLiteral("after")), QStringLiteral("c1"));

    answer(products, Answer::body("", 404));
    loadMore();
    EXPECT_EQ(shown(), "abcd");
    EXPECT_TRUE(model->hasLoadMoreFailed());

    answer(products, page("e"));
    model->loadMore();
    EXPECT_FALSE(model->hasLoadMoreFailed());
    settle(5);
    EXPECT_EQ(lastVariables().value(QStringLiteral("after")), QStringLiteral("c2"));
    EXPECT_EQ(shown(), "abcde");
    EXPECT_FALSE(model->hasNextPage());
    model->loadMore();
    EXPECT_FALSE(model->isLoadingMore());

    // A cursor that does not move ends the list too.
    answer(products, page("ab", "c1"));
    answer(counting, Answer::body("", 404));
    model->reload();
    settleAll(7);
    answer(products, page("ab", "c1"));
    loadMore();
    EXPECT_FALSE(model->hasNextPage());
    EXPECT_EQ(shown(), "ab");
}

TEST_F(CollectionModelTest, PagesThatAddNothingArePassedOver)
{
    const auto unreadable = [](const char* cursor) {
        return changed(page("", cursor), QStringLiteral("collection.products.nodes"), json("[{}, null]"));
    };
    answer(products, unreadable("c1"));
    answer(products, Answer::body("", 404));
    model->load();
    settle(2);
    EXPECT_EQ(model->phase(), Phase::Failed);
    answer(products, unreadable("c1"));
    answer(products, page("ab", "c2"));
    answer(counting, counted(9));
    model->load(); // the next attempt
    settleAll(5);
    EXPECT_EQ(model->phase(), Phase::Loaded);
    EXPECT_EQ(shown(), "ab");
    EXPECT_EQ(model->totalCount(), 9);

    answer(products, page("ba", "c3")); // all of it is shown already
    answer(products, unreadable("c4"));
    answer(products, page("c"));
    model->loadMore();
    settle(8);
    EXPECT_EQ(lastVariables().value(QStringLiteral("after")), QStringLiteral("c4"));
    EXPECT_EQ(shown(), "abc");
    EXPECT_FALSE(model->hasNextPage());

    // A store whose pages never hold anything is not walked for ever.
    for (int i = 0; i < 11; ++i)
        answer(products, unreadable(QByteArray::number(i).constData()));
    answer(counting, Answer::body("", 404));
    model->reload();
    settleAll(20);
    EXPECT_EQ(model->phase(), Phase::Empty);
}

TEST_F(CollectionModelTest, AnAnswerThatComesLateIsDropped)
{
    answer(products, envelope(page("a", "old")).pauseAfter(0));
    model->load();
    server.waitForRequests(1);
    answer(products, page("b", "c1"));
    answer(counting, envelope(counted(7)).pauseAfter(0));
    model->setSort(CollectionSort::Newest);
    server.waitForRequests(3);
    EXPECT_EQ(shown(), "b");

    answer(products, envelope(page("x")).pauseAfter(0));
    model->loadMore();
    server.waitForRequests(4);
    answer(products, page("cd"));
    model->setSort(CollectionSort::PriceLow);
    EXPECT_FALSE(model->isLoadingMore());
    settle(5);
    EXPECT_EQ(model->totalCount(), 2);
    server.proceed(); // a page, a further page and a count of former orders
    settleAll(5);
    EXPECT_EQ(shown(), "cd");
    EXPECT_EQ(model->totalCount(), 2);
    EXPECT_FALSE(model->hasNextPage());
}

TEST_F(CollectionModelTest, AListIsNotContinuedInAnOrderItDoesNotHave)
{
    answer(products, page("ab", "c1"));
    answer(counting, counted(3));
    model->load();
    settleAll(2);
    answer(products, Answer::body("", 404));
    model->setSort(CollectionSort::PriceLow);
    settle(3);
    EXPECT_EQ(shown(), "ab");
    model->loadMore();
    EXPECT_FALSE(model->isLoadingMore());

    answer(products, page("ba", "c1")); // the next attempt
    answer(counting, counted(3));
    model->load();
    settleAll(5);
    EXPECT_EQ(shown(), "ba");
    answer(products, page("c"));
    loadMore();
    EXPECT_EQ(shown(), "bac");
    EXPECT_EQ(lastVariables().value(QStringLiteral("sortKey")), QStringLiteral("PRICE"));
}

TEST_F(CollectionModelTest, FiltersNarrowFromTheFirstPageAndTheLastChoiceWins)
{
    const auto offering = [](const char* letters, const char* cursor = nullptr) {
        return changed(page(letters, cursor), QStringLiteral("collection.products.filters"),
                       json(R"([{"id": "f", "label": "In stock", "type": "BOOLEAN",
                           "values": [{"id": "yes", "label": "Yes", "count": 2, "input": "{\"available\":true}"}]}])"));
    };
    const QString f = QStringLiteral("f");
    const QString yes = QStringLiteral("yes");
    answer(products, offering("abc", "c1"));
    answer(counting, counted(4));
    model->load();
    settleAll(2);

    answer(products, envelope(offering("a")).pauseAfter(0));
    model->toggle(f, yes);
    server.waitForRequests(3);
    EXPECT_EQ(bytes(lastVariables().value(QStringLiteral("filters"))), R"([{"available":true}])");
    EXPECT_EQ(lastVariables().value(QStringLiteral("after")), QJsonValue());
    EXPECT_EQ(shown(), "abc");
    model->loadMore();
    EXPECT_FALSE(model->isLoadingMore());
    answer(products, offering("ab", "c2"));
    answer(counting, counted(3));
    model->setPrice(100, {});
    settleAll(5);
    server.proceed(); // the answer to the choice before
    settleAll(5);
    EXPECT_EQ(shown(), "ab");
    EXPECT_EQ(model->totalCount(), 3);
    EXPECT_EQ(bytes(lastVariables().value(QStringLiteral("filters"))), R"([{"available":true},{"price":{"min":100}}])");

    // One piece has gone since: whoever saw the end has counted.
    answer(products, page(""));
    model->loadMore();
    settle(6);
    EXPECT_EQ(model->totalCount(), 2);

    answer("RateSample US", Answer::body("", 404));
    answer("RateSample FR", Answer::body("", 404));
    answer(products, page("a"));
    ASSERT_TRUE(market.setCountry(QStringLiteral("FR"))); // where the bound means another amount
    settleAll(9);
    EXPECT_EQ(model->selection().priceMin, std::nullopt);
}

TEST_F(CollectionModelTest, AnotherLanguageComesAsFarAsItWasShown)
{
    answer(products, page("ab", "c1"));
    answer(counting, counted(5));
    model->load();
    settleAll(2);
    answer(products, page("cd", "c2"));
    loadMore();

    answer("Countries", Answer::body("", 404));
    answer(products, page("ba", "c1"));
    answer(products, envelope(page("dc", "c2")).pauseAfter(0));
    market.setLanguage(AppLanguage::German);
    server.waitForRequests(6);
    EXPECT_EQ(shown(), "abcd");
    server.proceed();
    settleAll(6); // the number of pieces is no text
    EXPECT_EQ(shown(), "badc");
    EXPECT_EQ(model->totalCount(), 5);
    answer(products, page("e"));
    loadMore();
    EXPECT_EQ(lastVariables().value(QStringLiteral("after")), QStringLiteral("c2"));
    EXPECT_EQ(shown(), "badce");
}

TEST_F(CollectionModelTest, AModelMayGoAtAnyTime)
{
    answer(products, Answer::silence());
    model->load();
    server.waitForRequests(1);
    model.reset();
    EXPECT_EQ(clock.sleepers(), 0);

    model = std::make_unique<CollectionModel>(QStringLiteral("dresses"), QString(), api, market, money, clock);
    answer(products, page("ab", "c1"));
    answer(counting, Answer::silence());
    load();
    answer(products, Answer::silence());
    model->loadMore();
    server.waitForRequests(4);
    model.reset();
    EXPECT_EQ(clock.sleepers(), 0);

    // Even when it is told of its own news.
    model = std::make_unique<CollectionModel>(QStringLiteral("dresses"), QString(), api, market, money, clock);
    QObject::connect(model.get(), &CollectionModel::changed, &market, [this] {
        if (model && model->phase() == Phase::Loaded)
            model.reset();
    });
    answer(products, page("a"));
    model->load();
    waitUntil([this] { return !model; }, "the model is gone");
}

} // namespace
