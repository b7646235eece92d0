#pragma once

#include "discovery/ReasonWord.h"

#include <array>

namespace loom
{

/// Styles of dressing.
inline constexpr std::array<ReasonWord, 53> styleWords{{
    {"sweet", QT_TRANSLATE_NOOP3("Loomstreet", "sweet", "reco.style.sweet")},
    {"vintage", QT_TRANSLATE_NOOP3("Loomstreet", "vintage", "reco.style.vintage")},
    {"retro", QT_TRANSLATE_NOOP3("Loomstreet", "vintage", "reco.style.vintage")},
    {"elegant", QT_TRANSLATE_NOOP3("Loomstreet", "elegant", "reco.style.elegant")},
    {"minimal", QT_TRANSLATE_NOOP3("Loomstreet", "minimal", "reco.style.minimal")},
    {"minimalist", QT_TRANSLATE_NOOP3("Loomstreet", "minimal", "reco.style.minimal")},
    {"romantic", QT_TRANSLATE_NOOP3("Loomstreet", "romantic", "reco.style.romantic")},
    {"street", QT_TRANSLATE_NOOP3("Loomstreet", "street", "reco.style.street")},
    {"streetwear", QT_TRANSLATE_NOOP3("Loomstreet", "street", "reco.style.street")},
    {"gothic", QT_TRANSLATE_NOOP3("Loomstreet", "gothic", "reco.style.gothic")},
    {"goth", QT_TRANSLATE_NOOP3("Loomstreet", "gothic", "reco.style.gothic")},
    {"preppy", QT_TRANSLATE_NOOP3("Loomstreet", "preppy", "reco.style.preppy")},
    {"french", QT_TRANSLATE_NOOP3("Loomstreet", "French", "reco.style.french")},
    {"edgy", QT_TRANSLATE_NOOP3("Loomstreet", "edgy", "reco.style.edgy")},
    {"punk", QT_TRANSLATE_NOOP3("Loomstreet", "punk", "reco.style.punk")},
    {"coquette", QT_TRANSLATE_NOOP3("Loomstreet", "coquette", "reco.style.coquette")},
    {"casual", QT_TRANSLATE_NOOP3("Loomstreet", "casual", "reco.style.casual")},
    {"boho", QT_TRANSLATE_NOOP3("Loomstreet", "boho", "reco.style.boho")},
    {"bohemian", QT_TRANSLATE_NOOP3("Loomstreet", "boho", "reco.style.boho")},
    {"festival", QT_TRANSLATE_NOOP3("Loomstreet", "festival", "reco.style.festival")},
    {"classic", QT_TRANSLATE_NOOP3("Loomstreet", "classic", "reco.style.classic")},
    {"sporty", QT_TRANSLATE_NOOP3("Loomstreet", "sporty", "reco.style.sporty")},
    {"athleisure", QT_TRANSLATE_NOOP3("Loomstreet", "sporty", "reco.style.sporty")},
    {"chic", QT_TRANSLATE_NOOP3("Loomstreet", "chic", "reco.style.chic")},
    {"grunge", QT_TRANSLATE_NOOP3("Loomstreet", "grunge", "reco.style.grunge")},
    {"korean", QT_TRANSLATE_NOOP3("Loomstreet", "Korean", "reco.style.korean")},
    {"japanese", QT_TRANSLATE_NOOP3("Loomstreet", "Japanese", "reco.style.japanese")},
    {"chinese", QT_TRANSLATE_NOOP3("Loomstreet", "new Chinese", "reco.style.chinese")},
    {"new chinese", QT_TRANSLATE_NOOP3("Loomstreet", "new Chinese", "reco.style.chinese")},
    {"neo-chinese", QT_TRANSLATE_NOOP3("Loomstreet", "new Chinese", "reco.style.chinese")},
    {"old money", QT_TRANSLATE_NOOP3("Loomstreet", "old money", "reco.style.old-money")},
    {"quiet luxury", QT_TRANSLATE_NOOP3("Loomstreet", "quiet luxury", "reco.style.quiet-luxury")},
    {"dark academia", QT_TRANSLATE_NOOP3("Loomstreet", "dark academia", "reco.style.dark-academia")},
    {"academia", QT_TRANSLATE_NOOP3("Loomstreet", "dark academia", "reco.style.dark-academia")},
    {"balletcore", QT_TRANSLATE_NOOP3("Loomstreet", "balletcore", "reco.style.balletcore")},
    {"cottagecore", QT_TRANSLATE_NOOP3("Loomstreet", "cottagecore", "reco.style.cottagecore")},
    {"sexy", QT_TRANSLATE_NOOP3("Loomstreet", "sexy", "reco.style.sexy")},
    {"cute", QT_TRANSLATE_NOOP3("Loomstreet", "cute", "reco.style.cute")},
    {"cool", QT_TRANSLATE_NOOP3("Loomstreet", "cool", "reco.style.cool")},
    {"feminine", QT_TRANSLATE_NOOP3("Loomstreet", "feminine", "reco.style.feminine")},
    {"androgynous", QT_TRANSLATE_NOOP3("Loomstreet", "androgynous", "reco.style.androgynous")},
    {"workwear", QT_TRANSLATE_NOOP3("Loomstreet", "workwear", "reco.style.workwear")},
    {"office", QT_TRANSLATE_NOOP3("Loomstreet", "workwear", "reco.style.workwear")},
    {"formal", QT_TRANSLATE_NOOP3("Loomstreet", "formal", "reco.style.formal")},
    {"glam", QT_TRANSLATE_NOOP3("Loomstreet", "glam", "reco.style.glam")},
    {"glamorous", QT_TRANSLATE_NOOP3("Loomstreet", "glam", "reco.style.glam")},
    {"avant-garde", QT_TRANSLATE_NOOP3("Loomstreet", "avant-garde", "reco.style.avant-garde")},
    {"avant garde", QT_TRANSLATE_NOOP3("Loomstreet", "avant-garde", "reco.style.avant-garde")},
    {"utility", QT_TRANSLATE_NOOP3("Loomstreet", "utility", "reco.style.utility")},
    {"western", QT_TRANSLATE_NOOP3("Loomstreet", "western", "reco.style.western")},
    {"resort", QT_TRANSLATE_NOOP3("Loomstreet", "resort", "reco.style.resort")},
    {"vacation", QT_TRANSLATE_NOOP3("Loomstreet", "resort", "reco.style.resort")},
    {"y2k", QT_TRANSLATE_NOOP3("Loomstreet", "Y2K", "reco.style.y2k")},
}};

} // namespace loom
