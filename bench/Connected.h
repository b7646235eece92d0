#pragma once

#include "net/NetworkStatus.h"

namespace loom
{

/// Never offline nor dear.
class Connected final : public NetworkStatus
{
public:
    [[nodiscard]] bool isOffline() const override { return false; }
    [[nodiscard]] bool isMetered() const override { return false; }
};

} // namespace loom
