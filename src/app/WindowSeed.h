#pragma once

#include "navigation/SidebarItem.h"

#include <QHash>
#include <QJsonObject>

#include "base/JsonReader.h"

namespace loom
{

/// What a window opens with.
struct WindowSeed {
    std::optional<QString> link; ///< to be resolved and opened at once
    SidebarItem section = SidebarItem::Home;

    bool operator==(const WindowSeed&) const = default;
};

[[nodiscard]] inline std::size_t qHash(const WindowSeed& seed, std::size_t salt = 0)
{
    return qHashMulti(salt, seed.link.value_or(QString()), seed.link.has_value(), static_cast<int>(seed.section));
}

/// Saves a seed under the keys "link" and "section".
[[nodiscard]] inline QJsonObject toJson(const WindowSeed& seed)
{
    QJsonObject json{{QStringLiteral("section"), QLatin1String(entryOf(seed.section).rawValue)}};
    if (seed.link)
        json.insert(QStringLiteral("link"), *seed.link);
    return json;
}

[[nodiscard]] inline WindowSeed decodeWindowSeed(const JsonReader& json)
{
    return {.link = json.optionalText("link"),
            .section =
                sidebarItemFromRawValue(json.optionalText("section").value_or(QString())).value_or(SidebarItem::Home)};
}

} // namespace loom
