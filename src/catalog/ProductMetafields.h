#pragma once

#include "catalog/AeoSection.h"
#include "catalog/BuyerReviewData.h"
#include "catalog/Metafield.h"
#include "catalog/ProductSpecs.h"

#include <optional>
#include <vector>

namespace loom
{

/// What a product's metafields say to its page.
struct ProductMetafields {
    QList<SpecRow> specs;
    QStringList highlights;
    QStringList composition;
    QList<AeoSection> aeoSections;
    std::optional<QString> presale;
    QList<TableSection> sizeSections;
    std::optional<double> rating; ///< above 0, up to 5
    std::optional<int> ratingCount;
    std::optional<BuyerReviewData> reviews;
    std::optional<QString> sourceItemID;
    std::optional<QString> sizeHint;

    bool operator==(const ProductMetafields&) const = default;
};

/// Reads the metafields that the application knows; `docs/metafields.md` describes their values. A value that does not
/// parse leaves its own field empty.
[[nodiscard]] ProductMetafields productMetafields(const std::vector<Metafield>& metafields);

} // namespace loom
