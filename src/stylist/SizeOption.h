#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace loom
{

struct Product;
struct ProductOption;

/// Whether an option's name says "size" in any of the store's languages.
[[nodiscard]] bool isSizeOption(const QString& name);

/// The option by which sizes are chosen, the first where there are several; null when the piece has none.
[[nodiscard]] const ProductOption* sizeOption(const Product& product);

/// The value that is `size`, whatever the case of its letters, as the piece writes it; one that is written alike comes
/// before one that is not.
[[nodiscard]] std::optional<QString> matchingSize(const QStringList& values, const QString& size);

} // namespace loom
