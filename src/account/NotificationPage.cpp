#include "account/NotificationPage.h"

#include "base/JsonReader.h"

#include <QJsonArray>
#include <QSet>

namespace loom
{

NotificationPage decodeNotificationPage(const JsonReader& json)
{
    NotificationPage page{.notifications =
                              JsonReader::decodeEach(json.list("notifications"), decodeAccountNotification),
                          .nextCursor = json.optionalText("nextCursor").value_or(QString())};
    QSet<QString> known;
    std::erase_if(page.notifications, [&known](const AccountNotification& notification) {
        const qsizetype before = known.size();
        known.insert(notification.id);
        return known.size() == before;
    });
    const auto unread = std::ranges::count_if(page.notifications, &AccountNotification::isUnread);
    page.unreadCount = static_cast<int>(
        std::clamp<qint64>(json.optionalInteger("unreadCount").value_or(unread), 0, NotificationPage::mostUnread));
    return page;
}

QJsonObject toJson(const NotificationPage& page)
{
    QJsonArray notifications;
    for (const AccountNotification& notification : page.notifications)
        notifications.append(toJson(notification));
    return {{QStringLiteral("notifications"), notifications},
            {QStringLiteral("nextCursor"), page.nextCursor},
            {QStringLiteral("unreadCount"), page.unreadCount}};
}

} // namespace loom
