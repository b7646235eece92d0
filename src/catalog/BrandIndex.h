#pragma once

#include "catalog/Brand.h"

#include <vector>

namespace loom
{

/// The designers below one letter of the index.
struct BrandSection {
    QString letter; ///< "A" to "Z", or "#" for what begins with none of them
    std::vector<Brand> brands;

    bool operator==(const BrandSection&) const = default;
};

/// A name as it is sorted and looked for: small letters without accents, in the Latin alphabet as far as it has one.
[[nodiscard]] QString foldedName(const QString& name);

/// The index of designers, those without a letter first. A leading "The" is part of a name. With a `filter` only the
/// names that contain it.
[[nodiscard]] std::vector<BrandSection> indexOf(const std::vector<Brand>& brands, const QString& filter);

} // namespace loom
