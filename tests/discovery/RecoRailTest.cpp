#include "discovery/RecoRail.h"

#include "commerce/WishlistStore.h"
#include "discovery/ProductCompanions.h"
#include "discovery/RecoSaving.h"

#include "DiscoveryFixture.h"

#include <QCoreApplication>
#include <QTranslator>

using namespace loom;

namespace
{

const QString forYou = QStringLiteral("for-you");

/// Shows the key of every text instead of the text.
class Renaming final : public QTranslator
{
public:
    [[nodiscard]] QString translate(const char*, const char*, const char* key, int) const override
    {
        return QString::fromLatin1(key);
    }
    [[nodiscard]] bool isEmpty() const override { return false; }
};

class RecoRailTest : public DiscoveryFixture
{
protected:
    void settle(RecoRail& rail)
    {
        waitUntil([&rail] { return !rail.isLoading() && !rail.isLoadingMore(); }, "the rail has settled");
    }
    static QString page(int from, int count)
    {
        QStringList handles;
        for (int i = from; i < from + count; ++i)
            handles.append(QStringLiteral("p%1").arg(i));
        return handles.join(u' ');
    }
};

TEST_F(RecoRailTest, WhatIsHiddenOrInTheCartGoesAtOnceAndComesBack)
{
    recommend(forYou, QStringLiteral("a silk b c"));
    RecoRail rail({}, services);
    EXPECT_EQ(rail.phase(), RecoRail::Phase::Idle);
    rail.load();
    EXPECT_EQ(rail.phase(), RecoRail::Phase::Loading);
    settle(rail);
    EXPECT_EQ(shownIn(rail), "a silk b c");
    show({{.line = "one", .variant = "v", .quantity = 1}}); // of the piece "silk"
    EXPECT_EQ(shownIn(rail), "a b c");
    hidden.hide(QStringLiteral("a"), QStringLiteral("Piece A"));
    hidden.hide(QStringLiteral("b"), QStringLiteral("Piece B"));
    EXPECT_EQ(shownIn(rail), "c");
    EXPECT_EQ(hidden.lastTitle(), QStringLiteral("Piece B"));
    hidden.undo();
    EXPECT_FALSE(hidden.canUndo());
    EXPECT_EQ(shownIn(rail), "b c");
    rail.setExcluded({QStringLiteral("b"), QStringLiteral("c")});
    EXPECT_EQ(rail.phase(), RecoRail::Phase::Empty);

    folder.waitUntilWritten();
    EXPECT_EQ(NotInterested(folder).handles(), QStringList{QStringLiteral("a")});
    for (int i = 0; i < 600; ++i)
        hidden.hide(QString::number(i), {});
    EXPECT_EQ(NotInterested(folder).count(), NotInterested::maximum);
    EXPECT_EQ(NotInterested(folder).handles().front(), QStringLiteral("599"));
}

TEST_F(RecoRailTest, PricesAndReasonsFollowTheShopperWithoutAnotherRequest)
{
    feeds.insert_or_assign(forYou,
                           Answer::body(R"({"products": [{"handle": "a", "title": "A", "price": 100, "reasonMeta":
        {"template": "style_pick", "params": {"value": "x"}, "paramLabel": {"value": "élégant", "locale": "fr"}}},
        {"handle": "b", "title": "B"}]})"));
    RecoRail rail({}, services);
    rail.load();
    settle(rail);
    EXPECT_EQ(told(rail, 0, ProductListModel::PriceRole), QStringLiteral("$100.00"));
    EXPECT_EQ(told(rail, 0, ProductListModel::ReasonRole), QStringLiteral("x style pick"));
    EXPECT_EQ(told(rail, 1, ProductListModel::PriceRole), QString());
    EXPECT_EQ(told(rail, 1, ProductListModel::ReasonRole), QStringLiteral("Handpicked"));
    {
        Renaming renaming;
        QCoreApplication::installTranslator(&renaming);
        Q_EMIT texts.changed();
        EXPECT_EQ(told(rail, 1, ProductListModel::ReasonRole), QStringLiteral("reco.reason.handpicked"));
    }
    Q_EMIT texts.changed();
    EXPECT_EQ(told(rail, 1, ProductListModel::ReasonRole), QStringLiteral("Handpicked"));
    const auto asked = [this] {
        return std::ranges::count(server.requests(), QByteArray("/api/support/widget/reco"), &ReceivedRequest::path);
    };
    ASSERT_EQ(asked(), 1);

    const auto sample = [](const char* amount, const char* currency) {
        return changed(
            changed(json(R"({"products": {"nodes": [{"priceRange": {"minVariantPrice": {}}}]}})"),
                    QStringLiteral("products.nodes[0].priceRange.minVariantPrice.amount"), QLatin1String(amount)),
            QStringLiteral("products.nodes[0].priceRange.minVariantPrice.currencyCode"), QLatin1String(currency));
    };
    answer("RateSample DE", sample("90", "EUR"));
    answer("RateSample US", sample("100", "USD"));
    answer("Countries", Answer::body("", 404));
    market.setLanguage(AppLanguage::French);
    EXPECT_EQ(told(rail, 0, ProductListModel::ReasonRole), QStringLiteral("élégant style pick"));
    market.setCountry(QStringLiteral("DE"));
    waitUntil([this] { return market.rate().has_value(); }, "the rate is known");
    EXPECT_EQ(told(rail, 0, ProductListModel::PriceRole), QStringLiteral("€90.00"));
    EXPECT_EQ(asked(), 1);
    CartFixture::settle(sent());
}

