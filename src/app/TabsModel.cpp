#include "app/TabsModel.h"

#include <algorithm>

namespace loom
{

Router* TabsModel::at(int index) const
{
    return index >= 0 && index < count() ? m_tabs[static_cast<std::size_t>(index)].get() : nullptr;
}

int TabsModel::indexOf(const QUuid& id) const
{
    const auto found = std::ranges::find_if(m_tabs, [&id](const auto& tab) { return tab->id() == id; });
    return found != m_tabs.end() ? static_cast<int>(found - m_tabs.begin()) : -1;
}

void TabsModel::insert(int index, std::unique_ptr<Router> tab)
{
    beginInsertRows({}, index, index);
    m_tabs.insert(m_tabs.begin() + index, std::move(tab));
    endInsertRows();
    Q_EMIT countChanged();
}

void TabsModel::remove(int index)
{
    beginRemoveRows({}, index, index);
    // The closed tab may be in the middle of a call that closed it.
    Router* const closed = m_tabs[static_cast<std::size_t>(index)].release();
    closed->setParent(this);
    closed->deleteLater();
    m_tabs.erase(m_tabs.begin() + index);
    endRemoveRows();
    Q_EMIT countChanged();
}

void TabsModel::move(int from, int to)
{
    // The place is counted here before the tab is taken out.
    if (from == to || !beginMoveRows({}, from, from, {}, to > from ? to + 1 : to))
        return;
    auto tab = std::move(m_tabs[static_cast<std::size_t>(from)]);
    m_tabs.erase(m_tabs.begin() + from);
    m_tabs.insert(m_tabs.begin() + to, std::move(tab));
    endMoveRows();
}

int TabsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant TabsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != RouterRole)
        return {};
    return QVariant::fromValue(at(index.row()));
}

QHash<int, QByteArray> TabsModel::roleNames() const
{
    return {{RouterRole, "router"}};
}

} // namespace loom
