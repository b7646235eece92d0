#pragma once

#include "support/SupportMessage.h"

#include <optional>

namespace loom
{

/// What either side wrote since, the oldest first.
struct SupportRepliesResponse {
    std::vector<SupportMessage> messages;
    std::optional<int> unreadCount; ///< where the service says it

    bool operator==(const SupportRepliesResponse&) const = default;
};

} // namespace loom
