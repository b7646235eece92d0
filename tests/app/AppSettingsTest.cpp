#include "app/AppSettings.h"

#include "storage/DataFolder.h"
#include "storage/Preferences.h"

#include <QMetaProperty>
#include <QSignalSpy>
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

TEST_F(AppSettingsTest, ASettingIsStoredUnderItsKeyAndToldOnce)
{
    for (const Row& row : rows) {
        EXPECT_EQ(settings.property(row.property), row.fallback) << row.property;
        const QMetaObject* const meta = settings.metaObject();
        std::vector<std::unique_ptr<QSignalSpy>> spies;
        for (const Row& other : rows) {
            const QMetaMethod told = meta->property(meta->indexOfProperty(other.property)).notifySignal();
            spies.push_back(std::make_unique<QSignalSpy>(&settings, told));
        }
        EXPECT_TRUE(settings.setProperty(row.property, row.chosen));
        EXPECT_TRUE(settings.setProperty(row.property, row.chosen));
        for (std::size_t i = 0; i < rows.size(); ++i)
            EXPECT_EQ(spies.at(i)->count(), &rows.at(i) == &row ? 1 : 0) << row.property << ' ' << rows.at(i).property;
        EXPECT_EQ(settings.property(row.property), row.chosen);

        const Preference<const char*> preference{row.key, "?"};
        EXPECT_EQ(preferences.value(preference), QLatin1String(row.stored));
        EXPECT_TRUE(settings.setProperty(row.property, row.fallback));
        EXPECT_EQ(settings.property(row.property), row.fallback);

        if (!row.foreign)
            continue;
        for (const QString& foreign : QString::fromLatin1(row.foreign).split(u'|')) {
            preferences.set(preference, foreign);
            EXPECT_EQ(settings.property(row.property), row.fallback) << row.property << foreign.toStdString();
        }
    }
}

} // namespace
