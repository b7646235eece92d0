#pragma once

#include <QString>

#include <optional>

namespace loom
{

/// A measure as somebody typed it: decimal digits of any script, and perhaps a fraction behind a point or a comma,
/// whatever the language ("5,7" is 5.7: measures never reach the thousands, which is what a comma could otherwise
/// part). No sign, no exponent, no unit, and not more digits than any measure has.
[[nodiscard]] std::optional<double> enteredNumber(const QString& text);

} // namespace loom
