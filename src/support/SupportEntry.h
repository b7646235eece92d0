#pragma once

#include "support/SupportFailure.h"
#include "support/SupportMessage.h"

#include <optional>

namespace loom
{

/// A message as the thread holds it.
struct SupportEntry {
    enum class State {
        Sent,
        Sending,     ///< on its way, or waiting for those before it
        Unconfirmed, ///< the service may have it or not
    };

    QString key; ///< stays the same when the service gives the message its identifier
    SupportMessage message;
    State state = State::Sent;
    std::optional<SupportFile> file;       ///< of what is not sent yet
    std::optional<SupportFailure> failure; ///< of the last attempt, where it is known

    [[nodiscard]] bool isMine() const { return message.direction == SupportDirection::Outbound; }

    bool operator==(const SupportEntry&) const = default;
};

} // namespace loom
