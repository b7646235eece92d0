// What the notifier does to find news.

#include "base/Clock.h"
#include "net/NetworkStatus.h"
#include "notify/DesktopNotifier.h"
#include "notify/NoticeText.h"
#include "notify/NotificationType.h"
#include "notify/OwnNotices.h"
#include "storage/DataFolder.h"

namespace loom
{

namespace
{

const QString tokenFile = QStringLiteral("lst_support_visitor_token");

/// A list longer than that is not read to its end.
constexpr std::size_t mostRead = 10000;
/// So many more identifiers than those that stay anyway make it worth the while to read the whole list.
constexpr qsizetype prunedFrom = NotificationLedger::mostGone + 1000;

AppNotification notificationOf(const AccountNotification& item, const QString& key, const QString& account)
{
    const NotificationType& type = notificationType(item.type);
    return {.id = key,
            .title = item.title.isEmpty() ? entryOf(type.category).title.translated() : item.title,
            .body = adaptedForDesktop(item.body),
            .symbol = QString::fromLatin1(type.symbol),
            .type = item.type,
            .link = item.link,
            .accountID = account};
}

} // namespace

void DesktopNotifier::check()
{
    if (!isChecking() && m_ledger && !m_services.network.isOffline())
        static_cast<void>(look());
}

QCoro::Task<> DesktopNotifier::look()
{
    const Work::Run run = m_checking.begin();
    // A failure of one source is silent, and none of the other's business.
    std::vector<Arrival> arrivals = co_await supportReplies(run.stop());
    if (run.isStopped())
        co_return;
    if (const QString account = currentAccount(); !account.isEmpty()) {
        std::vector<Arrival> more = co_await accountNotifications(account, run.stop());
        if (run.isStopped())
            co_return;
        std::ranges::move(more, std::back_inserter(arrivals));
    }
    co_await deliverAll(std::move(arrivals), m_owned.get_token());
}

bool DesktopNotifier::hasSupportConversation()
{
    const auto token =
        m_services.folder.load(tokenFile, [](const JsonReader& json) { return json.asText().value_or(QString()); });
    return token && !token->isEmpty();
}

QCoro::Task<std::vector<DesktopNotifier::Arrival>> DesktopNotifier::supportReplies(std::stop_token stop)
{
    std::vector<Arrival> arrivals;
    if (!m_services.support.replies || !hasSupportConversation())
        co_return arrivals;
    const auto replies = co_await m_services.support.replies(stop);
    if (stop.stop_requested() || !replies)
        co_return arrivals;
    const bool isSeen = m_services.support.isOnScreen && m_services.support.isOnScreen();
    for (const SupportReply& reply : *replies) {
        if (reply.messageID.isEmpty() || !reply.date.isValid() || reply.date <= m_ledger->startedAt())
            continue;
        AppNotification notification = ownNotices::supportReply(reply.messageID, reply.text);
        if (m_ledger->contains(notification.id))
            continue;
        arrivals.push_back({.notification = std::move(notification),
                            .inboxDate = isSeen ? std::nullopt : std::optional(reply.date),
                            .isSeen = isSeen});
    }
    co_return arrivals;
}

QCoro::Task<std::vector<DesktopNotifier::Arrival>> DesktopNotifier::accountNotifications(QString account,
                                                                                         std::stop_token stop)
{
    std::vector<Arrival> arrivals;
    if (!m_services.account.page)
        co_return arrivals;
    // The list is read as far as it holds news; only a ledger that has grown long is worth more than that.
    const bool readsAll = !m_didReadAll && m_ledger->delivered().size() > prunedFrom;
    QSet<QString> present;
    QString cursor;
    bool goesOn = true;
    while (goesOn) {
        const auto page = co_await m_services.account.page(cursor, stop);
        if (stop.stop_requested() || !page)
            co_return arrivals;
        const qsizetype known = present.size();
        const std::size_t before = arrivals.size();
        for (const AccountNotification& item : page->notifications) {
            const QString key = QStringLiteral("account-") + item.id;
            const qsizetype count = present.size();
            present.insert(key);
            if (present.size() == count)
                continue; // a list that moved while it was read
            if (item.isUnread && item.date && *item.date > m_ledger->startedAt() && !m_ledger->contains(key))
                arrivals.push_back({.notification = notificationOf(item, key, account)});
        }
        const bool hasNews = arrivals.size() > before;
        const bool hasMore = present.size() > known && static_cast<std::size_t>(present.size()) < mostRead;
        cursor = page->nextCursor;
        goesOn = !cursor.isEmpty() && hasMore && (hasNews || readsAll);
        if (!cursor.isEmpty())
            continue;
        m_didReadAll = true;
        if (m_ledger->prune(present))
            saveLedger();
    }
    co_return arrivals;
}

} // namespace loom
