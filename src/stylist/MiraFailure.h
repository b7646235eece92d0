#pragma once

#include "net/APIError.h"

namespace loom
{

/// Why a call to the stylist failed, reduced to a code. Each has one fixed sentence.
struct MiraFailure {
    QString code;   ///< the service's own, or "OFFLINE", "NETWORK_TIMEOUT" or "GENERIC_FAILED"
    int status = 0; ///< of the answer; 0 without one

    bool operator==(const MiraFailure&) const = default;
};

[[nodiscard]] MiraFailure miraFailure(const APIError& error);

/// The sentence the shopper reads, in the language of the window.
[[nodiscard]] QString errorDescription(const MiraFailure& failure);

} // namespace loom
