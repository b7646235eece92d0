#pragma once

#include <QString>

namespace loom
{

/// Whose accounts can be used in place of the store's own.
enum class SocialProvider { Apple, Google, Facebook };

/// As it stands in paths.
[[nodiscard]] constexpr QLatin1String rawValue(SocialProvider provider)
{
    switch (provider) {
    case SocialProvider::Apple:
        return QLatin1String("apple");
    case SocialProvider::Google:
        return QLatin1String("google");
    case SocialProvider::Facebook:
        return QLatin1String("facebook");
    }
    return {};
}

} // namespace loom
