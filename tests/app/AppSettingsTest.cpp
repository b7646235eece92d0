#include "app/AppSettings.h"

#include "storage/DataFolder.h"
#include "storage/Preferences.h"

#include <QTemporaryDir>

using namespace loom;

namespace
{

class AppSettingsTest : public testing::Test
{
protected:
    QTemporaryDir home;
    DataFolder folder{home.path()};
    Preferences preferences{folder};
    AppSettings settings{preferences};
};

struct Row {
    const char* property;
    const char* key;
    QVariant fallback;
    QVariant chosen;
    const char* stored;
    const char* foreign; ///< what is stored and means the fallback, parted by "|"
};

const std::array rows{
    Row{"appearance", "lst_appearance", QStringLiteral("system"), QStringLiteral("dark"), "dark", "Dark|sepia|"},
    Row{"sizeUnit", "lst_size_unit", QStringLiteral("metric"), QStringLiteral("imperial"), "imperial", "cm|"},
    Row{"windowFrame", "lst_window_frame", QStringLiteral("own"), QStringLiteral("desktop"), "desktop", "none|"},
    Row{"sharesUsage", "lst_privacy_consent", false, true, "all", "ALL|everything|"},
    Row{"settingsTab", "lst_settings_tab", QStringLiteral("appearance"), QStringLiteral("market"), "market", nullptr},
};

TEST_F(AppSettingsTest, ASettingIsStoredUnderItsKeyAndWhatIsForeignMeansTheFallback)
{
    for (const Row& row : rows) {
        EXPECT_EQ(settings.property(row.property), row.fallback) << row.property;
        EXPECT_TRUE(settings.setProperty(row.property, row.chosen));
        EXPECT_EQ(settings.property(row.property), row.chosen);
        const Preference<const char*> preference{row.key, "?"};
        EXPECT_EQ(preferences.value(preference), QLatin1String(row.stored));
        if (!row.foreign)
            continue;
        for (const QString& foreign : QString::fromLatin1(row.foreign).split(u'|')) {
            preferences.set(preference, foreign);
            EXPECT_EQ(settings.property(row.property), row.fallback) << row.property << foreign.toStdString();
        }
    }
}

} // namespace
