#pragma once

#include "account/NotificationPage.h"
#include "net/ApiResult.h"

#include <qcoro/qcorotask.h>

#include <functional>
#include <stop_token>

namespace loom
{

/// Where the notifier reads what the signed-in account was told.
struct AccountNotificationsSource {
    /// A page of the list, the newest first; the first page for an empty cursor.
    std::function<QCoro::Task<ApiResult<NotificationPage>>(QString cursor, std::stop_token stop)> page;
    /// The shopper opened the one of this id.
    std::function<void(const QString& id)> markRead;
};

/// A message of customer service.
struct SupportReply {
    QString messageID;
    QString text; ///< empty when it is nothing but an attachment
    QDateTime date;

    bool operator==(const SupportReply&) const = default;
};

/// Where the notifier reads what customer service answered.
struct SupportRepliesSource {
    /// The latest replies, whether or not they were read before.
    std::function<QCoro::Task<ApiResult<std::vector<SupportReply>>>(std::stop_token stop)> replies;
    /// The shopper sees the conversation now, and so what arrives.
    std::function<bool()> isOnScreen;
};

} // namespace loom
