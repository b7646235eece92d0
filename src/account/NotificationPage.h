#pragma once

#include "account/AccountNotification.h"

#include <vector>

namespace loom
{

/// A part of what a customer was told, the newest first.
struct NotificationPage {
    /// A count that cannot be true is taken for this one.
    static constexpr qint64 mostUnread = 1'000'000;

    std::vector<AccountNotification> notifications;
    QString nextCursor;  ///< of the part behind this one; empty at the end
    int unreadCount = 0; ///< in all of the list

    bool operator==(const NotificationPage&) const = default;
};

/// No two of the same id; what cannot be read is left out.
[[nodiscard]] NotificationPage decodeNotificationPage(const JsonReader& json);
[[nodiscard]] QJsonObject toJson(const NotificationPage& page);

} // namespace loom
