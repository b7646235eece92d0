#pragma once

#include "stylist/MiraMessage.h"

namespace loom
{

/// A message as the thread holds it.
struct MiraEntry {
    enum class State {
        Sent,
        Sending,
        Unconfirmed, ///< the service may have it or not
    };

    QString key; ///< stays the same when the service gives the message its identifier
    MiraMessage message;
    State state = State::Sent;
    int attempts = 0;   ///< how often it was sent, as far as the service has not shown them all yet
    QDateTime lastSent; ///< by this machine's clock; invalid for what was not sent from here

    [[nodiscard]] bool isMine() const { return message.direction == MiraDirection::Outbound; }

    bool operator==(const MiraEntry&) const = default;
};

} // namespace loom
