#include "commerce/KeptPiecesModel.h"

#include "commerce/CompareModel.h"
#include "commerce/PriceDropsModel.h"
#include "commerce/RecentlyViewedStore.h"

#include "support/ShopFixture.h"

#include <QAbstractItemModelTester>

#include <random>

using namespace loom;

namespace
{

class KeptPiecesModelTest : public ShopFixture
{
protected:
    KeptPiecesModelTest()
    {
        preferences.set(preferences::marketCurrency, QStringLiteral("USD"));
        dollars.emplace(MarketContext{.country = QStringLiteral("US")}, client, api, folder, preferences, clock);
        viewed.load();
    }
    void record(const char* handle, int number, double price, const char* currency)
    {
        viewed.record({.id = QStringLiteral("gid://shopify/Product/%1").arg(number),
                       .handle = QString::fromLatin1(handle),
                       .title = {},
                       .price = {.amount = price, .currencyCode = QString::fromLatin1(currency)}});
    }
    [[nodiscard]] static QJsonValue node(const char* handle, int number, const char* price)
    {
        QJsonValue card = changed(cardJson(QString::fromLatin1(handle)), QStringLiteral("id"),
                                  QStringLiteral("gid://shopify/Product/%1").arg(number));
        return changed(card, QStringLiteral("priceRange.minVariantPrice.amount"), QLatin1String(price));
    }
    [[nodiscard]] static std::string prices(const PieceListModel& list)
    {
        QStringList shown;
        for (int i = 0; i < list.count(); ++i)
            shown.append(list.data(list.index(i), ProductListModel::HandleRole).toString() + QLatin1Char(' ') +
                         list.data(list.index(i), ProductListModel::PriceRole).toString() + QLatin1Char(' ') +
                         list.data(list.index(i), ProductListModel::ReasonRole).toString() +
                         list.data(list.index(i), ProductListModel::LabelRole).toString());
        return shown.join(QLatin1Char('\n')).toStdString();
    }

    RecentlyViewedStore viewed{folder, clock};
    [[nodiscard]] KeptPiecesModel::Services services()
    {
        return {.api = api, .market = *dollars, .money = money, .clock = clock};
    }

    std::optional<MarketStore> dollars; ///< knows the currency of the last time
};

TEST_F(KeptPiecesModelTest, APriceOfAnotherMarketIsNotShownAndOneOfThisMarketIsTheLatest)
{
    record("gone", 4, 50, "USD");
    record("broken", 0, 50, "USD");
    viewed.record({.id = QStringLiteral("gid://shopify/Product/1\""), .handle = QStringLiteral("odd"), .price = {}});
    record("yen", 2, 9000, "JPY");
    record("dollar", 1, 100, "USD");
    KeptPiecesModel model(viewed, services());
    EXPECT_EQ(prices(*model.pieces()), "dollar $100.00 \nyen  \nodd  \nbroken $50.00 \ngone $50.00 ");
    answer("ProductsByIDs",
           QJsonObject{{QStringLiteral("nodes"), QJsonArray{node("dollar", 1, "80.0"), node("yen", 2, "60.0"),
                                                            QJsonValue::Null, node("broken", 0, "50.0")}}});
    model.look(0, 4);
    waitUntil([&model] { return model.pieces()->rows()[1].price.has_value(); }, "the prices have come");
    EXPECT_EQ(sent(), 1);
    EXPECT_EQ(prices(*model.pieces()), "dollar $80.00 $20.00 less nowNew\nyen $60.00 New\nodd  \n"
                                       "broken $50.00 New\ngone  Not available");

    // In another language they are asked for anew, and shown until they come.
    const std::string shown = prices(*model.pieces());
    answer("ProductsByIDs", Answer::body("", 404));
    answer("Countries", Answer::body("", 404));
    dollars->setLanguage(AppLanguage::French);
    EXPECT_EQ(prices(*model.pieces()), shown);
    waitUntil([&] { return !model.errorText().isEmpty() && !dollars->isLoadingCountries(); }, "there was no answer");
    EXPECT_EQ(prices(*model.pieces()), shown);
}

TEST_F(KeptPiecesModelTest, PriceDropsWaitForAListThatIsStillBeingRead)
{
    record("seen", 1, 100, "USD");
    RecentlyViewedStore unread(folder, clock);
    PriceDropsModel model({&unread}, services());
    answer("LivePrices", QJsonObject{{QStringLiteral("nodes"), QJsonArray{}}});
    model.load();
    EXPECT_EQ(model.phase(), PriceDropsModel::Phase::Loading);
    unread.load();
    waitUntil([&model] { return model.phase() != PriceDropsModel::Phase::Loading; }, "the prices have come");
    EXPECT_EQ(sent(), 1);
    EXPECT_EQ(model.phase(), PriceDropsModel::Phase::Empty);
}

TEST_F(KeptPiecesModelTest, AListBecomesAnyOtherRowByRow)
{
    PieceListModel model(money, clock);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    int removed = 0;
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &model,
                     [&removed](const QModelIndex&, int first, int last) { removed += last - first + 1; });
    std::minstd_rand random(5);
    std::vector<PieceRow> former;
    for (int round = 0; round < 300; ++round) {
        std::vector<PieceRow> rows;
        for (int i = 0; i < 8; ++i) {
            if (random() % 3 != 0)
                rows.push_back({.item = {.handle = QString::number(i)},
                                .state = random() % 4 == 0 ? PieceRow::State::Current : PieceRow::State::Unknown});
        }
        const bool isShuffled = random() % 2 == 0;
        if (isShuffled)
            std::ranges::shuffle(rows, random);
        removed = 0;
        const auto gone = std::ranges::count_if(former, [&rows](const PieceRow& row) {
            return std::ranges::none_of(rows,
                                        [&row](const PieceRow& other) { return other.item.handle == row.item.handle; });
        });
        const bool wasInOrder = std::ranges::is_sorted(former, {}, [](const PieceRow& row) { return row.item.handle; });
        model.show(rows);
        ASSERT_EQ(model.rows(), rows) << round;
        if (!isShuffled && wasInOrder) {
            EXPECT_EQ(removed, gone) << "a row that stays was taken away in round " << round;
        }
        former = rows;
    }
}

TEST(ComparedHandlesTest, EachStandsOnceAndFourAtMost)
{
    const QStringList handles = QString::fromLatin1("a,b,a,,c,d,e").split(QLatin1Char(','));
    EXPECT_EQ(comparedHandles(handles), QString::fromLatin1("a,b,c,d").split(QLatin1Char(',')));
}

} // namespace
