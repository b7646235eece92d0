#include "discovery/RecoAPI.h"

#include "DiscoveryFixture.h"

using namespace loom;

namespace
{

class RecoAPITest : public DiscoveryFixture
{
protected:
    [[nodiscard]] std::string lastQuery() const
    {
        return QByteArray::fromPercentEncoding(server.requests().back().query).toStdString();
    }
    void expect(const char* path, const QJsonValue& answer)
    {
        server.expect(QByteArray("GET /api/support/widget") + path, Answer::body(bytes(answer)));
    }
    [[nodiscard]] static std::string handlesOf(const std::vector<RecoProduct>& products)
    {
        QStringList handles;
        for (const RecoProduct& product : products)
            handles.append(product.handle);
        return handles.join(u' ').toStdString();
    }
};

TEST_F(RecoAPITest, EveryCallSaysForWhomAndWhatItAsks)
{
    recommend(QStringLiteral("for-you"), {});
    recommend(QStringLiteral("coats"), {});
    static_cast<void>(run(reco.feed({.kind = RecoAPI::Kind::ForYou, .limit = 24, .offset = 48}, {})));
    EXPECT_EQ(lastQuery(), "kind=for-you&limit=24&offset=48&gender=women&sessionViewed=&locale=en&visitorId=visitor-1&"
                           "publicKey=key-1");
    for (int i = 0; i < 25; ++i)
        viewed.append(QString::number(i));
    identity = {.visitorId = QStringLiteral("v"),
                .customer = QStringLiteral("42"),
                .email = QStringLiteral("jane+x@mail.example"),
                .name = QStringLiteral("Jane & Co")};
    market.setGender(ShopGender::Men);
    static_cast<void>(run(reco.feed({.kind = RecoAPI::Kind::Collection,
                                     .limit = 12,
                                     .handle = QStringLiteral("coats"),
                                     .excludeHandle = QStringLiteral("a")},
                                    {})));
    EXPECT_EQ(lastQuery(), "kind=collection&limit=12&offset=0&gender=men&sessionViewed=0,1,2,3,4,5,6,7,8,9,10,11,12,13,"
                           "14,15,16,17,18,19&locale=en&handle=coats&excludeHandle=a&visitorId=v&customer=42&"
                           "email=jane+x@mail.example&name=Jane & Co&publicKey=key-1");
    viewed = {QStringLiteral("a")};
    identity = {.visitorId = QStringLiteral("v")};
    const std::string caller = "&visitorId=v&publicKey=key-1";
    expect("/pdp-reco", json("{}"));
    static_cast<void>(run(reco.companions(QStringLiteral("silk"), 12, {})));
    EXPECT_EQ(lastQuery(), "handle=silk&limit=12&locale=en&gender=men&sessionViewed=a" + caller);
    expect("/vessa/reco-rails", json(R"({"rails": []})"));
    static_cast<void>(run(reco.rails(6, {})));
    EXPECT_EQ(lastQuery(), "gender=men&limit=6" + caller);
    expect("/search-ai", json("{}"));
    static_cast<void>(run(reco.search({.query = QStringLiteral("red & blue"), .limit = 24, .offset = 24}, {})));
    EXPECT_EQ(lastQuery(), "q=red & blue&locale=en&limit=24&offset=24&instant=false" + caller);
    expect("/vessa/product-stats", json(R"({"stats": {}})"));
    static_cast<void>(run(reco.productStats({QStringLiteral("a"), QStringLiteral("b")}, {})));
    EXPECT_EQ(lastQuery(), "handles=a,b" + caller);
    expect("/brand-stats", json("{}"));
    static_cast<void>(run(reco.brandStats(QStringLiteral("Tallis & Rook"), {})));
    EXPECT_EQ(lastQuery(), "vendor=Tallis & Rook" + caller);
}

TEST_F(RecoAPITest, WhatIsBrokenInAnAnswerCostsOnlyItself)
{
    feeds.insert_or_assign(QStringLiteral("for-you"), Answer::body(R"({"forYou": [
        {"handle": "a", "title": 7, "price": "19.5", "reasonMeta": {"newIn": true}}, {"title": "no handle"},
        {"handle": ""}, 7, null, {"handle": "a", "title": "again"}, {"handle": "b", "price": -1, "image": null}]})"));
    const auto feed = run(reco.feed({.kind = RecoAPI::Kind::ForYou, .limit = 24}, {}));
    ASSERT_TRUE(feed);
    EXPECT_EQ(handlesOf(feed->products), "a b");
    EXPECT_EQ(feed->received, 7);
    EXPECT_EQ(feed->products[0], (RecoProduct{.handle = QStringLiteral("a"), .priceUSD = 19.5}));
    EXPECT_EQ(feed->products[1].priceUSD, 0);

    QString thousand;
    for (int i = 0; i < 1000; ++i)
        thousand += QStringLiteral("p%1 ").arg(i);
    recommend(QStringLiteral("new-arrivals"), thousand);
    const auto many = run(reco.feed({.kind = RecoAPI::Kind::NewArrivals, .limit = 24}, {}));
    ASSERT_TRUE(many);
    EXPECT_EQ(many->products.size(), 200U);

    feeds.insert_or_assign(QStringLiteral("for-you"),
                           Answer::body(R"({"forYou": null, "products": [{"handle": "c"}]})"));
    const auto other = run(reco.feed({.kind = RecoAPI::Kind::ForYou, .limit = 24}, {}));
    ASSERT_TRUE(other);
    EXPECT_EQ(handlesOf(other->products), "c");

    feeds.insert_or_assign(QStringLiteral("for-you"), Answer::body(R"({"products": {}})"));
    const auto broken = run(reco.feed({.kind = RecoAPI::Kind::ForYou, .limit = 24}, {}));
    ASSERT_FALSE(broken);
    const auto* const decoding = broken.error().error().as<APIError::Decoding>();
    ASSERT_TRUE(decoding);
    EXPECT_TRUE(decoding->description.contains(QStringLiteral("products"))) << decoding->description.toStdString();

    expect("/vessa/product-stats", json(R"({"stats": {"a": {"sold": 12}, "b": {"sold": "x"}, "c": 4}})"));
    const auto stats = run(reco.productStats({QStringLiteral("a")}, {}));
    ASSERT_TRUE(stats);
    EXPECT_EQ(stats->size(), 1);
    EXPECT_EQ(stats->value(QStringLiteral("a")).sold, 12);
    expect("/vessa/reco-rails", json(R"({"rails": [{"handle": "a", "title": "A", "count": 3, "label": 1},
        {"handle": "b"}, {"handle": "a", "title": "Again"}, {"handle": "c", "title": "C"}]})"));
    const auto rails = run(reco.rails(2, {}));
    ASSERT_TRUE(rails);
    ASSERT_EQ(rails->size(), 2U);
    EXPECT_EQ((*rails)[0], (RecoAPI::Rail{.handle = QStringLiteral("a"), .title = QStringLiteral("A"), .count = 3}));
    EXPECT_EQ((*rails)[1].handle, QStringLiteral("c"));
}

} // namespace
