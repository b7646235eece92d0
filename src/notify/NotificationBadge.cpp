#include "notify/NotificationBadge.h"

#include "notify/LauncherBadge.h"
#include "storage/Preferences.h"

namespace loom
{

NotificationBadge::NotificationBadge(Preferences& preferences, LauncherBadge& launcher, QObject* parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_launcher(launcher)
{
    connect(&preferences, &Preferences::changed, this, [this](const QString& key) {
        if (key == QLatin1String(preferences::notifyBadge.key))
            follow();
    });
}

QString NotificationBadge::textFor(int count)
{
    if (count <= 0)
        return {};
    return count > 99 ? QStringLiteral("99+") : QString::number(count);
}

void NotificationBadge::setUnreadCount(int count)
{
    if (m_count == count)
        return;
    m_count = count;
    follow();
    Q_EMIT changed();
}

void NotificationBadge::follow()
{
    const int shown = m_preferences.value(preferences::notifyBadge) ? m_count : 0;
    if (std::exchange(m_shown, shown) != shown)
        m_launcher.show(shown);
}

} // namespace loom
