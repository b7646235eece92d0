#pragma once

#include <span>

namespace loom
{

// How loud sound is. Pure; nothing is allocated.

/// Of at least one sample.
[[nodiscard]] float rootMeanSquare(std::span<const float> samples);

/// A root mean square as meters show it, from 0 to 1: 50 decibels, as ears have them.
[[nodiscard]] float shownLoudness(float rootMeanSquare);

} // namespace loom
