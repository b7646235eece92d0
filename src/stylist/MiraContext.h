#pragma once

#include "stylist/MiraWeather.h"
#include "stylist/WardrobeItem.h"

#include <vector>

namespace loom
{

/// What goes out with one message: the shopper's words, and what the application adds to them for the stylist.
struct MiraContext {
    /// The most pieces of a wardrobe that are sent; the first ones are.
    static constexpr std::size_t maximumWardrobe = 60;

    QString words;
    QString productHandle; ///< of the attached product; empty for none
    std::vector<WardrobeItem> wardrobe;
    QString anchorName; ///< the piece to build a look around; empty for none
    std::optional<MiraWeather> weather;

    bool operator==(const MiraContext&) const = default;

    /// The text the service receives: words and blocks, joined by a line feed each. Names of pieces and cities become
    /// one line without what would end their block: brackets become round ones, semicolons commas. A piece whose name
    /// is nothing then, and a handle that cannot stand in a path, are left out.
    [[nodiscard]] QString body() const;
};

/// The slot and the source as the service knows them.
[[nodiscard]] QString wardrobeSlotName(WardrobeSlot slot);
[[nodiscard]] QString wardrobeSourceName(WardrobeSource source);

} // namespace loom
