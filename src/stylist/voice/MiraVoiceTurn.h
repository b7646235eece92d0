#pragma once

#include <QString>

namespace loom
{

/// A line of what was said during a call.
struct MiraVoiceTurn {
    enum class Role { User, Mira };

    Role role = Role::User;
    QString text;
    bool isFinal = false; ///< nothing of it changes any more

    bool operator==(const MiraVoiceTurn&) const = default;
};

} // namespace loom
