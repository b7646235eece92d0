#pragma once

#include <QObject>

namespace loom
{

namespace OpenModes
{
Q_NAMESPACE

/// How a product is to be opened.
enum class OpenMode {
    Automatic = 0, ///< beside the page where there is room, on it otherwise; in a tab of its own while Ctrl is held
    Page = 1,
    Docked = 2, ///< beside the page, unless the stylist is there
    NewTab = 3,
};
Q_ENUM_NS(OpenMode)
} // namespace OpenModes

using OpenMode = OpenModes::OpenMode;

} // namespace loom
