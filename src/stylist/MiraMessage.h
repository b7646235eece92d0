#pragma once

#include "stylist/MiraAttachment.h"

#include <QDateTime>

#include <vector>

namespace loom
{

enum class MiraDirection {
    Inbound, ///< the stylist's
    Outbound ///< the shopper's
};

/// One message of the conversation with the stylist.
struct MiraMessage {
    QString serverID;
    MiraDirection direction = MiraDirection::Inbound;
    QString body;
    std::vector<MiraAttachment> attachments;
    QDateTime createdAt; ///< in UTC; invalid where the service did not say

    bool operator==(const MiraMessage&) const = default;
};

} // namespace loom
