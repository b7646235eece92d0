#include "app/NavigationPath.h"

#include <algorithm>
#include <utility>

namespace loom
{

void NavigationPath::show(std::vector<VisitedPage> pages, int top)
{
    for (int row = rowCount() - 1; row >= 0; --row) {
        const VisitedPage& page = m_pages[static_cast<std::size_t>(row)];
        const auto same = std::ranges::find(pages, page.id, &VisitedPage::id);
        if (same != pages.end() && same->entry.kind == page.entry.kind)
            continue;
        beginRemoveRows({}, row, row);
        m_pages.erase(m_pages.begin() + row);
        endRemoveRows();
    }
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (i < m_pages.size() && m_pages[i].id == pages[i].id)
            continue;
        const int row = static_cast<int>(i);
        beginInsertRows({}, row, row);
        m_pages.insert(m_pages.begin() + row, std::move(pages[i]));
        endInsertRows();
    }
    // Told even when the number stays: the page in that row may be another.
    m_top = top;
    Q_EMIT topChanged();
}

void NavigationPath::rename(int row, const QString& title)
{
    QString& former = m_pages[static_cast<std::size_t>(row)].entry.title;
    if (std::exchange(former, title) != title)
        Q_EMIT dataChanged(index(row), index(row), {EntryRole});
}

int NavigationPath::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_pages.size());
}

QVariant NavigationPath::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const VisitedPage& page = m_pages[static_cast<std::size_t>(index.row())];
    switch (role) {
    case PageIDRole:
        return page.id;
    case DepthRole:
        return page.depth;
    case EntryRole:
        return QVariant::fromValue(page.entry);
    default:
        return {};
    }
}

QHash<int, QByteArray> NavigationPath::roleNames() const
{
    return {{PageIDRole, "pageID"}, {DepthRole, "depth"}, {EntryRole, "entry"}};
}

} // namespace loom
