#include "catalog/StorefrontAPI.h"

#include "support/StorefrontFixture.h"

#include <QJsonArray>

using namespace loom;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

const QString a = QStringLiteral("a");
const QString b = QStringLiteral("b");

QStringList numbered(const char* prefix, int count)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list.append(QLatin1String(prefix) + QString::number(i));
    return list;
}

QJsonArray cards(const QStringList& handles)
{
    QJsonArray list;
    for (const QString& handle : handles)
        list.append(cardJson(handle));
    return list;
}

QStringList handlesOf(const std::vector<ProductListItem>& items)
{
    QStringList handles;
    for (const ProductListItem& item : items)
        handles.append(item.handle);
    return handles;
}

class StorefrontAPITest : public StorefrontFixture
{
protected:
    /// Answers the same request for a page of the count each time.
    QJsonValue countPage(int count, const char* pageInfo) const
    {
        QJsonArray nodes;
        for (int i = 0; i < count; ++i)
            nodes.append(QJsonObject{{QStringLiteral("id"), QString::number(i)}});
        return changed(
            changed(json(R"({"collection": {"products": {}}})"), QStringLiteral("collection.products.nodes"), nodes),
            QStringLiteral("collection.products.pageInfo"), json(pageInfo));
    }
    ApiResult<std::optional<qint64>> count() { return run(api.collectionProductCount(a, {}, {})); }
};

TEST_F(StorefrontAPITest, EachOperationSendsItsVariablesAndIsTriedAgain)
{
    struct Row {
        const char* operation;
        const char* data;
        const char* variables;
        std::function<Running<bool>(StorefrontAPI&)> call;
    };
    const auto begin = []<typename T>(QCoro::Task<ApiResult<T>> task) {
        return Running<bool>([](QCoro::Task<ApiResult<T>> pending) -> QCoro::Task<bool> {
            co_return (co_await std::move(pending)).hasValue();
        }(std::move(task)));
    };
    for (
        const Row& row : {
            Row("Product", R"({"product":null})", R"({"country":"US","handle":"a","language":"EN"})",
                [&](StorefrontAPI& of) { return begin(of.product(a, {})); }),
            Row("LivePrices", R"({"nodes":[]})",
                R"({"country":"US","ids":["gid://shopify/Product/7","gid://shopify/Product/8"],"language":"EN"})",
                [&](StorefrontAPI& of) {
                    return begin(of.livePrices({QStringLiteral("7"), QStringLiteral("gid://shopify/Product/8")}, {}));
                }),
            Row("Products", R"({"products":{"nodes":[],"pageInfo":{"hasNextPage":false}}})",
                R"({"after":"c","country":"US","first":8,"language":"EN","query":"q","reverse":true,"sortKey":"PRICE"})",
                [&](StorefrontAPI& of) {
                    return begin(of.products({.first = 8,
                                              .after = QStringLiteral("c"),
                                              .query = QStringLiteral("q"),
                                              .sortKey = QStringLiteral("PRICE"),
                                              .reverse = true},
                                             {}));
                }),
            Row("CollectionProducts", R"({"collection":null})",
                R"({"after":"c","country":"US","filters":[{"available":true}],"first":48,"handle":"a",)"
                R"("language":"EN","reverse":true,"sortKey":"PRICE"})",
                [&](StorefrontAPI& of) {
                    return begin(of.collectionProducts({.handle = a,
                                                        .first = 48,
                                                        .after = QStringLiteral("c"),
                                                        .filters = json(R"([{"available":true}])").toArray(),
                                                        .sort = CollectionSort::PriceHigh},
                                                       {}));
                }),
            Row("CollectionProductCount", R"({"collection":null})",
                R"({"after":null,"country":"US","filters":[1],"handle":"a"})",
                [&](StorefrontAPI& of) { return begin(of.collectionProductCount(a, {1}, {})); }),
            Row("RateSample", R"({"products":{"nodes":[]}})", R"({"country":"DE"})",
                [&](StorefrontAPI& of) { return begin(of.rateSample(QStringLiteral("DE"), {})); }),
        }) {
        answer(row.operation, Answer::body("", 503));
        answer(row.operation, json(row.data));
        Running<bool> call = row.call(api);
        waitUntil([this] { return clock.nextWake() == 500ms; }, "the first attempt has failed");
        clock.advance(500ms);
        EXPECT_TRUE(call.result()) << row.operation;
        EXPECT_EQ(bytes(lastVariables()), row.variables) << row.operation;
    }
}

TEST_F(StorefrontAPITest, WhatIsNotThereIsNoFailure)
{
    answer("Product", json(R"({"product": null})"));
    EXPECT_EQ(run(api.product(a, {})), (ApiResult<std::optional<Product>>(std::nullopt)));
    answer("Recommendations", json(R"({"productRecommendations": null})"));
    EXPECT_THAT(*run(api.recommendations(a, {})), IsEmpty());
    answer("Suggest", json(R"({"predictiveSearch": null})"));
    EXPECT_EQ(*run(api.suggest(a, {})), SearchSuggestions());
    answer("CollectionProducts", json(R"({"collection": null})"));
    EXPECT_EQ(*run(api.collectionProducts({.handle = a}, {})), CollectionPage());
}

