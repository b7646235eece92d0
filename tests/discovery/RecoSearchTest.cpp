#include "discovery/RecoSearch.h"

#include "catalog/SearchModel.h"

#include "DiscoveryFixture.h"

using namespace loom;

namespace
{

class RecoSearchTest : public DiscoveryFixture
{
protected:
    RecoSearchTest() { model.setAiSource(recoSearch(reco, market, clock)); }

    void understand(const Answer& answer) { server.expect("GET /api/support/widget/search-ai", answer); }
    static QJsonObject answerWith(const QString& handles, int total)
    {
        return {{QStringLiteral("products"), recommended(handles)},
                {QStringLiteral("collections"), json(R"([{"handle": "coats", "title": "Coats"}, {"title": "x"}])")},
                {QStringLiteral("summary"), QStringLiteral("Warm\ncoats")},
                {QStringLiteral("total"), total}};
    }
    void answerStorefront(const QStringList& handles)
    {
        QJsonValue page = json(R"({"search": {"totalCount": 2, "nodes": [], "pageInfo": {"hasNextPage": false},
            "productFilters": [{"id": "size", "label": "Size", "type": "LIST",
                "values": [{"id": "size.s", "label": "S", "count": 2, "input": "{\"size\": \"s\"}"}]}]}})");
        answer("Search", changed(page, QStringLiteral("search.nodes"), cards(handles)));
    }
    void settle()
    {
        waitUntil([this] { return !model.isLoading() && !model.isLoadingMore(); }, "the search has settled");
        drainEvents();
    }
    [[nodiscard]] std::string shown()
    {
        QStringList handles;
        for (const ProductListItem& piece : model.products()->items())
            handles.append(piece.handle);
        return handles.join(u' ').toStdString();
    }

    SearchModel model{QStringLiteral("warm coat"), api, market, money, clock};
};

TEST_F(RecoSearchTest, ResultsThatWereUnderstoodComeFirstAndTheStorefrontKnowsTheRest)
{
    answer("Suggest", json(R"({"predictiveSearch": null})"));
    understand(Answer::json(answerWith(QStringLiteral("a b"), 3)));
    answerStorefront({QStringLiteral("s")});
    model.load();
    settle();
    EXPECT_EQ(shown(), "a b");
    EXPECT_FALSE(model.usingStorefront());
    EXPECT_EQ(model.summary(), QStringLiteral("Warm coats"));
    EXPECT_EQ(model.total(), 3);
    ASSERT_EQ(model.collections().size(), 1U);
    EXPECT_EQ(model.collections().front().handle, QStringLiteral("coats"));
    EXPECT_EQ(model.products()->data(model.products()->index(0), ProductListModel::ReasonRole).toString(),
              QStringLiteral("Handpicked"));

    // It goes on where the first answer ended, to its end.
    ASSERT_TRUE(model.hasMore());
    understand(Answer::body("{}", 500));
    model.loadMore();
    settle();
    EXPECT_TRUE(model.hasLoadMoreFailed());
    understand(Answer::json(answerWith(QStringLiteral("b c"), 3)));
    model.loadMore();
    settle();
    EXPECT_EQ(item(server.requests().back(), "offset"), QStringLiteral("2"));
    EXPECT_EQ(shown(), "a b c");
    EXPECT_FALSE(model.hasMore());

    // Filters and orders are the Storefront's.
    answerStorefront({QStringLiteral("s")});
    model.toggle(QStringLiteral("size"), QStringLiteral("size.s"));
    settle();
    EXPECT_EQ(shown(), "s");
    EXPECT_TRUE(model.usingStorefront());
    EXPECT_EQ(model.summary(), QString());
    EXPECT_TRUE(model.collections().empty());
    EXPECT_EQ(lastVariables().value(QStringLiteral("filters")).toArray().size(), 1);
    answerStorefront({QStringLiteral("s"), QStringLiteral("t")});
    model.setOrder(SearchModel::Order::PriceLow);
    settle();
    EXPECT_TRUE(model.usingStorefront());
}

TEST_F(RecoSearchTest, WhatIsNotUnderstoodIsSearchedForAsBefore)
{
    answer("Suggest", json(R"({"predictiveSearch": null})"));
    for (const Answer& failed :
         {Answer::body("", 404), Answer::body("<html>"), Answer::json({}), Answer::json(answerWith({}, 0))}) {
        understand(failed);
        answerStorefront({QStringLiteral("s"), QStringLiteral("t")});
        model.reload();
        settle();
        EXPECT_EQ(shown(), "s t");
        EXPECT_TRUE(model.usingStorefront());
        EXPECT_EQ(model.total(), 2);
        EXPECT_EQ(model.phase(), ProductListing::Phase::Loaded);
    }
    understand(Answer::body("{}"));
    answer("Search", Answer::body("", 404));
    SearchModel other(QStringLiteral("other"), api, market, money, clock);
    other.setAiSource(recoSearch(reco, market, clock));
    answer("Suggest", Answer::body("", 404));
    other.load();
    waitUntil([&] { return !other.isLoading(); }, "both have failed");
    EXPECT_EQ(other.phase(), ProductListing::Phase::Failed);
}

TEST_F(RecoSearchTest, NobodyWaitsLongForResultsThatAreUnderstood)
{
    answer("Suggest", json(R"({"predictiveSearch": null})"));
    understand(Answer::silence());
    answerStorefront({QStringLiteral("s")});
    model.load();
    server.waitForRequests(3);
    clock.advance(std::chrono::seconds(7));
    drainEvents();
    EXPECT_TRUE(model.isLoading());
    clock.advance(std::chrono::seconds(1));
    settle();
    EXPECT_EQ(shown(), "s");
    EXPECT_TRUE(model.usingStorefront());
}

} // namespace
