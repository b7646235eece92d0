#pragma once

#include "catalog/ProductListItem.h"

namespace loom
{

/// A product to open, with the card that is shown at once while the full product loads.
struct ProductPreview {
    QString handle;
    std::optional<ProductListItem> item;

    bool operator==(const ProductPreview&) const = default;
};

} // namespace loom
