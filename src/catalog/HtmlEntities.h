#pragma once

#include <QString>

namespace loom
{

/// `text` with its character references replaced, once: numbers, decimal or hexadecimal, and the names that occur in
/// the copy of a shop (all of Latin-1, punctuation, currencies). What is no reference stays as it is.
[[nodiscard]] QString decodedEntities(QStringView text);

} // namespace loom
