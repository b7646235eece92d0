#include "notify/NotificationsModel.h"

#include "base/Clock.h"
#include "catalog/DateFormat.h"
#include "catalog/RowMerge.h"
#include "notify/InboxNotices.h"
#include "notify/NoticeText.h"
#include "notify/NotificationType.h"

#include <QCoreApplication>

namespace loom
{

namespace
{

/// So many rows more are asked for at once.
constexpr int wantedAtOnce = 20;
/// So many rows may come or go one by one.
constexpr std::size_t mostMerged = 500;

bool belongs(const QString& type, int tab)
{
    switch (notificationType(type).tab) {
    case NotificationCategory::System:
        return tab == NotificationsModel::All || tab == NotificationsModel::System;
    case NotificationCategory::Support:
        return tab == NotificationsModel::All || tab == NotificationsModel::Support;
    case NotificationCategory::Vessa:
        return tab == NotificationsModel::All || tab == NotificationsModel::Vessa;
    }
    return true;
}

} // namespace

NotificationsModel::NotificationsModel(AccountNotifications& account, InboxNotices& inbox, const DateFormat& dates,
                                       const Clock& clock, QObject* parent)
    : QAbstractListModel(parent)
    , m_account(account)
    , m_inbox(inbox)
    , m_dates(dates)
    , m_clock(clock)
{
    connect(&account, &AccountNotifications::listChanged, this, &NotificationsModel::follow);
    connect(&inbox, &InboxNotices::changed, this, &NotificationsModel::follow);
    connect(&account, &AccountNotifications::loadingMoreChanged, this, &NotificationsModel::readOn);
    follow();
}

void NotificationsModel::setTab(int tab)
{
    if (m_tab == tab)
        return;
    m_tab = tab;
    beginResetModel(); // other rows altogether
    m_rows = wantedRows();
    endResetModel();
    Q_EMIT tabChanged();
    Q_EMIT rowsChanged();
    if (m_tab != All && count() < wantedAtOnce)
        want(wantedAtOnce); // what belongs here may stand far behind what does not
}

bool NotificationsModel::isEverythingEmpty() const
{
    return m_account.notifications().empty() && m_inbox.notices().empty();
}

bool NotificationsModel::hasUnread() const
{
    return m_account.unreadCount() > 0 || std::ranges::any_of(m_inbox.notices(), &InboxNotice::isUnread);
}

bool NotificationsModel::canLoadMore() const
{
    return m_account.canLoadMore();
}

void NotificationsModel::loadMore()
{
    want(count() + wantedAtOnce);
}

void NotificationsModel::want(int rows)
{
    m_wanted = rows;
    m_held = m_account.notifications().size();
    m_account.loadMore();
    if (!m_account.isLoadingMore())
        m_wanted = 0;
}

void NotificationsModel::readOn()
{
    if (m_wanted == 0 || m_account.isLoadingMore())
        return;
    // A failure ends it, and so does an answer that brings nothing: the next may be the same for ever.
    const bool brought = m_account.notifications().size() > m_held && m_account.moreErrorText().isEmpty();
    if (brought && count() < m_wanted)
        want(m_wanted);
    else
        m_wanted = 0;
}

void NotificationsModel::markRead(int row)
{
    if (row < 0 || row >= count())
        return;
    const Row& marked = m_rows[static_cast<std::size_t>(row)];
    const QString id = marked.item.id; // the row changes on the way
    if (marked.isLocal)
        m_inbox.markRead(id);
    else
        m_account.markRead(id);
}

void NotificationsModel::markAllRead()
{
    m_inbox.markAllRead();
    m_account.markAllRead();
}

std::vector<NotificationsModel::Row> NotificationsModel::wantedRows() const
{
    const QDateTime today = m_clock.now().toLocalTime().date().startOfDay();
    std::vector<Row> rows;
    bool isEarlier = false;
    std::vector<Row> undated;
    const auto add = [&](Row row) {
        if (!belongs(row.item.type, m_tab))
            return;
        // One without a date is taken to be as old as the one before it, and without one before it older than all;
        // days stay together whatever the dates say.
        if (!row.item.date && rows.empty()) {
            undated.push_back(std::move(row));
            return;
        }
        if (row.item.date && *row.item.date < today)
            isEarlier = true;
        row.isToday = !isEarlier;
        rows.push_back(std::move(row));
    };
    auto own = m_inbox.notices().begin();
    const auto addOwn = [&] {
        const AppNotification& notice = own->notification;
        add({.item = {.id = notice.id,
                      .type = notice.type,
                      .title = notice.title,
                      .body = notice.body,
                      .link = notice.link,
                      .image = {},
                      .date = own->date,
                      .isUnread = own->isUnread},
             .symbol = notice.symbol,
             .isLocal = true});
        ++own;
    };
    for (const AccountNotification& item : m_account.notifications()) {
        while (own != m_inbox.notices().end() && item.date && own->date >= *item.date)
            addOwn();
        add({.item = item, .symbol = {}});
    }
    while (own != m_inbox.notices().end())
        addOwn();
    std::ranges::move(undated, std::back_inserter(rows));
    return rows;
}

void NotificationsModel::follow()
{
    show(wantedRows());
    Q_EMIT rowsChanged();
}

void NotificationsModel::show(std::vector<Row> rows)
{
    if (std::max(rows.size(), m_rows.size()) - std::min(rows.size(), m_rows.size()) > mostMerged) {
        beginResetModel(); // row by row it would keep the window waiting
        m_rows = std::move(rows);
        endResetModel();
        return;
    }
    const auto keys = [](const std::vector<Row>& all) {
        QStringList list;
        list.reserve(static_cast<qsizetype>(all.size()));
        for (const Row& row : all)
            list.append(row.key());
        return list;
    };
    mergeRows(
        keys(m_rows), keys(rows),
        [this](int row) {
            beginRemoveRows({}, row, row);
            m_rows.erase(m_rows.begin() + row);
            endRemoveRows();
        },
        [this](int from, int to) { // always towards the beginning
            beginMoveRows({}, from, from, {}, to);
            std::rotate(m_rows.begin() + to, m_rows.begin() + from, m_rows.begin() + from + 1);
            endMoveRows();
        },
        [this, &rows](int row, std::size_t place) {
            beginInsertRows({}, row, row);
            m_rows.insert(m_rows.begin() + row, rows[place]);
            endInsertRows();
        });
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (m_rows[i] == rows[i])
            continue;
        m_rows[i] = std::move(rows[i]);
        const QModelIndex changed = index(static_cast<int>(i));
        Q_EMIT dataChanged(changed, changed);
    }
}

int NotificationsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant NotificationsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    const NotificationType& type = notificationType(row.item.type);
    switch (role) {
    case NotificationIdRole:
        return row.item.id;
    case TitleRole:
        return row.item.title.isEmpty() ? entryOf(type.category).title.translated() : row.item.title;
    case BodyRole:
        return adaptedForDesktop(row.item.body);
    case SymbolRole:
        return row.symbol.isEmpty() ? QString::fromLatin1(type.symbol) : row.symbol;
    case LinkRole:
        return row.item.link;
    case PictureRole:
        return row.item.image;
    case DateRole:
        return !row.item.date ? QString() : row.isToday ? m_dates.time(*row.item.date) : m_dates.day(*row.item.date);
    case SectionRole:
        return row.isToday ? QCoreApplication::translate("Loomstreet", "Today")
                           : QCoreApplication::translate("Loomstreet", "Earlier");
    case UnreadRole:
        return row.item.isUnread;
    case LocalRole:
        return row.isLocal;
    case SupportRole:
        return type.tab == NotificationCategory::Support;
    default:
        return {};
    }
}

QHash<int, QByteArray> NotificationsModel::roleNames() const
{
    return {{NotificationIdRole, "notificationId"},
            {TitleRole, "title"},
            {BodyRole, "body"},
            {SymbolRole, "symbol"},
            {LinkRole, "link"},
            {PictureRole, "picture"},
            {DateRole, "date"},
            {SectionRole, "section"},
            {UnreadRole, "isUnread"},
            {LocalRole, "isLocal"},
            {SupportRole, "isSupport"}};
}

} // namespace loom
