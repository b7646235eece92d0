#pragma once

#include "navigation/LinkResolver.h"
#include "navigation/Routes.h"
#include "navigation/SidebarItem.h"
#include "stylist/voice/MiraVoiceEvent.h"

#include <optional>
#include <variant>

namespace loom
{

/// Where the stylist takes the shopper.
struct MiraVoiceDestination {
    std::variant<Route, SidebarItem> place;
    QString name; ///< of the page, in the language of the window; empty where it has none before it is loaded

    bool operator==(const MiraVoiceDestination&) const = default;
};

/// What a navigation request means; nothing where it leads nowhere in the application. A path counts where the kind
/// alone does not say it, and only as far as the store's own pages. Pure.
[[nodiscard]] std::optional<MiraVoiceDestination> miraVoiceDestination(const MiraVoiceEvent::Navigation& request,
                                                                       const LinkResolver& resolver);

} // namespace loom
