#pragma once

#include <QStringList>

namespace loom
{

/// What another start of the application, or the desktop, asks of the instance that runs.
struct Activation {
    QStringList links;
    QString action;          ///< an action of the desktop entry, which the links are for, or "quit"; empty for none
    QString startupId;       ///< the launch this belongs to, as X11 desktops number them
    QString activationToken; ///< the same for Wayland

    bool operator==(const Activation&) const = default;
};

/// The launch that the environment says this process is. To be read before the application object takes it away.
[[nodiscard]] Activation readLaunch();

} // namespace loom
