#include "net/AppLanguage.h"

namespace loom
{

QString appLanguageCode(AppLanguage language)
{
    return QString::fromLatin1(appLanguageCodes.at(static_cast<std::size_t>(language)));
}

QString appLanguageName(AppLanguage language)
{
    static constexpr std::array<const char*, appLanguageCodes.size()> names{
        "English",  "العربية",       "Hrvatski",     "Čeština",          "Dansk",     "Nederlands",
        "Filipino", "Suomi",         "Français",     "Deutsch",          "Ελληνικά",  "עברית",
        "हिन्दी",    "Magyar",        "Íslenska",     "Bahasa Indonesia", "Italiano",  "日本語",
        "한국어",   "Bahasa Melayu", "Norsk bokmål", "Polski",           "Português", "Română",
        "Русский",  "简体中文",      "Slovenčina",   "Español",          "Svenska",   "ไทย",
        "繁體中文", "Türkçe",        "Українська",   "Tiếng Việt"};
    return QString::fromUtf8(names.at(static_cast<std::size_t>(language)));
}

std::optional<AppLanguage> appLanguageFromCode(const QString& code)
{
    for (std::size_t i = 0; i < appLanguageCodes.size(); ++i) {
        if (code == QLatin1String(appLanguageCodes.at(i)))
            return static_cast<AppLanguage>(i);
    }
    return std::nullopt;
}

QLocale appLocale(AppLanguage language)
{
    return language == AppLanguage::Arabic ? QLocale(QLocale::Arabic, QLocale::UnitedArabEmirates)
                                           : QLocale(appLanguageCode(language));
}

QByteArray icuLocale(AppLanguage language)
{
    // Thai years are counted as in the dates that the shopper types, and as the toolkit counts them.
    return appLanguageCode(language).toLatin1() + (language == AppLanguage::Arabic ? "@numbers=latn"
                                                   : language == AppLanguage::Thai ? "@calendar=gregorian"
                                                                                   : "");
}

AppLanguage appLanguageFor(const SystemLocale& locale)
{
    if (locale.language == QLatin1String("zh")) {
        if (locale.script == QLatin1String("Hant"))
            return AppLanguage::ZhHant;
        if (locale.script == QLatin1String("Hans"))
            return AppLanguage::ZhHans;
        const bool writesTraditional = locale.region == QLatin1String("HK") || locale.region == QLatin1String("MO") ||
                                       locale.region == QLatin1String("TW");
        return writesTraditional ? AppLanguage::ZhHant : AppLanguage::ZhHans;
    }
    if (locale.language == QLatin1String("no"))
        return AppLanguage::NorwegianBokmal;
    if (locale.language == QLatin1String("tl"))
        return AppLanguage::Filipino;
    return appLanguageFromCode(locale.language).value_or(AppLanguage::English);
}

} // namespace loom
