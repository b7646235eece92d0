#pragma once

#include "stylist/MiraEntry.h"

#include <vector>

namespace loom
{

/// What a topic is called that nobody named: the first words in it, whole ones as far as they are not too long. Empty
/// for one without words.
[[nodiscard]] QString miraTopicTitle(const std::vector<MiraEntry>& entries);

} // namespace loom
