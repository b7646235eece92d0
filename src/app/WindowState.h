#pragma once

#include "navigation/Routes.h"
#include "navigation/SidebarItem.h"

#include <QJsonObject>
#include <QList>

#include <vector>

namespace loom
{

/// A section of a tab with the pages pushed on it.
struct SectionState {
    SidebarItem selection = SidebarItem::Home;
    std::vector<Route> routes; ///< bottom first

    bool operator==(const SectionState&) const = default;
};

/// What a tab shows, as a value that can be saved.
struct TabState {
    bool isPinned = false;
    SectionState section;
    QStringList titles;          ///< one for each page, the section's root first; empty while unknown
    QList<double> scrollOffsets; ///< likewise, in points from the page's top

    bool operator==(const TabState&) const = default;
};

/// What a window shows, as a value that can be saved.
struct WindowState {
    std::vector<TabState> tabs;
    int selectedIndex = 0;
    bool isSidebarCollapsed = false;

    bool operator==(const WindowState&) const = default;
};

/// A window with no tab that can be read fails to decode; of its tabs the readable ones are taken.
[[nodiscard]] QJsonObject toJson(const WindowState& state);
[[nodiscard]] WindowState decodeWindowState(const JsonReader& json);

} // namespace loom
