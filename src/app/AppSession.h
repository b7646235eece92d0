#pragma once

#include "net/APIError.h"
#include "net/NetworkStatus.h"

#include <QObject>

namespace loom
{

/// What all windows share beside the stores: whether the machine is connected and whether the application is in
/// front. Main thread.
class AppSession final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isOffline READ isOffline NOTIFY isOfflineChanged)
    Q_PROPERTY(bool isMetered READ isMetered NOTIFY isMeteredChanged)
    Q_PROPERTY(QString connectionError READ connectionError NOTIFY isOfflineChanged)
    Q_PROPERTY(bool isActive READ isActive NOTIFY isActiveChanged)

public:
    explicit AppSession(const NetworkStatus& network, QObject* parent = nullptr)
        : QObject(parent)
        , m_network(network)
    {
        connect(&network, &NetworkStatus::changed, this, &AppSession::isOfflineChanged);
        connect(&network, &NetworkStatus::meteredChanged, this, &AppSession::isMeteredChanged);
    }

    [[nodiscard]] bool isOffline() const { return m_network.isOffline(); }
    [[nodiscard]] bool isMetered() const { return m_network.isMetered(); }
    /// The sentence for something that could not be reached, where nothing else is known of the failure.
    [[nodiscard]] QString connectionError() const
    {
        return errorDescription(isOffline() ? APIError{APIError::Offline{}} : APIError{APIError::Network{}});
    }
    [[nodiscard]] bool isActive() const { return m_isActive; }
    void setActive(bool isActive)
    {
        if (std::exchange(m_isActive, isActive) != isActive)
            Q_EMIT isActiveChanged();
    }

Q_SIGNALS:
    void isOfflineChanged();
    void isMeteredChanged();
    void isActiveChanged();

private:
    const NetworkStatus& m_network;
    bool m_isActive = false;
};

} // namespace loom
