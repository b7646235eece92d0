#pragma once

#include "stylist/WardrobeItem.h"

#include <QStringList>

namespace loom
{

/// What a piece of the bag or the wishlist is worn as, guessed from what the store says of it: its type decides, then
/// its title, then its tags; what says nothing may be empty.
[[nodiscard]] WardrobeSlot guessedSlot(const QString& productType, const QString& title, const QStringList& tags);

} // namespace loom
