#pragma once

#include "stylist/MiraMessage.h"

namespace loom
{

/// What came of a message: the shopper's own as the service received it, and the replies.
struct MiraSendResponse {
    std::vector<MiraMessage> messages; ///< the oldest first, each once

    bool operator==(const MiraSendResponse&) const = default;
};

} // namespace loom
