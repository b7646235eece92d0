#include "platform/SystemNetworkStatus.h"

#include <QNetworkInformation>

namespace loom
{

SystemNetworkStatus::SystemNetworkStatus(QObject* parent)
    : NetworkStatus(parent)
{
    using enum QNetworkInformation::Feature;
    if (QNetworkInformation::loadBackendByFeatures(Reachability | Metered) ||
        QNetworkInformation::loadBackendByFeatures(Reachability)) {
        const QNetworkInformation* const information = QNetworkInformation::instance();
        connect(information, &QNetworkInformation::reachabilityChanged, this, &NetworkStatus::changed);
        connect(information, &QNetworkInformation::isMeteredChanged, this, &NetworkStatus::meteredChanged);
    }
}

bool SystemNetworkStatus::isOffline() const
{
    const QNetworkInformation* const information = QNetworkInformation::instance();
    return information && information->reachability() == QNetworkInformation::Reachability::Disconnected;
}

bool SystemNetworkStatus::isMetered() const
{
    const QNetworkInformation* const information = QNetworkInformation::instance();
    return information && information->isMetered();
}

} // namespace loom
