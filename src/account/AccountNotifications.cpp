#include "account/AccountNotifications.h"

#include "account/AuthStore.h"
#include "base/Clock.h"
#include "net/WidgetClient.h"
#include "storage/DataFolder.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace loom
{

namespace
{

const QString listFile = QStringLiteral("snap-notifications");
const QString stateFile = QStringLiteral("lst_notifications_state");

/// So many are there at once when the inbox is opened the next time.
constexpr std::size_t mostSaved = 100;
/// So many the backend hears of in one call.
constexpr qsizetype mostTold = 500;

QByteArray snapshotOf(const NotificationPage& page, const QDateTime& savedAt)
{
    return QJsonDocument(
               QJsonObject{{QStringLiteral("value"), toJson(page)}, {QStringLiteral("savedAt"), formatDate(savedAt)}})
        .toJson(QJsonDocument::Compact);
}

/// Those of `others` that `list` does not hold follow behind it.
void append(std::vector<AccountNotification>& list, std::span<const AccountNotification> others)
{
    QSet<QString> known;
    known.reserve(static_cast<qsizetype>(list.size()));
    for (const AccountNotification& notification : list)
        known.insert(notification.id);
    for (const AccountNotification& notification : others) {
        if (list.size() < AccountNotifications::mostHeld && !known.contains(notification.id))
            list.push_back(notification);
    }
}

/// Whether the backend would say the same again.
bool isRefusedForGood(const Failure& failure)
{
    const auto* const http = failure.isCancelled() ? nullptr : failure.error().as<APIError::Http>();
    return http && (http->status == 400 || http->status == 404 || http->status == 422) && !isRefusedSession(*http);
}

} // namespace

AccountNotifications::AccountNotifications(AuthStore& auth, Announcements& announcements, WidgetClient& widget,
                                           DataFolder& folder, Clock& clock, QObject* parent)
    : AccountContent(auth, announcements, {listFile, stateFile}, parent)
    , m_api(widget)
    , m_folder(folder)
    , m_clock(clock)
    , m_loadingMore([this] { Q_EMIT loadingMoreChanged(); })
{
}

int AccountNotifications::unreadCount() const
{
    return m_isAllRead ? 0 : std::max(0, m_unread - static_cast<int>(m_untold.size()));
}

QString AccountNotifications::moreErrorText() const
{
    return m_moreFailure ? errorDescription(*m_moreFailure) : QString();
}

QCoro::Task<ApiResult<void>> AccountNotifications::fetch(std::stop_token stop)
{
    auto page = co_await readPage({}, stop);
    if (stop.stop_requested())
        co_return Unexpected(Failure(Cancelled()));
    if (!page)
        co_return Unexpected(std::move(page).error());
    co_return {};
}

QCoro::Task<ApiResult<NotificationPage>> AccountNotifications::page(QString cursor, std::stop_token stop)
{
    auto page = co_await readPage(cursor, stop);
    if (stop.stop_requested())
        co_return Unexpected(Failure(Cancelled()));
    if (page && phase() == Phase::Failed)
        reload(); // what kept a page from being shown is over
    co_return page;
}

QCoro::Task<ApiResult<NotificationPage>> AccountNotifications::readPage(QString cursor, std::stop_token stop)
{
    const int confirmations = m_confirmations;
    auto page = co_await m_api.page(cursor, stop);
    if (stop.stop_requested())
        co_return Unexpected(Failure(Cancelled()));
    if (!page)
        co_return page;
    restoreUntold();
    if (confirmations != m_confirmations)
        keepRead(*page);
    applyUntold(*page);
    if (cursor.isEmpty())
        takeFirst(*page);
    else if (cursor == m_nextCursor)
        takeNext(*page);
    tellRead(); // what could not be told before
    co_return page;
}

void AccountNotifications::takeFirst(const NotificationPage& page)
{
    std::vector<AccountNotification> list = page.notifications;
    QString nextCursor = page.nextCursor;
    // What was asked for behind the first page stays, where the two meet. What was saved long ago does not.
    if (m_origin == Origin::Backend && !list.empty() && !page.nextCursor.isEmpty()) {
        const auto last = std::ranges::find(m_list, list.back().id, &AccountNotification::id);
        if (last != m_list.end()) {
            append(list, std::span(last + 1, m_list.end()));
            nextCursor = m_nextCursor;
        }
    }
    const bool isNew = list != m_list || page.unreadCount != m_unread;
    const bool wasSaved = std::exchange(m_origin, Origin::Backend) != Origin::Nowhere;
    if (!isNew && wasSaved && nextCursor == m_nextCursor)
        return;
    m_list = std::move(list);
    m_nextCursor = std::move(nextCursor);
    m_unread = page.unreadCount;
    saveList();
    Q_EMIT listChanged();
}

void AccountNotifications::takeNext(const NotificationPage& page)
{
    append(m_list, page.notifications);
    m_nextCursor = page.nextCursor;
    m_unread = page.unreadCount;
    Q_EMIT listChanged();
}

void AccountNotifications::keepRead(NotificationPage& page) const
{
    QSet<QString> read;
    for (const AccountNotification& notification : m_list) {
        if (!notification.isUnread)
            read.insert(notification.id);
    }
    for (AccountNotification& notification : page.notifications)
        notification.isUnread = notification.isUnread && !read.contains(notification.id);
    page.unreadCount = m_unread;
}

void AccountNotifications::applyUntold(NotificationPage& page)
{
    for (AccountNotification& notification : page.notifications) {
        if (!m_untold.contains(notification.id))
            continue;
        if (!notification.isUnread)
            m_untold.remove(notification.id); // it was read elsewhere too
        notification.isUnread = false;
    }
}

void AccountNotifications::loadMore()
{
    if (canLoadMore() && !isLoadingMore() && m_origin == Origin::Backend)
        static_cast<void>(readOn());
}

QCoro::Task<> AccountNotifications::readOn()
{
    const Work::Run run = m_loadingMore.begin();
    m_moreFailure.reset();
    const auto page = co_await readPage(m_nextCursor, run.stop());
    if (run.isStopped())
        co_return;
    if (!page && !page.error().isCancelled())
        m_moreFailure = page.error().error();
}

void AccountNotifications::markRead(const QString& id)
{
    const auto found = std::ranges::find(m_list, id, &AccountNotification::id);
    if (found == m_list.end() || !found->isUnread || !auth().isSignedIn())
        return;
    found->isUnread = false;
    m_untold.insert(id);
    saveUntold();
    saveList();
    Q_EMIT listChanged();
    tellRead();
}

void AccountNotifications::markAllRead()
{
    if (unreadCount() == 0 || !auth().isSignedIn())
        return;
    for (AccountNotification& notification : m_list) {
        if (std::exchange(notification.isUnread, false))
            m_untold.insert(notification.id);
    }
    m_isAllRead = true;
    saveUntold();
    saveList();
    Q_EMIT listChanged();
    tellRead();
}

void AccountNotifications::tellRead()
{
    if (!m_telling.isRunning() && auth().isSignedIn() && (m_isAllRead || !m_untold.isEmpty()))
        static_cast<void>(tellBackend());
}

QCoro::Task<> AccountNotifications::tellBackend()
{
    const Work::Run run = m_telling.begin();
    while (m_isAllRead || !m_untold.isEmpty()) {
        const bool tellsAll = m_isAllRead;
        const QStringList untold = m_untold.values();
        const QStringList ids = tellsAll ? untold : untold.mid(0, mostTold);
        auto telling = tellsAll ? m_api.markAllRead(run.stop()) : m_api.markRead(ids, run.stop());
        const auto unread = co_await std::move(telling);
        if (run.isStopped())
            co_return;
        if (tellsAll)
            m_isAllRead = false; // told later it would also be about what nobody has seen yet: then by their ids
        if (!unread && !isRefusedForGood(unread.error())) {
            Q_EMIT listChanged();
            co_return; // once more with the next answer
        }
        confirm(ids, unread ? *unread : m_unread);
    }
}

void AccountNotifications::confirm(const QStringList& ids, int unread)
{
    for (const QString& id : ids)
        m_untold.remove(id);
    m_unread = unread;
    ++m_confirmations;
    saveUntold();
    saveList();
    Q_EMIT listChanged();
}

bool AccountNotifications::restore()
{
    restoreUntold();
    if (m_origin != Origin::Nowhere)
        return true;
    auto saved = m_folder.loadSnapshot(listFile, decodeNotificationPage);
    if (!saved)
        return false;
    m_origin = Origin::File;
    m_list = std::move(saved->value.notifications);
    m_unread = saved->value.unreadCount;
    Q_EMIT listChanged();
    return true;
}

void AccountNotifications::restoreUntold()
{
    if (std::exchange(m_didRestoreUntold, true))
        return;
    const auto read = m_folder.load(stateFile, [](const JsonReader& json) { return json.textList("read"); });
    for (const QString& id : read.value_or(QStringList()).mid(0, static_cast<qsizetype>(mostHeld)))
        m_untold.insert(id);
}

void AccountNotifications::clear()
{
    m_loadingMore.stop();
    m_telling.stop();
    m_origin = Origin::Nowhere;
    m_list.clear();
    m_nextCursor.clear();
    m_unread = 0;
    m_untold.clear();
    m_isAllRead = false;
    m_didRestoreUntold = false;
    m_moreFailure.reset();
    Q_EMIT listChanged();
}

void AccountNotifications::saveList()
{
    NotificationPage page{.unreadCount = m_unread};
    const auto count = static_cast<std::ptrdiff_t>(std::min(m_list.size(), mostSaved));
    page.notifications.assign(m_list.begin(), m_list.begin() + count);
    m_folder.save(listFile, [page = std::move(page), savedAt = m_clock.now()] { return snapshotOf(page, savedAt); });
}

void AccountNotifications::saveUntold()
{
    if (m_untold.isEmpty())
        m_folder.remove(stateFile);
    else
        m_folder.save(stateFile, QJsonObject{{QStringLiteral("read"), QJsonArray::fromStringList(m_untold.values())}});
}

} // namespace loom
