#pragma once

#include <QObject>

namespace loom
{

/// What the system says of its connection. Main thread.
class NetworkStatus : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isOffline READ isOffline NOTIFY changed)

public:
    using QObject::QObject;

    /// True only when the system is sure that there is no network.
    [[nodiscard]] virtual bool isOffline() const = 0;
    /// Every byte may cost the shopper something.
    [[nodiscard]] virtual bool isMetered() const = 0;

Q_SIGNALS:
    void changed();
    void meteredChanged();
};

} // namespace loom
