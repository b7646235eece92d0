#pragma once

#include <QString>

namespace loom
{

/// What a piece is worn as, in the order in which pieces are listed.
enum class WardrobeSlot { Outerwear, Top, Bottom, Dress, Shoes, Bag, Extra };

/// Where the shopper has a piece from.
enum class WardrobeSource { Owned, Cart, Wishlist };

/// A piece that the shopper wants to be styled with.
struct WardrobeItem {
    QString handle;
    QString title;
    WardrobeSlot slot = WardrobeSlot::Extra;
    WardrobeSource source = WardrobeSource::Owned;

    bool operator==(const WardrobeItem&) const = default;
};

} // namespace loom
