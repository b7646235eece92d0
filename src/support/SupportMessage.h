#pragma once

#include "support/SupportAttachment.h"

#include <QDateTime>

#include <vector>

namespace loom
{

enum class SupportDirection {
    Inbound, ///< customer service's
    Outbound ///< the shopper's
};

/// One message of the conversation with customer service.
struct SupportMessage {
    QString id;       ///< the service's; empty of what it does not have yet
    QString clientID; ///< under which it was sent, where the service says so
    SupportDirection direction = SupportDirection::Inbound;
    QString body; ///< may be empty beside attachments
    std::vector<SupportAttachment> attachments;
    QDateTime createdAt; ///< in UTC; invalid where the service did not say
    QString agent;       ///< who wrote it, of customer service

    bool operator==(const SupportMessage&) const = default;
};

} // namespace loom
