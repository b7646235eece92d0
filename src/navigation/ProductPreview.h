#pragma once

#include "catalog/ProductListItem.h"

#include <QVariant>

namespace loom
{

/// A product to open, with the card that is shown at once while the full product loads.
struct ProductPreview {
    Q_GADGET
    Q_PROPERTY(QString handle MEMBER handle)
    Q_PROPERTY(QVariant item READ itemVariant)

public:
    QString handle;
    std::optional<ProductListItem> item;

    [[nodiscard]] QVariant itemVariant() const { return item ? QVariant::fromValue(*item) : QVariant(); }

    bool operator==(const ProductPreview&) const = default;
};

} // namespace loom

Q_DECLARE_METATYPE(loom::ProductPreview)
