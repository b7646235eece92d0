#include "catalog/MarketStore.h"

#include "catalog/MarketChoicesModel.h"
#include "support/ShopFixture.h"

#include <QFile>

using namespace loom;
using namespace std::chrono_literals;
using testing::ElementsAre;

namespace
{

const QString germany = QStringLiteral("DE");
const QString japan = QStringLiteral("JP");

QJsonValue sample(const char* amount, const char* currency)
{
    return changed(
        changed(json(R"({"products": {"nodes": [{"priceRange": {"minVariantPrice": {}}}]}})"),
                QStringLiteral("products.nodes[0].priceRange.minVariantPrice.amount"), QLatin1String(amount)),
        QStringLiteral("products.nodes[0].priceRange.minVariantPrice.currencyCode"), QLatin1String(currency));
}

const char* const countries = R"({"localization": {"availableCountries": [
    {"isoCode": "DE", "name": "Germany", "currency": {"isoCode": "EUR"}},
    {"isoCode": "JP", "name": "Japan", "currency": {"isoCode": "JPY"}}]}})";

class MarketStoreTest : public ShopFixture
{
protected:
    std::unique_ptr<MarketStore> make(const QString& country = germany)
    {
        return std::make_unique<MarketStore>(MarketContext{.country = country}, client, api, folder, preferences,
                                             clock);
    }
    void put(const char* file, const QByteArray& content) const
    {
        QFile writing(home.path() + QLatin1Char('/') + QLatin1String(file));
        ASSERT_TRUE(writing.open(QIODevice::WriteOnly));
        writing.write(content);
    }
    [[nodiscard]] QByteArray stored(const char* file)
    {
        folder.waitUntilWritten();
        QFile reading(home.path() + QLatin1Char('/') + QLatin1String(file));
        return reading.open(QIODevice::ReadOnly) ? reading.readAll() : QByteArray("none");
    }
    static std::vector<std::string> titles(const MarketChoicesModel& picker)
    {
        std::vector<std::string> titles;
        titles.reserve(static_cast<std::size_t>(picker.count()));
        for (int i = 0; i < picker.count(); ++i)
            titles.push_back(picker.data(picker.index(i), MarketChoicesModel::TitleRole).toString().toStdString());
        return titles;
    }
    void answerRate(const QString& country, const char* amount, const char* currency)
    {
        answer(QStringLiteral("RateSample ") + country, envelope(sample(amount, currency)));
        answer("RateSample US", sample("200.0", "USD"));
    }
    void settle(std::size_t requests)
    {
        server.waitForRequests(requests);
        waitUntil([this] { return clock.sleepers() == 0; }, "every answer has arrived");
        QThreadPool::globalInstance()->waitForDone();
        drainEvents();
    }
};

const char* const fresh = R"({"country":"DE","currency":"EUR","rate":0.5,"sampledAt":"2025-03-09T08:00:00.000Z"})";

TEST_F(MarketStoreTest, AStoredRateIsUsedWhileItHoldsAndMeasuredAnewOtherwise)
{
    struct Row {
        QByteArray file;
        const char* country;
        bool isUsed;
    };
    for (const Row& row : {
             Row{fresh, "DE", true},
             Row{QByteArray(fresh).replace("09T08:00:00", "08T20:07:07"), "DE", true},
             Row{QByteArray(fresh).replace("09T08:00:00", "08T20:07:06"), "DE", false},
             Row{fresh, "JP", false},
             Row{QByteArray(fresh).chopped(4), "DE", false},
         }) {
        put("lst_market_rate_v1.json", row.file);
        const auto store = make(QLatin1String(row.country));
        answer("Countries", Answer::body("", 404));
        if (!row.isUsed)
            answerRate(QLatin1String(row.country), "180.0", "EUR");
        const std::size_t before = sent();
        store->load();
        EXPECT_EQ(store->rate().has_value(), row.isUsed) << row.file.constData();
        settle(before + (row.isUsed ? 1 : 3));
        ASSERT_TRUE(store->rate());
        EXPECT_EQ(store->rate()->rate, row.isUsed ? 0.5 : 0.9) << row.file.constData();
        EXPECT_EQ(store->convertUSDollars(100).text, row.isUsed ? QStringLiteral("50.00") : QStringLiteral("90.00"));
        if (!row.isUsed) {
            EXPECT_EQ(stored("lst_market_rate_v1.json"),
                      QByteArray(R"({"country":")") + row.country +
                          R"(","currency":"EUR","rate":0.9,"sampledAt":"2025-03-09T08:07:06.000Z"})");
        }
    }
}

