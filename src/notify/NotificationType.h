#pragma once

#include "notify/NotificationCategory.h"
#include "notify/NotifyCategory.h"

namespace loom
{

/// What a type of news means to this application.
struct NotificationType {
    const char* name; ///< as the server, or this application, writes it
    NotifyCategory category;
    NotificationCategory tab;
    const char* symbol;
};

/// The row of the one table of types; one that is not known is a system alert.
[[nodiscard]] const NotificationType& notificationType(const QString& name);

} // namespace loom
