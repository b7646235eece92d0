#include "storage/Preferences.h"

#include "storage/DataFolder.h"

#include <QFile>
#include <QTemporaryDir>

using namespace loom;

namespace
{

class PreferencesTest : public testing::Test
{
protected:
    void put(const QByteArray& content) const
    {
        QFile file(home.path() + QStringLiteral("/lst_preferences.json"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    [[nodiscard]] QJsonValue stored()
    {
        folder.waitUntilWritten();
        return folder.load(QStringLiteral("lst_preferences"), [](const JsonReader& json) { return json.asJson(); })
            .value_or(QJsonValue());
    }

    QTemporaryDir home;
    DataFolder folder{home.path()};
};

TEST_F(PreferencesTest, ASettingThatIsAbsentOrOfAnotherTypeIsItsFallback)
{
    for (
        const char* const content : {
            R"({})",
            R"({"lst_split_preview":"no","lst_split_preview_width_v2":"7","lst_appearance":1,"lst_running_session":"{}"})",
            R"({"lst_split_preview":null,"lst_split_preview_width_v2":[],"lst_appearance":{}})",
            R"({"lst_split_preview":0,"lst_split_preview_width_v2":true,"lst_appearance":false})",
            R"([])",
            R"({"lst_split_preview":false,"lst_appearance":"dark")",
        }) {
        put(content);
        const Preferences preferences(folder);
        EXPECT_TRUE(preferences.value(preferences::splitPreview)) << content;
        EXPECT_EQ(preferences.value(preferences::splitPreviewWidth), 0) << content;
        EXPECT_EQ(preferences.value(preferences::appearance), QStringLiteral("system")) << content;
        EXPECT_FALSE(preferences.value(preferences::runningSession)) << content;
    }
}

TEST_F(PreferencesTest, SettingsSurviveARestartTogetherWithThoseOfANewerVersion)
{
    put(R"({"lst_appearance":"dark","lst_of_tomorrow":{"a":[1,null,9007199254740993]},"lst_split_preview_width_v2":320})");
    {
        Preferences preferences(folder);
        EXPECT_EQ(preferences.value(preferences::splitPreviewWidth), 320);
        preferences.set(preferences::splitPreview, false);
        preferences.set(preferences::visitorId, QStringLiteral("łódź"));
        preferences.set(preferences::runningSession, {{QStringLiteral("build"), 7}});
        preferences.set(preferences::splitPreviewWidth, 412.5);
        preferences.remove(preferences::appearance);
    }
    const Preferences preferences(folder);
    EXPECT_FALSE(preferences.value(preferences::splitPreview));
    EXPECT_EQ(preferences.value(preferences::visitorId), QStringLiteral("łódź"));
    EXPECT_EQ(preferences.value(preferences::runningSession), QJsonObject({{QStringLiteral("build"), 7}}));
    EXPECT_EQ(preferences.value(preferences::splitPreviewWidth), 412.5);
    EXPECT_EQ(preferences.value(preferences::appearance), QStringLiteral("system"));
    const QJsonObject kept = stored().toObject();
    EXPECT_EQ(
        kept.value(QStringLiteral("lst_of_tomorrow")).toObject().value(QStringLiteral("a")).toArray().at(2).toInteger(),
        9007199254740993);
    EXPECT_FALSE(kept.contains(QStringLiteral("lst_appearance")));
}

TEST_F(PreferencesTest, OnlyAChangeIsAnnouncedAndWritten)
{
    put(R"({"lst_split_preview_width_v2":320,"lst_appearance":"dark"})");
    Preferences preferences(folder);
    QStringList announced;
    QObject::connect(&preferences, &Preferences::changed, &preferences, [&](const QString& key) {
        // Whoever is told sees the new value.
        announced.append(key + QLatin1Char('=') + preferences.value(preferences::appearance));
    });
    preferences.set(preferences::splitPreviewWidth, 320);
    preferences.set(preferences::appearance, QStringLiteral("dark"));
    preferences.remove(preferences::visitorId);
    EXPECT_TRUE(announced.isEmpty());
    preferences.set(preferences::appearance, QStringLiteral("light"));
    preferences.remove(preferences::appearance);
    EXPECT_EQ(announced,
              QStringList({QStringLiteral("lst_appearance=light"), QStringLiteral("lst_appearance=system")}));
    EXPECT_EQ(stored(), QJsonValue(QJsonObject{{QStringLiteral("lst_split_preview_width_v2"), 320}}));
}

} // namespace