TEST_F(StorefrontAPITest, ListsKeepTheirOrderAndLoseWhatIsGone)
{
    QJsonArray nodes = cards({b, a});
    nodes.insert(1, QJsonValue::Null);
    nodes.append(QJsonObject());                          // of another type
    nodes.append(QJsonObject{{QStringLiteral("id"), 3}}); // broken
    answer("ProductsByIDs", QJsonObject{{QStringLiteral("nodes"), nodes}});
    EXPECT_EQ(handlesOf(*run(api.productsByIDs({a, QStringLiteral("gone"), b}, {}))), QStringList({b, a}));

    answer("LivePrices", json(R"({"nodes": [
        null, {}, {"handle": "a", "availableForSale": true, "priceRange": {"minVariantPrice": {"amount": "48000.0"}}},
        {"handle": "b", "availableForSale": false, "priceRange": {"minVariantPrice": {"amount": "19.5"}}},
        {"handle": "c", "availableForSale": true, "priceRange": {"minVariantPrice": {"amount": "?"}}},
        {"handle": "d", "priceRange": null}]})"));
    EXPECT_EQ(*run(api.livePrices({a}, {})), (QHash<QString, LivePrice>{{a, {.available = true, .amount = 48000}},
                                                                        {b, {.available = false, .amount = 19.5}}}));
}

TEST_F(StorefrontAPITest, APageNamesItsCursorAndOnlyOneWithACursorHasANextOne)
{
    struct Row {
        const char* pageInfo;
        bool hasNextPage;
        std::optional<QString> endCursor;
    };
    for (const Row& row : {Row{R"({"hasNextPage": true, "endCursor": "c"})", true, QStringLiteral("c")},
                           Row{R"({"hasNextPage": false, "endCursor": "c"})", false, QStringLiteral("c")},
                           Row{R"({"hasNextPage": true, "endCursor": null})", false, std::nullopt},
                           Row{R"({"hasNextPage": false})", false, std::nullopt}}) {
        const QJsonObject products{{QStringLiteral("nodes"), cards({a, b})},
                                   {QStringLiteral("pageInfo"), json(row.pageInfo)}};
        answer("Products", QJsonObject{{QStringLiteral("products"), products}});
        const auto page = run(api.products({.first = 2}, {}));
        ASSERT_TRUE(page);
        EXPECT_EQ(handlesOf(page->products), QStringList({a, b}));
        EXPECT_EQ(page->hasNextPage, row.hasNextPage) << row.pageInfo;
        EXPECT_EQ(page->endCursor, row.endCursor) << row.pageInfo;
    }
}

TEST_F(StorefrontAPITest, LongListsBecomeSeveralQueriesAndEmptyOnesNone)
{
    EXPECT_TRUE(run(api.productsByIDs({}, {})));
    EXPECT_TRUE(run(api.cardAvailability({}, {})));
    EXPECT_TRUE(run(api.collectionProbe({}, {})));
    EXPECT_EQ(sent(), 0U);

    for (const int count : {250, 251}) {
        answer("ProductsByIDs", QJsonObject{{QStringLiteral("nodes"), cards({a})}});
        if (count > 250)
            answer("ProductsByIDs", QJsonObject{{QStringLiteral("nodes"), cards({b})}});
        EXPECT_EQ(handlesOf(*run(api.productsByIDs(numbered("i", count), {}))),
                  count > 250 ? QStringList({a, b}) : QStringList(a));
    }
    EXPECT_EQ(sent(), 3U);
    EXPECT_EQ(variables(1).value(QStringLiteral("ids")).toArray().size(), 250);
    EXPECT_EQ(variables(2).value(QStringLiteral("ids")), QJsonArray({QStringLiteral("i250")}));

    answer("CardAvailability", json(R"({"p0": {"handle": "h0", "availableForSale": true}, "p1": null, "p2":
        {"handle": "h2", "availableForSale": false}, "p3": {"handle": "h3"}})"));
    answer("CardAvailability", json(R"({"p0": {"handle": "h100", "availableForSale": true}})"));
    EXPECT_EQ(*run(api.cardAvailability(numbered("h", 101), {})),
              (QHash<QString, bool>{
                  {QStringLiteral("h0"), true}, {QStringLiteral("h2"), false}, {QStringLiteral("h100"), true}}));
    EXPECT_EQ(variables(3).value(QStringLiteral("h99")), QStringLiteral("h99"));
    EXPECT_EQ(bytes(variables(4)), R"({"country":"US","h0":"h100"})");

    // What fails fails the whole.
    answer("SearchCardImages", json("{}"));
    answer("SearchCardImages", Answer::body("", 404));
    EXPECT_FALSE(run(api.searchCardImages(numbered("h", 101), {})));
}

