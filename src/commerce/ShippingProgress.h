#pragma once

#include "catalog/MarketRate.h"
#include "catalog/Money.h"

namespace loom
{

/// How far a cart is from free delivery.
struct ShippingProgress {
    double fraction = 0; ///< 0 to 1
    Money threshold;     ///< in the cart's currency
    Money remaining;     ///< of 0 once delivery is free

    [[nodiscard]] bool isFree() const { return remaining.amount <= 0; }

    bool operator==(const ShippingProgress&) const = default;
};

/// `threshold` is in US dollars. Nothing when the rate does not lead to the currency of the cart.
[[nodiscard]] std::optional<ShippingProgress> shippingProgress(const Money& subtotal, double threshold,
                                                               const std::optional<MarketRate>& rate);

} // namespace loom
