#pragma once

#include "base/KeyedText.h"

#include <QString>

#include <optional>

namespace loom
{

/// The condition that a WMO code (table 4677) stands for, worded for the stylist: "Partly cloudy". Never translated.
[[nodiscard]] QString weatherWord(std::optional<int> code);

/// The same condition for the shopper.
[[nodiscard]] KeyedText weatherLabel(std::optional<int> code);

/// A temperature as the stylist reads it: "18", "18.5", and "0" for what is no number.
[[nodiscard]] QString temperatureText(double celsius);

} // namespace loom
