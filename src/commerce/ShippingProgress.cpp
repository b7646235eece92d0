#include "commerce/ShippingProgress.h"

namespace loom
{

std::optional<ShippingProgress> shippingProgress(const Money& subtotal, double threshold,
                                                 const std::optional<MarketRate>& rate)
{
    const ConvertedAmount inMarket = convertUSDollars(threshold, rate);
    const ConvertedAmount inDollars = convertUSDollars(threshold, std::nullopt);
    const ConvertedAmount& converted = subtotal.currencyCode == inDollars.currencyCode ? inDollars : inMarket;
    if (subtotal.currencyCode != converted.currencyCode)
        return std::nullopt;
    const double wanted = converted.text.toDouble();
    const double remaining = std::max(0.0, wanted - subtotal.amount);
    return ShippingProgress{
        .fraction = wanted > 0 ? std::clamp(subtotal.amount / wanted, 0.0, 1.0) : 1.0,
        .threshold = {.amount = wanted, .currencyCode = subtotal.currencyCode},
        .remaining = {.amount = remaining, .currencyCode = subtotal.currencyCode},
    };
}

} // namespace loom
