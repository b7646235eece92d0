#include "stylist/MiraTopicsModel.h"

#include "catalog/DateFormat.h"
#include "catalog/RowMerge.h"

#include <QCoreApplication>

#include <algorithm>

namespace loom
{

namespace
{

QStringList idsOf(const std::vector<MiraTopic>& topics)
{
    QStringList ids;
    for (const MiraTopic& topic : topics)
        ids.append(topic.id);
    return ids;
}

} // namespace

MiraTopicsModel::MiraTopicsModel(const DateFormat& dates, QObject* parent)
    : QAbstractListModel(parent)
    , m_dates(dates)
{
}

void MiraTopicsModel::show(std::vector<MiraTopic> topics, const QString& current)
{
    const int before = count();
    mergeRows(
        idsOf(m_topics), idsOf(topics),
        [this](int row) {
            beginRemoveRows({}, row, row);
            m_topics.erase(m_topics.begin() + row);
            endRemoveRows();
        },
        [this](int from, int to) { // always towards the beginning
            beginMoveRows({}, from, from, {}, to);
            std::rotate(m_topics.begin() + to, m_topics.begin() + from, m_topics.begin() + from + 1);
            endMoveRows();
        },
        [this, &topics](int row, std::size_t place) {
            beginInsertRows({}, row, row);
            m_topics.insert(m_topics.begin() + row, topics[place]);
            endInsertRows();
        });
    const QString previous = std::exchange(m_current, current);
    for (std::size_t i = 0; i < topics.size(); ++i) {
        const bool isCurrentNew = previous != current && (topics[i].id == previous || topics[i].id == current);
        if (m_topics[i] == topics[i] && !isCurrentNew)
            continue;
        m_topics[i] = topics[i];
        const QModelIndex changed = index(static_cast<int>(i));
        Q_EMIT dataChanged(changed, changed);
    }
    if (count() != before)
        Q_EMIT countChanged();
}

void MiraTopicsModel::retranslate()
{
    if (!m_topics.empty())
        Q_EMIT dataChanged(index(0), index(count() - 1));
}

QString MiraTopicsModel::shownTitle(const QString& title)
{
    return title.isEmpty() ? QCoreApplication::translate("Loomstreet", "New topic") : title;
}

int MiraTopicsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant MiraTopicsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const MiraTopic& topic = m_topics[static_cast<std::size_t>(index.row())];
    switch (role) {
    case IdRole:
        return topic.id;
    case TitleRole:
        return shownTitle(topic.title);
    case WhenRole:
        return m_dates.moment(topic.lastMessage);
    case IsCurrentRole:
        return topic.id == m_current;
    case IsNamedRole:
        return topic.isNamed;
    default:
        return {};
    }
}

QHash<int, QByteArray> MiraTopicsModel::roleNames() const
{
    return {{IdRole, "id"},
            {TitleRole, "title"},
            {WhenRole, "when"},
            {IsCurrentRole, "isCurrent"},
            {IsNamedRole, "isNamed"}};
}

} // namespace loom
