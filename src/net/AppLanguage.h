#pragma once

#include <QLocale>
#include <QString>

#include <array>
#include <optional>

namespace loom
{

/// What the system's settings say of language and place, each as its code; empty where they say nothing.
struct SystemLocale {
    QString language; ///< ISO 639, such as "en" or "zh"
    QString script;   ///< ISO 15924, such as "Hant"
    QString region;   ///< ISO 3166-1 alpha-2 or UN M.49, such as "US" or "419"

    bool operator==(const SystemLocale&) const = default;
};

/// The language of the store's content and of the window.
enum class AppLanguage {
    English,
    Arabic,
    Croatian,
    Czech,
    Danish,
    Dutch,
    Filipino,
    Finnish,
    French,
    German,
    Greek,
    Hebrew,
    Hindi,
    Hungarian,
    Icelandic,
    Indonesian,
    Italian,
    Japanese,
    Korean,
    Malay,
    NorwegianBokmal,
    Polish,
    Portuguese,
    Romanian,
    Russian,
    ZhHans,
    Slovak,
    Spanish,
    Swedish,
    Thai,
    ZhHant,
    Turkish,
    Ukrainian,
    Vietnamese,
};

/// The codes the backend knows the languages by, in the order of the enumeration.
inline constexpr std::array<const char*, 34> appLanguageCodes{
    "en", "ar", "hr", "cs", "da", "nl", "fil", "fi", "fr",      "de", "el", "he", "hi", "hu",      "is", "id", "it",
    "ja", "ko", "ms", "nb", "pl", "pt", "ro",  "ru", "zh-Hans", "sk", "es", "sv", "th", "zh-Hant", "tr", "uk", "vi"};

[[nodiscard]] QString appLanguageCode(AppLanguage language);
/// What its speakers call it.
[[nodiscard]] QString appLanguageName(AppLanguage language);
[[nodiscard]] std::optional<AppLanguage> appLanguageFromCode(const QString& code);

/// How numbers and dates are written in the language, and where its lines begin. Arabic takes the figures that sizes,
/// order numbers and sums beside them are written with, as most of its shops do.
[[nodiscard]] QLocale appLocale(AppLanguage language);
/// The same for ICU, by the name that it knows it by.
[[nodiscard]] QByteArray icuLocale(AppLanguage language);

/// The language to begin with on a system with these settings; English where the store has none of them.
[[nodiscard]] AppLanguage appLanguageFor(const SystemLocale& locale);

} // namespace loom
