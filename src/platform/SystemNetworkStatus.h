#pragma once

#include "net/NetworkStatus.h"

namespace loom
{

/// What the desktop's network service says, where there is one; otherwise the machine counts as connected.
class SystemNetworkStatus final : public NetworkStatus
{
    Q_OBJECT

public:
    explicit SystemNetworkStatus(QObject* parent = nullptr);

    [[nodiscard]] bool isOffline() const override;
    [[nodiscard]] bool isMetered() const override;
};

} // namespace loom
