#include "app/WindowState.h"

#include <QJsonArray>
#include <QRect>

#include <algorithm>

namespace loom
{

namespace
{

/// Beyond this, in points, it is no size of a window.
constexpr int longestEdge = 16'384;

} // namespace

QJsonObject toJson(const TabState& tab)
{
    QJsonArray routes;
    for (const Route& route : tab.section.routes)
        routes.append(loom::toJson(route));
    QJsonArray offsets;
    for (const double offset : tab.scrollOffsets)
        offsets.append(offset);
    QJsonObject json{{QStringLiteral("isPinned"), tab.isPinned},
                     {QStringLiteral("section"), QLatin1String(entryOf(tab.section.selection).rawValue)},
                     {QStringLiteral("routes"), routes},
                     {QStringLiteral("titles"), QJsonArray::fromStringList(tab.titles)},
                     {QStringLiteral("scrollOffsets"), offsets}};
    // A product beside the page is written as the page it would be.
    if (tab.preview) {
        json.insert(
            QStringLiteral("preview"),
            toJson(Route(ShopRoute{ShopRoute::Product{.handle = tab.preview->handle, .item = tab.preview->item}})));
    }
    return json;
}

TabState decodeTabState(const JsonReader& json)
{
    TabState tab;
    tab.isPinned = json.optionalBoolean("isPinned").value_or(false);
    const auto section = sidebarItemFromRawValue(json.text("section"));
    if (!section)
        json.fail(QStringLiteral("a section that does not exist"));
    tab.section.selection = section.value_or(SidebarItem::Home);
    for (const JsonReader& route : json.optionalList("routes"))
        tab.section.routes.push_back(decodeRoute(route));
    // Lists of another length belong to other pages.
    const auto pages = static_cast<qsizetype>(tab.section.routes.size()) + 1;
    if (const QStringList titles = json.textList("titles"); titles.size() == pages)
        tab.titles = titles;
    for (const JsonReader& offset : json.optionalList("scrollOffsets"))
        tab.scrollOffsets.append(std::max(0.0, offset.asNumber().value_or(0)));
    if (tab.scrollOffsets.size() != pages)
        tab.scrollOffsets.clear();
    if (const auto preview = json.optionalObject("preview")) {
        const Route route = decodeRoute(*preview);
        const auto* const shop = std::get_if<ShopRoute>(&route);
        if (const auto* const product = shop ? std::get_if<ShopRoute::Product>(&shop->page) : nullptr)
            tab.preview = ProductPreview{.handle = product->handle, .item = product->item};
    }
    return tab;
}

QJsonObject toJson(const WindowState& state)
{
    QJsonArray tabs;
    for (const TabState& tab : state.tabs)
        tabs.append(toJson(tab));
    QJsonObject json{{QStringLiteral("tabs"), tabs},
                     {QStringLiteral("selectedIndex"), state.selectedIndex},
                     {QStringLiteral("isSidebarCollapsed"), state.isSidebarCollapsed}};
    if (state.size.isValid()) {
        json.insert(QStringLiteral("width"), state.size.width());
        json.insert(QStringLiteral("height"), state.size.height());
        json.insert(QStringLiteral("isMaximized"), state.isMaximized);
    }
    return json;
}

WindowState decodeWindowState(const JsonReader& json)
{
    WindowState state;
    state.tabs = JsonReader::decodeEach(json.list("tabs"), decodeTabState);
    if (state.tabs.empty())
        json.fail(QStringLiteral("a window without tabs"));
    const int last = std::max(0, static_cast<int>(state.tabs.size()) - 1);
    state.selectedIndex =
        static_cast<int>(std::clamp<qint64>(json.optionalInteger("selectedIndex").value_or(0), 0, last));
    state.isSidebarCollapsed = json.optionalBoolean("isSidebarCollapsed").value_or(false);
    const QSize size(static_cast<int>(json.optionalInteger("width").value_or(0)),
                     static_cast<int>(json.optionalInteger("height").value_or(0)));
    if (QRect(QPoint(0, 0), QSize(longestEdge, longestEdge)).contains(QRect(QPoint(0, 0), size))) {
        state.size = size;
        state.isMaximized = json.optionalBoolean("isMaximized").value_or(false);
    }
    return state;
}

} // namespace loom
