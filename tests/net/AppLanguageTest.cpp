#include "net/AppLanguage.h"

using namespace loom;

namespace
{

TEST(AppLanguage, TheSystemsSettingsChooseTheFirstLanguage)
{
    struct Row {
        const char* language;
        const char* script;
        const char* region;
        const char* code;
    };
    for (const Row& row : {
             Row{"en", "", "US", "en"},
             Row{"vi", "", "", "vi"},
             Row{"tl", "", "PH", "fil"},
             Row{"no", "", "NO", "nb"},
             Row{"nn", "", "NO", "en"},
             Row{"pt", "", "BR", "pt"},
             Row{"zh", "Hant", "CN", "zh-Hant"},
             Row{"zh", "Hans", "TW", "zh-Hans"},
             Row{"zh", "", "HK", "zh-Hant"},
             Row{"zh", "", "TW", "zh-Hant"},
             Row{"zh", "", "SG", "zh-Hans"},
             Row{"zh", "", "", "zh-Hans"},
             Row{"zh-Hant", "", "", "zh-Hant"},
             Row{"ca", "", "ES", "en"},
             Row{"", "", "", "en"},
         }) {
        const AppLanguage language = appLanguageFor({.language = QLatin1String(row.language),
                                                     .script = QLatin1String(row.script),
                                                     .region = QLatin1String(row.region)});
        EXPECT_EQ(appLanguageCode(language), QLatin1String(row.code)) << row.language << row.script << row.region;
    }
}

TEST(AppLanguage, ACodeNamesItsLanguageAndNothingElseDoes)
{
    EXPECT_EQ(appLanguageFromCode(QStringLiteral("zh-Hant")), AppLanguage::ZhHant);
    for (const char* const code : {"", "EN", "zh", "zh-hans", "zh_Hans", "no", "en-US"})
        EXPECT_EQ(appLanguageFromCode(QLatin1String(code)), std::nullopt) << code;
}

} // namespace
