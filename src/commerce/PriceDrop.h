#pragma once

#include "catalog/ProductListItem.h"

namespace loom
{

/// What a piece cost when the shopper saw it, if it costs less now. Only prices in one currency can be compared.
[[nodiscard]] std::optional<Money> droppedFrom(const ProductListItem& seen, const Money& now);

} // namespace loom
