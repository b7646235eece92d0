#include "services/RemoteConfigValues.h"

#include "support/Json.h"

#include <QJsonDocument>
#include <gtest/gtest.h>

using namespace loom;

namespace
{

const char* const whole = R"({
    "revision": 7,
    "features": {"imageSearch": false, "somethingNew": true},
    "copy": {"tools.title": {"en": "Toolbox", "de": "Werkzeug"}},
    "home": {
        "dashboard": ["orders", "vessa"],
        "promo": {"id": "spring", "image": "https://cdn.example/a.jpg", "title": {"en": "Spring"},
                  "subtitle": {"en": "Now"}, "link": "/collections/new-in",
                  "startsAt": "2025-03-01T00:00:00Z", "endsAt": "2025-04-01T02:00:00+02:00"}},
    "tools": {"hidden": ["closet"]}})";

/// What is applied, as it is kept.
QJsonObject kept(const QJsonValue& document)
{
    const auto values = readRemoteDocument(bytes(document), 3);
    return values ? toJson(*values) : QJsonObject();
}

QString compact(const QJsonValue& value)
{
    return QString::fromUtf8(bytes(value));
}

const char* const wholeKept = R"({
    "revision": 7,
    "features": {"imageSearch": false, "somethingNew": true},
    "copy": {"tools.title": {"en": "Toolbox", "de": "Werkzeug"}},
    "dashboard": ["orders", "vessa"],
    "promo": {"id": "spring", "image": "https://cdn.example/a.jpg", "title": {"en": "Spring"},
              "subtitle": {"en": "Now"}, "link": "/collections/new-in",
              "startsAt": "2025-03-01T00:00:00.000Z", "endsAt": "2025-04-01T00:00:00.000Z"},
    "hiddenTools": ["closet"]})";

TEST(RemoteConfigValuesTest, WhateverIsOfTheWrongTypeAloneIsAsIfItWereNotThere)
{
    struct Row {
        const char* path;        ///< in the document
        const char* replacement; ///< null: it is left out
        const char* keptPath;
        const char* kept; ///< null: it is not there
    };
    const Row rows[] = {
        {"unknown", "1", "unknown", nullptr},
        {"revision", nullptr, "revision", "3"},
        {"revision", "\"7\"", "revision", "3"},
        {"features", "[]", "features", "{}"},
        {"features.imageSearch", "\"no\"", "features", R"({"somethingNew": true})"},
        {"copy", "7", "copy", "{}"},
        {"copy", R"({"a": 1, "b": {"en": 2, "de": "x", "fr": " "}, "c": {}})", "copy", R"({"b": {"de": "x"}})"},
        {"copy", R"({"a": {"en": "\u202eTurned\u0007 \n round"}})", "copy", R"({"a": {"en": "Turned\nround"}})"},
        {"home.dashboard", nullptr, "dashboard", nullptr},
        {"home.dashboard", R"("orders")", "dashboard", nullptr},
        {"home.dashboard", "[]", "dashboard", "[]"},
        {"home.dashboard", R"(["orders", "news", 4, "vessa", "orders"])", "dashboard", R"(["orders", "vessa"])"},
        {"home.promo", "[]", "promo", nullptr},
        {"home.promo.id", nullptr, "promo", nullptr},
        {"home.promo.id", "4", "promo", nullptr},
        {"home.promo.link", "\" \"", "promo", nullptr},
        {"home.promo.image", "\"javascript:a()\"", "promo.image", nullptr},
        {"home.promo.title", "\"Spring\"", "promo.title", "{}"},
        {"home.promo.subtitle", nullptr, "promo.subtitle", nullptr},
        {"home.promo.startsAt", "\"soon\"", "promo.startsAt", nullptr},
        {"home.promo.endsAt", "1743465600", "promo.endsAt", nullptr},
        {"tools", "true", "hiddenTools", "[]"},
        {"tools.hidden", R"(["closet", 1, null, "compare"])", "hiddenTools", R"(["closet", "compare"])"},
    };
    EXPECT_EQ(compact(kept(json(whole))), compact(json(wholeKept)));
    for (const Row& row : rows) {
        const auto value = [](const char* text) {
            return text ? json((QByteArray("{\"v\":") + text + "}").constData()).toObject().value(QStringLiteral("v"))
                        : QJsonValue(QJsonValue::Undefined);
        };
        const QJsonObject result = kept(changed(json(whole), QString::fromLatin1(row.path), value(row.replacement)));
        const QJsonValue expected = changed(json(wholeKept), QString::fromLatin1(row.keptPath), value(row.kept));
        EXPECT_EQ(compact(result), compact(expected)) << row.path;
        // What is kept is read again as it was.
        const auto again = decodeJson(bytes(result), decodeRemoteConfigValues);
        ASSERT_TRUE(again) << row.path;
        EXPECT_EQ(compact(toJson(*again)), compact(result)) << row.path;
    }
    // Home as a whole holds two of them.
    const QJsonObject result = kept(changed(json(whole), QStringLiteral("home"), 1));
    EXPECT_FALSE(result.contains(QStringLiteral("dashboard")) || result.contains(QStringLiteral("promo")));
    EXPECT_TRUE(result.contains(QStringLiteral("copy")));
}

