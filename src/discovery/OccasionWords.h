#pragma once

#include "discovery/ReasonWord.h"

#include <array>

namespace loom
{

/// Occasions to dress for, worded to follow "For".
inline constexpr std::array<ReasonWord, 25> occasionWords{{
    {"work", QT_TRANSLATE_NOOP3("Loomstreet", "work", "reco.occasion.work")},
    {"office", QT_TRANSLATE_NOOP3("Loomstreet", "work", "reco.occasion.work")},
    {"date", QT_TRANSLATE_NOOP3("Loomstreet", "date night", "reco.occasion.date")},
    {"date night", QT_TRANSLATE_NOOP3("Loomstreet", "date night", "reco.occasion.date")},
    {"party", QT_TRANSLATE_NOOP3("Loomstreet", "parties", "reco.occasion.party")},
    {"wedding", QT_TRANSLATE_NOOP3("Loomstreet", "weddings", "reco.occasion.wedding")},
    {"vacation", QT_TRANSLATE_NOOP3("Loomstreet", "vacation", "reco.occasion.vacation")},
    {"holiday", QT_TRANSLATE_NOOP3("Loomstreet", "vacation", "reco.occasion.vacation")},
    {"resort", QT_TRANSLATE_NOOP3("Loomstreet", "vacation", "reco.occasion.vacation")},
    {"travel", QT_TRANSLATE_NOOP3("Loomstreet", "travel", "reco.occasion.travel")},
    {"everyday", QT_TRANSLATE_NOOP3("Loomstreet", "everyday", "reco.occasion.everyday")},
    {"daily", QT_TRANSLATE_NOOP3("Loomstreet", "everyday", "reco.occasion.everyday")},
    {"weekend", QT_TRANSLATE_NOOP3("Loomstreet", "the weekend", "reco.occasion.weekend")},
    {"school", QT_TRANSLATE_NOOP3("Loomstreet", "school", "reco.occasion.school")},
    {"interview", QT_TRANSLATE_NOOP3("Loomstreet", "interviews", "reco.occasion.interview")},
    {"graduation", QT_TRANSLATE_NOOP3("Loomstreet", "graduation", "reco.occasion.graduation")},
    {"festival", QT_TRANSLATE_NOOP3("Loomstreet", "festivals", "reco.occasion.festival")},
    {"beach", QT_TRANSLATE_NOOP3("Loomstreet", "the beach", "reco.occasion.beach")},
    {"night out", QT_TRANSLATE_NOOP3("Loomstreet", "a night out", "reco.occasion.night-out")},
    {"brunch", QT_TRANSLATE_NOOP3("Loomstreet", "brunch", "reco.occasion.brunch")},
    {"workout", QT_TRANSLATE_NOOP3("Loomstreet", "the gym", "reco.occasion.gym")},
    {"gym", QT_TRANSLATE_NOOP3("Loomstreet", "the gym", "reco.occasion.gym")},
    {"formal", QT_TRANSLATE_NOOP3("Loomstreet", "formal events", "reco.occasion.formal")},
    {"formal event", QT_TRANSLATE_NOOP3("Loomstreet", "formal events", "reco.occasion.formal")},
    {"formal events", QT_TRANSLATE_NOOP3("Loomstreet", "formal events", "reco.occasion.formal")},
}};

} // namespace loom
