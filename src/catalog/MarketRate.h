#pragma once

#include "base/JsonReader.h"
#include "catalog/Money.h"

#include <QDateTime>
#include <QJsonObject>
#include <QString>

#include <chrono>

namespace loom
{

struct MarketSample;

/// An approximate conversion of US dollars into a market's currency, for amounts that are fixed in dollars.
struct MarketRate {
    static constexpr std::chrono::seconds lifetime{43200};

    QString currency; ///< ISO 4217
    double rate = 1;  ///< US dollars times `rate` are the amount in `currency`
    QDateTime sampledAt;
    QString country; ///< the market it was measured for

    bool operator==(const MarketRate&) const = default;

    /// Whether it may be used for `market` at `now`. A rate from the future is not.
    [[nodiscard]] bool isUsable(const QString& market, const QDateTime& now) const;
};

[[nodiscard]] MarketRate decodeStoredRate(const JsonReader& json);
[[nodiscard]] QJsonObject toJson(const MarketRate& rate);

/// The rate that follows from what the same products cost in a market and in the United States; none when either
/// could not be measured or both are in one currency.
[[nodiscard]] std::optional<MarketRate> measuredRate(const QString& country, const std::optional<MarketSample>& market,
                                                     const std::optional<MarketSample>& unitedStates,
                                                     const QDateTime& now);

/// An amount as text with two decimals, and its currency.
struct ConvertedAmount {
    QString text;
    QString currencyCode;

    [[nodiscard]] Money money() const { return {.amount = text.toDouble(), .currencyCode = currencyCode}; }

    bool operator==(const ConvertedAmount&) const = default;
};

/// US dollars in the market's currency; in US dollars where there is no rate.
[[nodiscard]] ConvertedAmount convertUSDollars(double amount, const std::optional<MarketRate>& rate);

} // namespace loom
