#include "support/SupportThreadModel.h"

#include "base/Clock.h"
#include "catalog/DateFormat.h"
#include "catalog/DayLabel.h"
#include "catalog/RowMerge.h"

#include <QCoreApplication>

namespace loom
{

namespace
{

QStringList keysOf(const std::vector<SupportEntry>& entries)
{
    QStringList keys;
    keys.reserve(static_cast<qsizetype>(entries.size()));
    for (const SupportEntry& entry : entries)
        keys.append(entry.key);
    return keys;
}

QVariantList attachmentsOf(const SupportEntry& entry)
{
    QVariantList attachments;
    for (const SupportAttachment& attachment : entry.message.attachments)
        attachments.append(QVariant::fromValue(attachment));
    if (entry.file) {
        attachments.append(QVariant::fromValue(
            SupportAttachment{.url = {}, .name = entry.file->name, .mimeType = entry.file->mimeType}));
    }
    return attachments;
}

QString problemOf(const SupportEntry& entry)
{
    if (entry.state != SupportEntry::State::Unconfirmed)
        return {};
    return entry.failure ? errorDescription(*entry.failure)
                         : QCoreApplication::translate("Loomstreet", "This message may not have arrived.");
}

} // namespace

SupportThreadModel::SupportThreadModel(const DateFormat& dates, const Clock& clock, QObject* parent)
    : QAbstractListModel(parent)
    , m_dates(dates)
    , m_clock(clock)
{
}

void SupportThreadModel::show(const std::vector<SupportEntry>& entries)
{
    const std::vector<SupportEntry> wanted(entries.rbegin(), entries.rend());
    const QStringList before = keysOf(m_rows);
    const QStringList after = keysOf(wanted);
    mergeRows(
        before, after,
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
        [this, &wanted](int row, std::size_t place) {
            beginInsertRows({}, row, row);
            m_rows.insert(m_rows.begin() + row, wanted[place]);
            endInsertRows();
        });
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (m_rows[i] == wanted[i])
            continue;
        m_rows[i] = wanted[i];
        const QModelIndex changed = index(static_cast<int>(i));
        Q_EMIT dataChanged(changed, changed);
    }
    if (before == after)
        return;
    if (count() > 0)
        Q_EMIT dataChanged(index(0), index(count() - 1), {DayLabelRole});
    if (before.size() != after.size())
        Q_EMIT countChanged();
}

void SupportThreadModel::retranslate()
{
    if (count() > 0)
        Q_EMIT dataChanged(index(0), index(count() - 1), {TimeLabelRole, DayLabelRole, ProblemRole});
}

int SupportThreadModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QString SupportThreadModel::dayLabel(std::size_t row) const
{
    const auto dayOf = [this](std::size_t other) {
        return m_rows[other].message.createdAt.toLocalTime().date();
    };
    const QDate day = dayOf(row);
    if (!day.isValid() || (row + 1 < m_rows.size() && dayOf(row + 1) == day))
        return {};
    return loom::dayLabel(m_rows[row].message.createdAt, m_clock.now(), m_dates);
}

QVariant SupportThreadModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const SupportEntry& entry = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case KeyRole:
        return entry.key;
    case IsMineRole:
        return entry.isMine();
    case TextRole:
        return entry.message.body;
    case AttachmentsRole:
        return attachmentsOf(entry);
    case TimeLabelRole:
        return m_dates.time(entry.message.createdAt);
    case DayLabelRole:
        return dayLabel(static_cast<std::size_t>(index.row()));
    case StateRole:
        return static_cast<int>(entry.state);
    case AgentRole:
        return entry.message.agent;
    case ProblemRole:
        return problemOf(entry);
    default:
        return {};
    }
}

QHash<int, QByteArray> SupportThreadModel::roleNames() const
{
    return {{KeyRole, "key"},
            {IsMineRole, "isMine"},
            {TextRole, "text"},
            {AttachmentsRole, "attachments"},
            {TimeLabelRole, "timeLabel"},
            {DayLabelRole, "dayLabel"},
            {StateRole, "state"},
            {AgentRole, "agent"},
            {ProblemRole, "problem"}};
}

} // namespace loom
