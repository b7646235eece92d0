#pragma once

#include "net/NetworkStatus.h"

namespace loom
{

/// On line, at no cost, until a test says otherwise.
class FakeNetworkStatus final : public NetworkStatus
{
public:
    [[nodiscard]] bool isOffline() const override { return m_isOffline; }
    [[nodiscard]] bool isMetered() const override { return m_isMetered; }

    void setOffline(bool isOffline)
    {
        if (std::exchange(m_isOffline, isOffline) != isOffline)
            Q_EMIT changed();
    }
    void setMetered(bool isMetered)
    {
        if (std::exchange(m_isMetered, isMetered) != isMetered)
            Q_EMIT meteredChanged();
    }

private:
    bool m_isOffline = false;
    bool m_isMetered = false;
};

} // namespace loom
