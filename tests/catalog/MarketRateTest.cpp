#include "catalog/MarketRate.h"

#include "catalog/StorefrontAPI.h"
#include "support/Json.h"

namespace loom
{

namespace
{

const QDateTime now(QDate(2025, 3, 9), QTime(8, 7, 6), Qt::UTC);

MarketRate rateOf(double rate)
{
    return {.currency = QStringLiteral("EUR"), .rate = rate, .sampledAt = now, .country = QStringLiteral("DE")};
}

std::optional<MarketSample> sample(double sum, const char* currency)
{
    return MarketSample{.sum = sum, .currency = QLatin1String(currency)};
}

} // namespace

TEST(MarketRateTest, ARateFollowsFromTwoSamplesInTwoCurrencies)
{
    struct Row {
        std::optional<MarketSample> market;
        std::optional<MarketSample> dollars;
        std::optional<double> rate;
    };
    for (const Row& row : {
             Row{sample(450, "EUR"), sample(500, "USD"), 0.9},
             Row{sample(75000, "JPY"), sample(500, "USD"), 150},
             Row{sample(500, "USD"), sample(500, "USD"), std::nullopt},
             Row{std::nullopt, sample(500, "USD"), std::nullopt},
             Row{sample(450, "EUR"), std::nullopt, std::nullopt},
             Row{sample(1e308 * 10, "EUR"), sample(1e308 * 10, "USD"), std::nullopt},
             Row{sample(1e-300, "EUR"), sample(1e300, "USD"), std::nullopt},
         }) {
        const auto measured = measuredRate(QStringLiteral("DE"), row.market, row.dollars, now);
        ASSERT_EQ(measured.has_value(), row.rate.has_value());
        if (measured) {
            EXPECT_EQ(*measured, (MarketRate{.currency = row.market->currency,
                                             .rate = *row.rate,
                                             .sampledAt = now,
                                             .country = QStringLiteral("DE")}));
        }
    }
}

TEST(MarketRateTest, DollarsAreConvertedToTheCent)
{
    struct Row {
        double amount;
        double rate; ///< none when negative
        const char* text;
    };
    for (const Row& row : {Row{19.999, 1, "20.00"}, Row{99, 0.9, "89.10"}, Row{99, 150.123, "14862.18"},
                           Row{0, 0.9, "0.00"}, Row{10, 0.12345, "1.23"}, Row{1234567.891, 1, "1234567.89"},
                           Row{19.999, -1, "20.00"}, Row{99, -1, "99.00"}}) {
        const auto rate = row.rate < 0 ? std::nullopt : std::optional(rateOf(row.rate));
        EXPECT_EQ(convertUSDollars(row.amount, rate),
                  (ConvertedAmount{QLatin1String(row.text), rate ? QStringLiteral("EUR") : QStringLiteral("USD")}));
    }
}

} // namespace loom
