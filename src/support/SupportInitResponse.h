#pragma once

#include "support/SupportMessage.h"

namespace loom
{

/// The conversation with customer service as it was opened.
struct SupportInitResponse {
    QString visitorToken;
    std::vector<SupportMessage> messages; ///< the oldest first
    int unreadCount = 0;

    bool operator==(const SupportInitResponse&) const = default;
};

} // namespace loom
