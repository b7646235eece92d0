#pragma once

#include "stylist/MiraMessage.h"

namespace loom
{

/// The conversation as the service holds it.
struct MiraInitResponse {
    QString visitorToken; ///< empty where the service gave none
    bool hasConversation = false;
    std::optional<QString> failureCode;
    std::vector<MiraMessage> messages; ///< the oldest first, each once

    bool operator==(const MiraInitResponse&) const = default;
};

} // namespace loom
