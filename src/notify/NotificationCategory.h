#pragma once

#include <QLatin1String>

namespace loom
{

/// The tab of the inbox that a piece of news stands under.
enum class NotificationCategory { System, Support, Vessa };

[[nodiscard]] constexpr QLatin1String rawValue(NotificationCategory category)
{
    switch (category) {
    case NotificationCategory::System:
        return QLatin1String("system");
    case NotificationCategory::Support:
        return QLatin1String("support");
    case NotificationCategory::Vessa:
        return QLatin1String("vessa");
    }
    return QLatin1String("system");
}

} // namespace loom