TEST_F(RecoRailTest, APageLoadsOnUntilNothingNewComesAndAFailureKeepsWhatIsShown)
{
    RecoRail rail({}, services);
    rail.load();
    settle(rail);
    EXPECT_EQ(rail.phase(), RecoRail::Phase::Failed);
    recommend(forYou, page(0, 24));
    rail.load();
    settle(rail);
    EXPECT_EQ(rail.count(), 24);
    // The next page can show nothing, and is passed over; the page after it is the last.
    for (const QString& handle : page(24, 24).split(u' '))
        hidden.hide(handle, {});
    QStringList offsets;
    server.allow("GET /api/support/widget/reco", [&offsets](const ReceivedRequest& request) {
        offsets.append(item(request, "offset"));
        const int offset = offsets.back().toInt();
        return Answer::json({{QStringLiteral("products"), recommended(page(offset, offset == 48 ? 3 : 24))}});
    });
    rail.loadMore();
    rail.loadMore();
    settle(rail);
    EXPECT_EQ(offsets, QStringList({QStringLiteral("24"), QStringLiteral("48")}));
    EXPECT_EQ(rail.count(), 27);
    EXPECT_FALSE(rail.hasNextPage());
    server.allow("GET /api/support/widget/reco", [](const ReceivedRequest&) { return Answer::body("[", 200); });
    rail.reload();
    settle(rail);
    EXPECT_EQ(rail.phase(), RecoRail::Phase::Loaded);
    EXPECT_EQ(rail.count(), 27);
    EXPECT_FALSE(rail.errorText().isEmpty());

    // A store that does not know how to go on says the same again and again.
    server.allow("GET /api/support/widget/reco", [](const ReceivedRequest&) {
        return Answer::json({{QStringLiteral("products"), recommended(page(0, 24))}});
    });
    rail.reload();
    settle(rail);
    ASSERT_TRUE(rail.hasNextPage());
    rail.loadMore();
    settle(rail);
    EXPECT_FALSE(rail.hasNextPage());
    EXPECT_EQ(rail.count(), 24);
}

