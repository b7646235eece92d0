#include "commerce/ShippingProgress.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

using namespace loom;

namespace
{

TEST(ShippingProgressTest, WhatIsLeftIsCountedInTheCurrencyOfTheCart)
{
    const MarketRate euros{.currency = QStringLiteral("EUR"), .rate = 0.5, .sampledAt = {}, .country = {}};
    const MarketRate yen{.currency = QStringLiteral("JPY"), .rate = 150, .sampledAt = {}, .country = {}};
    struct Row {
        double subtotal;
        const char* currency;
        double threshold; ///< in US dollars
        std::optional<MarketRate> rate;
        double fraction;
        double shownThreshold;
        double remaining;
        bool isFree;
    };
    for (const Row& row : {
             Row{0, "USD", 99, {}, 0, 99, 99, false}, Row{98.5, "USD", 99, {}, 98.5 / 99, 99, 0.5, false},
             Row{99, "USD", 99, {}, 1, 99, 0, true}, Row{-5, "USD", 99, {}, 0, 99, 104, false},
             Row{0, "USD", 0, {}, 1, 0, 0, true}, Row{10, "USD", -1, {}, 1, -1, 0, true},
             Row{49.49, "EUR", 99, euros, 49.49 / 49.5, 49.5, 0.01, false},
             Row{49.5, "EUR", 99, euros, 1, 49.5, 0, true}, Row{7425, "JPY", 99, yen, 0.5, 14850, 7425, false},
             Row{49.5, "USD", 99, euros, 0.5, 99, 49.5, false}, // a cart that stayed in dollars
         }) {
        const Money subtotal{.amount = row.subtotal, .currencyCode = QString::fromUtf8(row.currency)};
        const auto progress = shippingProgress(subtotal, row.threshold, row.rate);
        ASSERT_TRUE(progress) << row.subtotal << row.currency;
        EXPECT_DOUBLE_EQ(progress->fraction, row.fraction) << row.subtotal;
        EXPECT_DOUBLE_EQ(progress->threshold.amount, row.shownThreshold) << row.subtotal;
        EXPECT_NEAR(progress->remaining.amount, row.remaining, 1e-9) << row.subtotal;
        EXPECT_EQ(progress->isFree(), row.isFree) << row.subtotal;
        EXPECT_EQ(progress->remaining.currencyCode, subtotal.currencyCode);
        EXPECT_EQ(progress->threshold.currencyCode, subtotal.currencyCode);
    }
    // Into a currency without a rate nothing is promised.
    EXPECT_EQ(shippingProgress({.amount = 10, .currencyCode = QStringLiteral("EUR")}, 99, {}), std::nullopt);
    EXPECT_EQ(shippingProgress({.amount = 10, .currencyCode = QStringLiteral("GBP")}, 99, euros), std::nullopt);
}

} // namespace