TEST_F(StorefrontAPITest, TilesComeInTheOrderOfTheHandlesWithTheirOwnPictureOrTheirFirstPiecesPicture)
{
    QJsonObject aliases;
    for (int i = 0; i < 12; ++i) { // the answer is written in the order of its keys: c0 c1 c10 c11 c2 …
        aliases.insert(QStringLiteral("c%1").arg(i),
                       QJsonObject{{QStringLiteral("handle"), QStringLiteral("h%1").arg(i)},
                                   {QStringLiteral("title"), QString::number(i)}});
    }
    QJsonValue data = changed(aliases, QStringLiteral("c3"), QJsonValue::Null);
    data = changed(data, QStringLiteral("c4.image"), json(R"({"url": "own"})"));
    data =
        changed(data, QStringLiteral("c4.firstProduct"), json(R"({"nodes": [{"featuredImage": {"url": "first"}}]})"));
    data =
        changed(data, QStringLiteral("c5.firstProduct"), json(R"({"nodes": [{"featuredImage": {"url": "first"}}]})"));
    data = changed(data, QStringLiteral("c6.firstProduct"), json(R"({"nodes": [{"featuredImage": null}]})"));
    answer("CollectionProbe", data);
    const auto tiles = run(api.collectionProbe(numbered("h", 12), {}));
    ASSERT_TRUE(tiles);
    QStringList handles;
    for (const CollectionTile& tile : *tiles)
        handles.append(tile.handle + QLatin1Char('=') + tile.imageURL.value_or(QString()));
    EXPECT_EQ(handles, QStringList({QStringLiteral("h0="), QStringLiteral("h1="), QStringLiteral("h2="),
                                    QStringLiteral("h4=own"), QStringLiteral("h5=first"), QStringLiteral("h6="),
                                    QStringLiteral("h7="), QStringLiteral("h8="), QStringLiteral("h9="),
                                    QStringLiteral("h10="), QStringLiteral("h11=")}));
}

TEST_F(StorefrontAPITest, ACountWalksTheCollectionToItsEnd)
{
    const auto none = ApiResult<std::optional<qint64>>(std::nullopt);
    answer("CollectionProductCount", json(R"({"collection": null})"));
    EXPECT_EQ(count(), none);
    answer("CollectionProductCount", countPage(250, R"({"hasNextPage": true, "endCursor": "c1"})"));
    answer("CollectionProductCount", countPage(250, R"({"hasNextPage": true, "endCursor": "c2"})"));
    answer("CollectionProductCount", countPage(17, R"({"hasNextPage": false, "endCursor": "c3"})"));
    EXPECT_EQ(count(), ApiResult<std::optional<qint64>>(517));
    EXPECT_EQ(lastVariables().value(QStringLiteral("after")), QStringLiteral("c2"));

    answer("CollectionProductCount", countPage(250, R"({"hasNextPage": true, "endCursor": "c1"})"));
    answer("CollectionProductCount", json(R"({"collection": null})")); // it went away under our hands
    EXPECT_EQ(count(), none);
}

TEST_F(StorefrontAPITest, AWalkThatDoesNotComeToAnEndIsGivenUpAndCountsNothing)
{
    for (const std::vector<const char*>& cursors :
         {std::vector<const char*>{"c1", "c1"}, {"c1", "c2", "c1"}, {"c1", "c2", "c3", "c2"}, {nullptr}}) {
        for (const char* const cursor : cursors) {
            const QJsonValue info = json(R"({"hasNextPage": true})");
            answer(
                "CollectionProductCount",
                countPage(250, bytes(cursor ? changed(info, QStringLiteral("endCursor"), QLatin1String(cursor)) : info)
                                   .constData()));
        }
        EXPECT_FALSE(count()) << cursors.size();
    }
}

TEST_F(StorefrontAPITest, ASampleIsTheSumOfThePricesThatCanBeRead)
{
    struct Row {
        const char* nodes;
        std::optional<MarketSample> sample;
    };
    for (const Row& row : {
             Row{R"([{"priceRange": {"minVariantPrice": {"amount": "0.0", "currencyCode": "EUR"}}}])", std::nullopt},
             Row{R"([{"priceRange": {"minVariantPrice": {"amount": "10.5", "currencyCode": "USD"}}},
                     {"priceRange": {"minVariantPrice": {"amount": "x", "currencyCode": "GBP"}}}, null,
                     {"priceRange": {"minVariantPrice": {"amount": "1.0", "currencyCode": "EUR"}}}])",
                 MarketSample{.sum = 11.5, .currency = QStringLiteral("EUR")}},
         }) {
        answer("RateSample",
               QJsonObject{{QStringLiteral("products"), QJsonObject{{QStringLiteral("nodes"), json(row.nodes)}}}});
        EXPECT_EQ(*run(api.rateSample(QStringLiteral("DE"), {})), row.sample) << row.nodes;
    }
}

} // namespace
