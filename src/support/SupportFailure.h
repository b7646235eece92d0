#pragma once

#include "net/APIError.h"
#include "support/SupportFile.h"

#include <variant>

namespace loom
{

/// Why something did not reach customer service, or nothing came from there.
using SupportFailure = std::variant<APIError, SupportFileProblem>;

/// The sentence the shopper reads, in the language of the window.
[[nodiscard]] QString errorDescription(const SupportFailure& failure);

} // namespace loom
