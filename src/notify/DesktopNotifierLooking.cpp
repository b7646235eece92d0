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
    // A clock that is behind the ledger is wrong, or was when the ledger began. From then on dates say nothing; what
    // there is by now is recorded instead, and all that is not recorded is new.
    const bool takesStock = m_ledger->startedAt() > m_services.clock.now();
    // A failure of one source is silent, and none of the other's business.
    Reading reading = co_await supportReplies(takesStock, run.stop());
    if (run.isStopped())
        co_return;
    if (const QString account = currentAccount(); !account.isEmpty()) {
        Reading more = co_await accountNotifications(account, takesStock, run.stop());
        if (run.isStopped())
            co_return;
        std::ranges::move(more.arrivals, std::back_inserter(reading.arrivals));
        reading.isWhole = reading.isWhole && more.isWhole;
    }
    const QCoro::Task<> delivered = deliverAll(std::move(reading.arrivals), m_owned.get_token());
    // After it, on the disk as well: whatever ends the process between the two, nothing comes again.
    if (takesStock && reading.isWhole && m_ledger->correctStart(m_services.clock.now()))
        saveLedger();
    co_await delivered;
}

bool DesktopNotifier::hasSupportConversation()
{
    const auto token =
        m_services.folder.load(tokenFile, [](const JsonReader& json) { return json.asText().value_or(QString()); });
    return token && !token->isEmpty();
}

QCoro::Task<DesktopNotifier::Reading> DesktopNotifier::supportReplies(bool takesStock, std::stop_token stop)
{
    if (!m_services.support.replies || !hasSupportConversation())
        co_return {.arrivals = {}, .isWhole = true};
    const auto replies = co_await m_services.support.replies(stop);
    if (stop.stop_requested() || !replies)
        co_return {};
    std::vector<Arrival> arrivals;
    for (const SupportReply& reply : *replies) {
        if (reply.messageID.isEmpty() || !reply.date.isValid())
            continue;
        const bool isBefore = reply.date <= m_ledger->startedAt();
        if (isBefore && !takesStock)
            continue;
        const bool isSeen = isBefore || isSupportOnScreen();
        AppNotification notification = ownNotices::supportReply(reply.messageID, reply.text);
        if (m_ledger->contains(notification.id))
            continue;
        notification.accountID = currentAccount(); // whoever comes next is not to read it
        arrivals.push_back({.notification = std::move(notification),
                            .inboxDate = isSeen ? std::nullopt : std::optional(reply.date),
                            .isSeen = isSeen});
    }
    co_return {.arrivals = std::move(arrivals), .isWhole = true};
}

QCoro::Task<DesktopNotifier::Reading> DesktopNotifier::accountNotifications(QString account, bool takesStock,
                                                                            std::stop_token stop)
{
    std::vector<Arrival> arrivals;
    if (!m_services.account.page)
        co_return {.arrivals = {}, .isWhole = true};
    // The list is read as far as it holds news, unless the ledger has grown long, or a page failed the last time: what
    // stands behind that one would be hidden by those before it, which were delivered.
    const bool readsAll = takesStock || m_didBreakOff || (!m_didReadAll && m_ledger->delivered().size() > prunedFrom);
    QSet<QString> present;
    QString cursor;
    bool goesOn = true;
    while (goesOn) {
        const auto page = co_await m_services.account.page(cursor, stop);
        if (stop.stop_requested())
            co_return {};
        if (!page) {
            m_didBreakOff = m_didBreakOff || !cursor.isEmpty();
            co_return {.arrivals = std::move(arrivals), .isWhole = false};
        }
        const qsizetype known = present.size();
        const std::size_t before = arrivals.size();
        for (const AccountNotification& item : page->notifications) {
            const QString key = QStringLiteral("account-") + item.id;
            const qsizetype count = present.size();
            present.insert(key);
            if (present.size() == count)
                continue; // a list that moved while it was read
            if (!item.isUnread || !item.date || m_ledger->contains(key))
                continue;
            const bool isBefore = *item.date <= m_ledger->startedAt();
            if (!isBefore || takesStock)
                arrivals.push_back(
                    {.notification = notificationOf(item, key, account), .inboxDate = {}, .isSeen = isBefore});
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
    m_didBreakOff = false;
    co_return {.arrivals = std::move(arrivals), .isWhole = true};
}

} // namespace loom
