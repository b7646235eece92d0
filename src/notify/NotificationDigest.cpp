#include "notify/NotificationDigest.h"

#include "notify/NotificationType.h"

#include <QCoreApplication>

namespace loom
{

namespace
{

QString digestText(int count)
{
    return QCoreApplication::translate("Loomstreet", "%Ln more notifications are waiting in your inbox.", nullptr,
                                       count);
}

} // namespace

std::vector<AppNotification> digestsOf(const std::vector<AppNotification>& notifications, const QString& accountID)
{
    struct Heap {
        int count = 0;
        QString symbol;
    };
    std::array<Heap, notifyCategoryEntries.size()> heaps;
    for (const AppNotification& notification : notifications) {
        Heap& heap = heaps[static_cast<std::size_t>(notificationType(notification.type).category)];
        if (heap.count++ == 0)
            heap.symbol = notification.symbol;
    }
    std::vector<AppNotification> digests;
    for (const NotifyCategoryEntry& entry : notifyCategoryEntries) {
        const Heap& heap = heaps[static_cast<std::size_t>(entry.category)];
        if (heap.count == 0)
            continue;
        // The same for every digest of a category: on the desktop the newer takes the place of the older.
        digests.push_back({.id = QStringLiteral("digest-") + QLatin1String(entry.rawValue),
                           .title = entry.title.translated(),
                           .body = digestText(heap.count),
                           .symbol = heap.symbol,
                           .type = QStringLiteral("digest"),
                           .link = QStringLiteral("/notifications"),
                           .accountID = accountID});
    }
    return digests;
}

} // namespace loom