TEST_F(MarketStoreTest, CountriesAreShownFromTheSnapshotUntilTheStoreAnswers)
{
    put("snap-countries.json", R"({"savedAt":"2025-03-01T00:00:00Z","value":[
        {"isoCode":"DE","name":"Deutschland","currency":"EUR"},{"isoCode":"FR"}]})");
    put("lst_market_rate_v1.json", fresh);
    const auto store = make();
    answer("Countries", json(countries));
    store->load();
    EXPECT_EQ(store->countries().size(), 1U);
    EXPECT_EQ(store->countryName(), QStringLiteral("Deutschland"));
    settle(1);
    EXPECT_EQ(store->countryName(), QStringLiteral("Germany"));
    EXPECT_EQ(store->countries().size(), 2U);
    const QByteArray kept = stored("snap-countries.json");
    answer("Countries", json(R"({"localization": {"availableCountries": [{"isoCode": "DE"}, null]}})"));
    store->refreshCountries();
    settle(2);
    EXPECT_EQ(store->countries().size(), 2U); // a list that cannot be read takes nothing away
    EXPECT_EQ(stored("snap-countries.json"), kept);
    answer("Countries", json(R"({"localization": {"availableCountries": [
        {"isoCode": "FR", "name": "France", "currency": {"isoCode": "EUR"}}]}})"));
    store->refreshCountries();
    settle(3);
    EXPECT_EQ(store->country(), germany); // one that the shop no longer sells to is still where the shopper is
    MarketChoicesModel picker(MarketChoicesModel::Countries, *store);
    EXPECT_THAT(titles(picker), ElementsAre("France", "Germany"));
    EXPECT_EQ(picker.currentRow(), 1);
}

TEST_F(MarketStoreTest, AnotherCountryIsAnotherMarketForEverythingThatFollows)
{
    const auto store = make();
    answer("Countries", json(countries));
    answerRate(germany, "180.0", "EUR");
    store->load();
    settle(3);
    ASSERT_TRUE(store->rate());

    int revisions = 0;
    QObject::connect(store.get(), &MarketStore::revisionChanged, store.get(), [&] {
        ++revisions;
        EXPECT_EQ(client.country(), japan);                                   // whoever is told asks in the new market
        EXPECT_EQ(preferences.value(preferences::marketCurrency), QString()); // not known, and not the former one
    });
    answerRate(japan, "30000", "JPY");
    EXPECT_TRUE(store->setCountry(QStringLiteral("jp")));
    EXPECT_EQ(store->country(), japan);
    EXPECT_EQ(store->currency(), QString());
    EXPECT_EQ(revisions, 1);
    EXPECT_FALSE(store->rate()); // the former market's is not used
    settle(5);
    EXPECT_EQ(store->convertUSDollars(99), (ConvertedAmount{QStringLiteral("14850.00"), QStringLiteral("JPY")}));
    EXPECT_EQ(preferences.value(preferences::marketCountry), japan);
    EXPECT_EQ(preferences.value(preferences::marketCurrency), QStringLiteral("JPY"));

    // The list says yen; what the store answers in counts.
    answer("ProductsByIDs", QJsonObject{{QStringLiteral("nodes"), cards({QStringLiteral("silk")})}});
    EXPECT_TRUE(run(api.productsByIDs({QStringLiteral("1")}, {})));
    EXPECT_EQ(store->currency(), QStringLiteral("USD"));
    preferences.set(preferences::marketCurrency, QStringLiteral("JPY"));

    EXPECT_TRUE(store->setCountry(japan));
    for (const char* const none : {"", "XX", "PR", "Japan", "J"})
        EXPECT_FALSE(store->setCountry(QLatin1String(none))) << none;
    EXPECT_EQ(revisions, 1);
    EXPECT_EQ(sent(), 6U);

    EXPECT_EQ(make(germany)->country(), japan); // a choice outlives the process
}

