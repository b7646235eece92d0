#include "catalog/SearchModel.h"

#include "support/ShopFixture.h"

namespace loom
{

namespace
{

class SearchModelTest : public ShopFixture
{
protected:
    [[nodiscard]] static QJsonValue found(const QStringList& handles, int total, const char* cursor = nullptr)
    {
        QJsonValue data = json(R"({"search": {"pageInfo": {"hasNextPage": false, "endCursor": null},
            "productFilters": [{"id": "f", "label": "Size", "type": "LIST",
                "values": [{"id": "s", "label": "S", "count": 2, "input": "{\"available\":true}"}]}]}})");
        if (cursor) {
            data = changed(data, QStringLiteral("search.pageInfo"),
                           QJsonObject{{QStringLiteral("hasNextPage"), true},
                                       {QStringLiteral("endCursor"), QLatin1String(cursor)}});
        }
        data = changed(data, QStringLiteral("search.totalCount"), total);
        return changed(data, QStringLiteral("search.nodes"), cards(handles));
    }
    [[nodiscard]] static QJsonValue collections(const char* title)
    {
        return json((R"({"predictiveSearch": {"queries": [], "products": [],
            "collections": [{"handle": "silk", "title": ")" +
                     std::string(title) + R"("}]}})")
                        .c_str());
    }
    void settle(std::size_t requests)
    {
        server.waitForRequests(requests);
        waitUntil([this] { return !model.isLoading() && !model.isLoadingMore() && clock.sleepers() == 0; },
                  "the model has its answers");
    }
    [[nodiscard]] QJsonObject searched() const
    {
        for (std::size_t i = sent(); i-- > 0;) {
            if (operation(i) == QStringLiteral("Search"))
                return variables(i);
        }
        return {};
    }

    SearchModel model{QStringLiteral(" silk dress "), api, market, money, clock};
};

} // namespace

TEST_F(SearchModelTest, ResultsPageOnAndAreCountedByTheAnswer)
{
    answer("Search", found({QStringLiteral("a"), QStringLiteral("b")}, 3, "c1"));
    answer("Suggest", collections("Silk"));
    model.load();
    settle(2);
    waitUntil([this] { return !model.collections().empty(); }, "the collections are there");
    EXPECT_EQ(model.total(), 3);
    EXPECT_TRUE(model.hasMore());
    EXPECT_EQ(searched().value(QStringLiteral("query")), QStringLiteral("silk dress"));
    EXPECT_EQ(searched().value(QStringLiteral("sortKey")), QStringLiteral("RELEVANCE"));
    EXPECT_EQ(model.collections(),
              (std::vector<SearchModel::Collection>{{QStringLiteral("silk"), QStringLiteral("Silk")}}));

    answer("Search", found({QStringLiteral("c")}, 3));
    model.loadMore();
    settle(3);
    EXPECT_EQ(searched().value(QStringLiteral("after")), QStringLiteral("c1"));
    EXPECT_EQ(model.products()->count(), 3);

    // Another order and another filter begin at their first page, and look for no collections again.
    answer("Search", found({QStringLiteral("c")}, 1));
    model.setProperty("sort", 2);
    settle(4);
    EXPECT_EQ(searched().value(QStringLiteral("sortKey")), QStringLiteral("PRICE"));
    EXPECT_EQ(searched().value(QStringLiteral("reverse")), true);
    answer("Search", found({}, 0));
    model.toggle(QStringLiteral("f"), QStringLiteral("s"));
    settle(5);
    EXPECT_EQ(bytes(searched().value(QStringLiteral("filters"))), R"([{"available":true}])");
    EXPECT_EQ(searched().value(QStringLiteral("after")), QJsonValue());
    EXPECT_EQ(model.phase(), SearchModel::Phase::Empty);
    EXPECT_EQ(model.total(), 0);
}

TEST_F(SearchModelTest, WithoutCollectionsThereAreStillResultsAndWithoutWordsNothingIsAsked)
{
    answer("Search", found({QStringLiteral("a")}, 1));
    answer("Suggest", Answer::body("", 404));
    model.load();
    settle(2);
    EXPECT_EQ(model.phase(), SearchModel::Phase::Loaded);
    EXPECT_EQ(model.errorText(), QString());

    SearchModel blank(QStringLiteral(" \t"), api, market, money, clock);
    blank.load();
    blank.reload();
    EXPECT_EQ(blank.phase(), SearchModel::Phase::Idle);
}

} // namespace loom
