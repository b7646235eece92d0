#pragma once

#include "navigation/Routes.h"
#include "navigation/SidebarItem.h"

#include <optional>
#include <variant>

namespace loom
{

/// A place within the window: a section, or a page on the stack of the one that is shown.
using InAppPage = std::variant<SidebarItem, Route>;

/// The page that a notification's path names, such as "/orders" or "/tracking/1Z5"; nothing where the path is none of
/// this application's own, and so a link like any other.
[[nodiscard]] std::optional<InAppPage> inAppPage(const QString& path);

} // namespace loom
