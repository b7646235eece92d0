#pragma once

#include <chrono>

namespace loom
{

/// How long ago the kernel started this process. Negative when it cannot be told.
[[nodiscard]] std::chrono::milliseconds processAge();

} // namespace loom
