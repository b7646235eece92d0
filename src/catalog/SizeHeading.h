#pragma once

#include <QString>

namespace loom
{

/// The unit that a heading or a title states for the bare numbers it stands for.
enum class StatedUnit {
    None,
    Centimetres,
    Kilograms,
    Fixed, ///< one that is not switched: imperial, millimetres, or more than one
};

/// "Bust (cm)" states centimetres; "Model is 170 cm tall" states nothing, for that unit belongs to its number.
[[nodiscard]] StatedUnit statedUnit(const QString& heading);

/// Whether a heading names a system of sizes, such as "Size", "EU", "US / UK" or "JP (cm)": what stands there is no
/// measure, whatever unit is stated.
[[nodiscard]] bool namesSizes(const QString& heading);

/// `heading` with the metric unit it states replaced: "Bust (cm)" becomes "Bust (in)", "in cm" becomes "in inches".
[[nodiscard]] QString imperialHeading(const QString& heading);

} // namespace loom
