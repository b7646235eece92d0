#include "stylist/voice/Loudness.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace loom
{

float rootMeanSquare(std::span<const float> samples)
{
    const float power = std::inner_product(samples.begin(), samples.end(), samples.begin(), 0.0F);
    return std::sqrt(power / static_cast<float>(samples.size()));
}

float shownLoudness(float rootMeanSquare)
{
    const float decibels = 20 * std::log10(rootMeanSquare + 1e-6F);
    return std::clamp((decibels + 60) / 50, 0.0F, 1.0F);
}

} // namespace loom
