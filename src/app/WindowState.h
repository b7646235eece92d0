#pragma once

#include "navigation/ProductPreview.h"
#include "navigation/Routes.h"
#include "navigation/SidebarItem.h"

#include <QJsonObject>
#include <QList>
#include <QSize>

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
    std::optional<ProductPreview> preview;

    bool operator==(const TabState&) const = default;
};

/// What a window shows, as a value that can be saved.
struct WindowState {
    std::vector<TabState> tabs;
    int selectedIndex = 0;
    bool isSidebarCollapsed = false;
    QSize size; ///< in points; none while unknown
    bool isMaximized = false;

    bool operator==(const WindowState&) const = default;
};

/// A section that does not exist fails to decode.
[[nodiscard]] QJsonObject toJson(const TabState& tab);
[[nodiscard]] TabState decodeTabState(const JsonReader& json);

/// A window with no tab that can be read fails to decode; of its tabs the readable ones are taken.
[[nodiscard]] QJsonObject toJson(const WindowState& state);
[[nodiscard]] WindowState decodeWindowState(const JsonReader& json);

} // namespace loom
