#pragma once

#include "base/KeyedText.h"

#include <array>

namespace loom
{

/// One of the shopper's tools, as the Tools page lists it.
struct Tool {
    const char* key; ///< by which the store hides it
    KeyedText title;
    KeyedText note;
    const char* symbol; ///< the icon's identifier
};

inline constexpr std::array<Tool, 7> tools{{
    {"closet", QT_TRANSLATE_NOOP3("Loomstreet", "Closet", "tools.closet.title"),
     QT_TRANSLATE_NOOP3("Loomstreet", "Everything you own, in one place", "tools.closet.note"), "hanger"},
    {"studio", QT_TRANSLATE_NOOP3("Loomstreet", "Outfit studio", "tools.studio.title"),
     QT_TRANSLATE_NOOP3("Loomstreet", "Put pieces together and see them as one", "tools.studio.note"), "sliders"},
    {"lookbook", QT_TRANSLATE_NOOP3("Loomstreet", "Lookbook", "tools.lookbook.title"),
     QT_TRANSLATE_NOOP3("Loomstreet", "The outfits you kept", "tools.lookbook.note"), "photo"},
    {"outfitIdeas", QT_TRANSLATE_NOOP3("Loomstreet", "Outfit ideas", "tools.outfitIdeas.title"),
     QT_TRANSLATE_NOOP3("Loomstreet", "New ways to wear what is in your closet", "tools.outfitIdeas.note"), "sparkles"},
    {"sizeAdvice", QT_TRANSLATE_NOOP3("Loomstreet", "Size advice", "tools.sizeAdvice.title"),
     QT_TRANSLATE_NOOP3("Loomstreet", "Your measurements, and the size that fits them", "tools.sizeAdvice.note"),
     "ruler"},
    {"imageSearch", QT_TRANSLATE_NOOP3("Loomstreet", "Search by image", "tools.imageSearch.title"),
     QT_TRANSLATE_NOOP3("Loomstreet", "Find a piece by a picture of it", "tools.imageSearch.note"), "camera"},
    {"compare", QT_TRANSLATE_NOOP3("Loomstreet", "Compare", "tools.compare.title"),
     QT_TRANSLATE_NOOP3("Loomstreet", "Up to four pieces side by side", "tools.compare.note"), "square.grid.2x2"},
}};

} // namespace loom
