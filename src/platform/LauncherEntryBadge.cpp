#include "platform/LauncherEntryBadge.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace loom
{

void LauncherEntryBadge::show(int count)
{
    QDBusMessage signal =
        QDBusMessage::createSignal(QStringLiteral("/com/canonical/unity/launcherentry/1"),
                                   QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
    signal << m_uri
           << QVariantMap{{QStringLiteral("count"), qint64{count}}, {QStringLiteral("count-visible"), count > 0}};
    QDBusConnection::sessionBus().send(signal);
}

} // namespace loom