TEST(RemoteConfigValuesTest, ADocumentThatIsNoneOrTooLargeIsRefused)
{
    for (const char* const document : {"", "[]", "null", "{\"revision\": 8", "<html>"})
        EXPECT_FALSE(readRemoteDocument(document, 0)) << document;
    const QByteArray small = "{\"revision\": 8}";
    EXPECT_TRUE(readRemoteDocument(small + QByteArray(maximumDocumentBytes - small.size(), ' '), 0));
    EXPECT_FALSE(readRemoteDocument(small + QByteArray(maximumDocumentBytes, ' '), 0));
}

TEST(RemoteConfigValuesTest, TextsAreLookedUpInTheLanguageOfTheShopper)
{
    RemoteConfigValues values;
    values.copy = {{QStringLiteral("both"),
                    {{QStringLiteral("en"), QStringLiteral("e")}, {QStringLiteral("de"), QStringLiteral("d")}}},
                   {QStringLiteral("english"), {{QStringLiteral("en"), QStringLiteral("e")}}},
                   {QStringLiteral("french"), {{QStringLiteral("fr"), QStringLiteral("f")}}}};
    struct Row {
        const char* key;
        AppLanguage language;
        BuiltInText builtIn;
        const char* text;
    };
    for (const Row& row : {Row{"both", AppLanguage::German, BuiltInText::Translated, "d"},
                           Row{"both", AppLanguage::English, BuiltInText::English, "e"},
                           Row{"english", AppLanguage::German, BuiltInText::English, "e"},
                           Row{"english", AppLanguage::German, BuiltInText::Translated, nullptr},
                           Row{"french", AppLanguage::German, BuiltInText::English, nullptr},
                           Row{"none", AppLanguage::German, BuiltInText::English, nullptr}}) {
        const auto text = values.copyText(QLatin1String(row.key), row.language, row.builtIn);
        EXPECT_EQ(text, row.text ? std::optional(QString::fromLatin1(row.text)) : std::nullopt) << row.key;
    }
    const LanguageTexts promoted{{QStringLiteral("fr"), QStringLiteral("f")},
                                 {QStringLiteral("zh-Hant"), QStringLiteral("z")}};
    EXPECT_EQ(textFor(promoted, AppLanguage::ZhHant), QStringLiteral("z"));
    EXPECT_EQ(textFor(promoted, AppLanguage::German), QStringLiteral("f"));
    EXPECT_EQ(textFor(values.copy.value(QStringLiteral("english")), AppLanguage::German), QStringLiteral("e"));
    EXPECT_EQ(textFor({}, AppLanguage::German), QString());
}

} // namespace
