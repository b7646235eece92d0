#include "commerce/PriceDrop.h"

#include <cmath>

namespace loom
{

std::optional<Money> droppedFrom(const ProductListItem& seen, const Money& now)
{
    if (!seen.seenPrice || !std::isfinite(*seen.seenPrice) || seen.seenCurrency != now.currencyCode)
        return std::nullopt;
    // A price of nothing is none.
    if (now.amount <= 0 || now.amount >= *seen.seenPrice)
        return std::nullopt;
    return Money{.amount = *seen.seenPrice, .currencyCode = now.currencyCode};
}

} // namespace loom