TEST_F(RecoRailTest, APieceHasItsCompanionsEachOnceAndNeverItself)
{
    server.expect("GET /api/support/widget/pdp-reco",
                  Answer::json({{QStringLiteral("alsoViewed"), recommended(QStringLiteral("me a b"))},
                                {QStringLiteral("outfit"), recommended(QStringLiteral("b c me"))}}));
    server.expect("GET /api/support/widget/vessa/product-stats", Answer::body(R"({"stats": {"me": {"sold": 12031}}})"));
    ProductCompanions companions(QStringLiteral("me"), services, api);
    companions.load();
    companions.loadSold();
    EXPECT_TRUE(companions.isAwaited());
    waitUntil([&] { return companions.isLoaded() && companions.unitsSold() > 0; }, "everything has come");
    EXPECT_EQ(shownIn(*companions.alsoViewed()), "a b");
    EXPECT_EQ(shownIn(*companions.outfit()), "c");
    EXPECT_EQ(companions.similar()->count(), 0);
    hidden.hide(QStringLiteral("b"), {});
    EXPECT_EQ(shownIn(*companions.outfit()), "c");
    EXPECT_EQ(companions.unitsSold(), 12031);
}

TEST_F(RecoRailTest, TheCatalogStandsInWhereTheStoreRecommendsNothing)
{
    hidden.hide(QStringLiteral("h"), {});
    for (const Answer& without : {Answer::body("", 404), Answer::json({})}) {
        server.expect("GET /api/support/widget/pdp-reco", without);
        answer("Product", QJsonObject{{QStringLiteral("product"), productJson(QStringLiteral("me"))}});
        answer("Recommendations",
               QJsonObject{{QStringLiteral("productRecommendations"),
                            cards({QStringLiteral("me"), QStringLiteral("h"), QStringLiteral("s")})}});
        ProductCompanions companions(QStringLiteral("me"), services, api);
        companions.load();
        waitUntil([&] { return companions.isLoaded(); }, "the catalog has answered");
        EXPECT_EQ(companions.alsoViewed()->count() + companions.outfit()->count(), 0);
        ASSERT_EQ(companions.similar()->count(), 1);
        EXPECT_EQ(companions.similar()->items().front().handle, QStringLiteral("s"));
    }
    server.expect("GET /api/support/widget/pdp-reco", Answer::body("", 404));
    answer("Product", Answer::body("", 404));
    ProductCompanions lost(QStringLiteral("me"), services, api);
    lost.load();
    waitUntil([&] { return !lost.isLoading(); }, "nobody has answered");
    EXPECT_FALSE(lost.isAwaited());
    EXPECT_FALSE(lost.isLoaded());
}

TEST_F(RecoRailTest, ASavedRecommendationIsCompletedOnceTheStoreCanBeReached)
{
    WishlistStore wishlist(folder, preferences, widget, session, clock);
    RecoSaving saving(wishlist, api);
    wishlist.load();
    const RecoProduct piece{.handle = QStringLiteral("a"), .title = QStringLiteral("A"), .priceUSD = 100};
    answer("Product", Answer::body("", 404));
    wishlist.toggle(QVariant::fromValue(cardOf(piece, AppLanguage::English)));
    server.waitForRequests(1);
    drainEvents();
    ASSERT_TRUE(wishlist.contains(QStringLiteral("a")));
    EXPECT_EQ(wishlist.items().front().id, QString());
    EXPECT_EQ(wishlist.items().front().price, (Money{.amount = 100, .currencyCode = QStringLiteral("USD")}));

    answer("Product", QJsonObject{{QStringLiteral("product"), productJson(QStringLiteral("a"))}});
    waitUntil(
        [&] {
            saving.complete(); // while one attempt is under way this does nothing
            return !wishlist.items().front().id.isEmpty();
        },
        "the piece is complete");
    const ProductListItem& item = wishlist.items().front();
    EXPECT_EQ(item.seenPrice, item.price.amount);
    EXPECT_EQ(item.seenCurrency, item.price.currencyCode);
    EXPECT_EQ(item.recoReason, QStringLiteral("Handpicked"));
    saving.complete();
    drainEvents();
    EXPECT_EQ(server.requests().size(), 2U);
}

} // namespace
