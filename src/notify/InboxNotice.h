#pragma once

#include "notify/AppNotification.h"

#include <QDateTime>

namespace loom
{

/// A notice that this machine made, as the inbox keeps it.
struct InboxNotice {
    AppNotification notification;
    QDateTime date; ///< UTC
    bool isUnread = true;

    bool operator==(const InboxNotice&) const = default;
};

} // namespace loom
