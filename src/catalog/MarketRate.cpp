#include "catalog/MarketRate.h"

#include "base/Dates.h"
#include "catalog/StorefrontAPI.h"

#include <cmath>

namespace loom
{

bool MarketRate::isUsable(const QString& market, const QDateTime& now) const
{
    const std::chrono::seconds age(sampledAt.secsTo(now));
    return country == market && age >= std::chrono::seconds::zero() && age < lifetime;
}

MarketRate decodeStoredRate(const JsonReader& json)
{
    MarketRate rate{.currency = json.text("currency"),
                    .rate = json.number("rate"),
                    .sampledAt = json.date("sampledAt"),
                    .country = json.text("country")};
    if (!std::isfinite(rate.rate) || rate.rate <= 0)
        json.fail(QStringLiteral("a rate that is not above zero"));
    if (rate.currency.isEmpty())
        json.fail(QStringLiteral("a rate into no currency"));
    return rate;
}

QJsonObject toJson(const MarketRate& rate)
{
    return {{QStringLiteral("currency"), rate.currency},
            {QStringLiteral("rate"), rate.rate},
            {QStringLiteral("sampledAt"), formatDate(rate.sampledAt)},
            {QStringLiteral("country"), rate.country}};
}

std::optional<MarketRate> measuredRate(const QString& country, const std::optional<MarketSample>& market,
                                       const std::optional<MarketSample>& unitedStates, const QDateTime& now)
{
    if (!market || !unitedStates || market->currency == unitedStates->currency)
        return std::nullopt;
    const double rate = market->sum / unitedStates->sum;
    if (!std::isfinite(rate) || rate <= 0)
        return std::nullopt;
    return MarketRate{.currency = market->currency, .rate = rate, .sampledAt = now, .country = country};
}

ConvertedAmount convertUSDollars(double amount, const std::optional<MarketRate>& rate)
{
    if (!rate)
        return {.text = QString::asprintf("%.2f", amount), .currencyCode = QStringLiteral("USD")};
    return {.text = QString::asprintf("%.2f", std::round(amount * rate->rate * 100) / 100),
            .currencyCode = rate->currency};
}

} // namespace loom