TEST_F(MarketStoreTest, AnAnswerForTheFormerMarketIsDropped)
{
    const auto store = make();
    answer("RateSample DE", envelope(sample("180.0", "EUR")).pauseAfter(0));
    answer("RateSample US", envelope(sample("200.0", "USD")).pauseAfter(0));
    store->refreshRate();
    server.waitForRequests(2);
    answerRate(japan, "30000", "JPY");
    store->setCountry(japan);
    settle(4);
    server.proceed();
    drainEvents();
    EXPECT_EQ(store->rate()->currency, QStringLiteral("JPY"));
}

TEST_F(MarketStoreTest, AnotherLanguageNamesTheCountriesAnewAndTheLatestWins)
{
    const auto store = make();
    answer("Countries", envelope(json(countries)).pauseAfter(0));
    store->refreshCountries();
    server.waitForRequests(1);
    answer("Countries", json(R"({"localization": {"availableCountries": [
        {"isoCode": "DE", "name": "Allemagne", "currency": {"isoCode": "EUR"}}]}})"));
    store->setLanguage(AppLanguage::French);
    EXPECT_EQ(store->context().language, AppLanguage::French);
    EXPECT_EQ(store->revision(), 1);
    settle(2);
    server.proceed();
    drainEvents();
    EXPECT_EQ(store->countryName(), QStringLiteral("Allemagne"));
    EXPECT_EQ(bytes(variables(1)), R"({"language":"FR"})");
    EXPECT_EQ(make()->context().language, AppLanguage::French); // a choice outlives the process
}

TEST_F(MarketStoreTest, ThePickerFindsByNameCodeAndCurrencyWithoutCaseAndAccents)
{
    put("snap-countries.json", R"({"savedAt":"2025-03-01T00:00:00Z","value":[
        {"isoCode":"CI","name":"Côte d’Ivoire","currency":"XOF"},{"isoCode":"DE","name":"Germany","currency":"EUR"},
        {"isoCode":"DK","name":"Denmark","currency":"DKK"},{"isoCode":"SE","name":"Sweden","currency":"SEK"},
        {"isoCode":"AX","name":"Åland Islands","currency":"EUR"}]})");
    put("lst_market_rate_v1.json", fresh);
    answer("Countries", Answer::body("", 404));
    const auto store = make();
    store->load();
    settle(1);
    MarketChoicesModel picker(MarketChoicesModel::Countries, *store);
    struct Row {
        const char* typed;
        std::vector<std::string> found;
    };
    for (const Row& row : std::vector<Row>{
             {"de", {"Denmark", "Germany", "Sweden"}}, // a name, a code, inside a name
             {"COTE D'I", {"Côte d’Ivoire"}},
             {"aland", {"Åland Islands"}},
             {"eur", {"Åland Islands", "Germany"}},
             {"islands", {"Åland Islands"}},
             {"xyz", {}},
         }) {
        picker.setFilter(QString::fromUtf8(row.typed));
        EXPECT_EQ(titles(picker), row.found) << row.typed;
    }
}

TEST_F(MarketStoreTest, AStoreThatGoesWhileItWorksTakesItsRequestsWithIt)
{
    auto store = make();
    for (const char* const operation : {"Countries", "RateSample DE", "RateSample US"})
        answer(operation, Answer::silence());
    store->load();
    server.waitForRequests(3);
    store.reset();
    EXPECT_EQ(clock.sleepers(), 0);
}

} // namespace
