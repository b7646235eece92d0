#pragma once

#include "net/NetworkStatus.h"

namespace loom
{

/// On line until a test says otherwise.
class FakeNetworkStatus final : public NetworkStatus
{
public:
    [[nodiscard]] bool isOffline() const override { return m_isOffline; }

    void setOffline(bool isOffline)
    {
        if (std::exchange(m_isOffline, isOffline) != isOffline)
            Q_EMIT changed();
    }

private:
    bool m_isOffline = false;
};

} // namespace loom
