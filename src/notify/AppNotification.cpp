#include "notify/AppNotification.h"

#include "notify/NotificationType.h"

namespace loom
{

bool AppNotification::isAboutSupport() const
{
    return notificationType(type).tab == NotificationCategory::Support;
}

bool AppNotification::isAboutUpdate() const
{
    return id == QLatin1String(updateFailedID);
}

} // namespace loom
