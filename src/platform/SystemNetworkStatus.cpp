#include "platform/SystemNetworkStatus.h"

#include <QNetworkInformation>

namespace loom
{

SystemNetworkStatus::SystemNetworkStatus(QObject* parent)
    : NetworkStatus(parent)
{
    if (QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability)) {
        connect(QNetworkInformation::instance(), &QNetworkInformation::reachabilityChanged, this,
                &NetworkStatus::changed);
    }
}

bool SystemNetworkStatus::isOffline() const
{
    const QNetworkInformation* const information = QNetworkInformation::instance();
    return information && information->reachability() == QNetworkInformation::Reachability::Disconnected;
}

} // namespace loom
