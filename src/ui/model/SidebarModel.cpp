#include "ui/model/SidebarModel.h"

namespace loom
{

int SidebarModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(sidebarEntries.size());
}

QVariant SidebarModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const SidebarEntry& entry = sidebarEntries.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case TitleRole:
        return entry.title.translated();
    case SymbolRole:
        return QString::fromLatin1(entry.symbol);
    case HeadingRole:
        return headingAbove(entry.item).translated();
    case LineRole:
        return hasLineAbove(entry.item);
    case RawValueRole:
        return QString::fromLatin1(entry.rawValue);
    default:
        return {};
    }
}

QHash<int, QByteArray> SidebarModel::roleNames() const
{
    return {{TitleRole, "title"},
            {SymbolRole, "symbol"},
            {HeadingRole, "heading"},
            {LineRole, "hasLine"},
            {RawValueRole, "rawValue"}};
}

} // namespace loom
