#pragma once

#include "catalog/Money.h"

namespace loom
{

/// A piece of an order, as often as it was bought.
struct OrderLine {
    QString title;
    QString variantTitle; ///< "Black / M"; empty when there is but one
    QString handle;       ///< of the piece in the shop; empty when it is no more
    QString imageURL;
    int quantity = 1;
    std::optional<Money> price; ///< of one

    bool operator==(const OrderLine&) const = default;
};

} // namespace loom
