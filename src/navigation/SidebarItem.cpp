#include "navigation/SidebarItem.h"

#include "catalog/Department.h"

namespace loom
{

std::optional<SidebarItem> sidebarItemFromRawValue(const QString& rawValue)
{
    for (const SidebarEntry& entry : sidebarEntries) {
        if (rawValue == QLatin1String(entry.rawValue))
            return entry.item;
    }
    return std::nullopt;
}

KeyedText headingAbove(SidebarItem item)
{
    switch (item) {
    case SidebarItem::Home:
        return QT_TRANSLATE_NOOP3("Loomstreet", "Home", "sidebar.home");
    case SidebarItem::FinalSale:
        return QT_TRANSLATE_NOOP3("Loomstreet", "Sale", "sidebar.sale");
    case SidebarItem::Notifications:
        return QT_TRANSLATE_NOOP3("Loomstreet", "Inbox", "sidebar.inbox");
    default:
        return {};
    }
}

bool hasLineAbove(SidebarItem item)
{
    return item == SidebarItem::Vessa;
}

std::optional<QString> collectionHandle(SidebarItem item)
{
    if (item == SidebarItem::FinalSale)
        return QStringLiteral("final-sale");
    const Department* const department = findDepartment(QLatin1String(entryOf(item).rawValue));
    return department ? department->collectionHandle : std::nullopt;
}

} // namespace loom
