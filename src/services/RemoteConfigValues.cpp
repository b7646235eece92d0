#include "services/RemoteConfigValues.h"

#include "base/Dates.h"
#include "catalog/DisplayText.h"

#include <QJsonArray>
#include <QUrl>

#include <algorithm>

namespace loom
{

namespace
{

/// Longer than any text of a window.
constexpr qsizetype longestText = 2000;

/// Texts with something in them: an empty one would leave a button without a word. What could turn around the words
/// beside it is gone.
LanguageTexts decodeTexts(const JsonReader& json)
{
    LanguageTexts texts;
    for (const auto& [language, value] : json.members()) {
        const QString text = displayText(value.asText().value_or(QString()), longestText);
        if (!text.isEmpty() && !texts.contains(language))
            texts.insert(language, text);
    }
    return texts;
}

QMap<QString, bool> decodeFeatures(const std::optional<JsonReader>& json)
{
    QMap<QString, bool> features;
    for (const auto& [key, value] : json ? json->members() : std::vector<std::pair<QString, JsonReader>>()) {
        const QJsonValue isOn = value.asJson();
        if (isOn.isBool() && !features.contains(key))
            features.insert(key, isOn.toBool());
    }
    return features;
}

QMap<QString, LanguageTexts> decodeCopy(const std::optional<JsonReader>& json)
{
    QMap<QString, LanguageTexts> copy;
    for (const auto& [key, value] : json ? json->members() : std::vector<std::pair<QString, JsonReader>>()) {
        const LanguageTexts texts = decodeTexts(value);
        if (!texts.isEmpty() && !copy.contains(key))
            copy.insert(key, texts);
    }
    return copy;
}

/// None when the store says nothing of the order; cards that are not known here are left out.
std::optional<std::vector<DashboardCard>> decodeDashboard(const JsonReader& json)
{
    if (!json.has("dashboard") || !json.value("dashboard").isList())
        return std::nullopt;
    std::vector<DashboardCard> cards;
    for (const QString& key : json.textList("dashboard")) {
        const auto found = std::ranges::find_if(dashboardCardKeys,
                                                [&key](const auto& card) { return key == QLatin1String(card.second); });
        if (found != dashboardCardKeys.end() && std::ranges::find(cards, found->first) == cards.end())
            cards.push_back(found->first);
    }
    return cards;
}

std::optional<QString> decodeImage(const JsonReader& json)
{
    auto address = json.optionalText("image");
    const QUrl url = address ? QUrl(*address, QUrl::StrictMode) : QUrl();
    return url.scheme() == QLatin1String("https") && !url.host().isEmpty() ? std::move(address) : std::nullopt;
}

std::optional<RemotePromo> decodePromo(const JsonReader& json)
{
    const auto promo = json.optionalObject("promo");
    if (!promo)
        return std::nullopt;
    RemotePromo read{.id = promo->optionalText("id").value_or(QString()).trimmed(),
                     .image = decodeImage(*promo),
                     .title = {},
                     .subtitle = {},
                     .link = promo->optionalText("link").value_or(QString()).trimmed(),
                     .startsAt = promo->optionalDate("startsAt"),
                     .endsAt = promo->optionalDate("endsAt")};
    if (read.id.isEmpty() || read.link.isEmpty())
        return std::nullopt;
    if (const auto title = promo->optionalObject("title"))
        read.title = decodeTexts(*title);
    if (const auto subtitle = promo->optionalObject("subtitle"))
        read.subtitle = decodeTexts(*subtitle);
    return read;
}

QJsonObject toJson(const LanguageTexts& texts)
{
    QJsonObject object;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        object.insert(text.key(), text.value());
    return object;
}

QJsonObject toJson(const RemotePromo& promo)
{
    QJsonObject object{{QStringLiteral("id"), promo.id},
                       {QStringLiteral("title"), toJson(promo.title)},
                       {QStringLiteral("link"), promo.link}};
    if (promo.image)
        object.insert(QStringLiteral("image"), *promo.image);
    if (promo.subtitle)
        object.insert(QStringLiteral("subtitle"), toJson(*promo.subtitle));
    if (promo.startsAt)
        object.insert(QStringLiteral("startsAt"), formatDate(*promo.startsAt));
    if (promo.endsAt)
        object.insert(QStringLiteral("endsAt"), formatDate(*promo.endsAt));
    return object;
}

QJsonArray toJson(const std::vector<DashboardCard>& cards)
{
    QJsonArray keys;
    for (const DashboardCard card : cards)
        keys.append(QLatin1String(dashboardCardKeys.at(static_cast<std::size_t>(card)).second));
    return keys;
}

RemoteConfigValues decodeDocument(const JsonReader& json, qint64 appliedRevision)
{
    if (!json.isObject())
        json.fail(QStringLiteral("expected an object"));
    RemoteConfigValues values{.revision = json.optionalInteger("revision").value_or(appliedRevision),
                              .features = decodeFeatures(json.optionalObject("features")),
                              .dashboard = {},
                              .promo = {},
                              .hiddenTools = {},
                              .copy = decodeCopy(json.optionalObject("copy"))};
    if (const auto home = json.optionalObject("home")) {
        values.dashboard = decodeDashboard(*home);
        values.promo = decodePromo(*home);
    }
    if (const auto tools = json.optionalObject("tools"))
        values.hiddenTools = tools->textList("hidden");
    return values;
}

} // namespace

std::optional<QString> RemoteConfigValues::copyText(const QString& key, AppLanguage language, BuiltInText builtIn) const
{
    const LanguageTexts texts = copy.value(key);
    if (const auto text = texts.constFind(appLanguageCode(language)); text != texts.constEnd())
        return *text;
    const auto english = texts.constFind(appLanguageCode(AppLanguage::English));
    return builtIn == BuiltInText::English && english != texts.constEnd() ? std::optional(*english) : std::nullopt;
}

Result<RemoteConfigValues, QString> readRemoteDocument(const QByteArray& document, qint64 appliedRevision)
{
    if (document.size() > maximumDocumentBytes)
        return Unexpected(QStringLiteral("%1 bytes are too many").arg(document.size()));
    return decodeJson(document,
                      [appliedRevision](const JsonReader& json) { return decodeDocument(json, appliedRevision); });
}

QJsonObject toJson(const RemoteConfigValues& values)
{
    QJsonObject features;
    for (auto feature = values.features.cbegin(); feature != values.features.cend(); ++feature)
        features.insert(feature.key(), feature.value());
    QJsonObject copy;
    for (auto texts = values.copy.cbegin(); texts != values.copy.cend(); ++texts)
        copy.insert(texts.key(), toJson(texts.value()));
    QJsonObject object{{QStringLiteral("revision"), values.revision},
                       {QStringLiteral("features"), features},
                       {QStringLiteral("hiddenTools"), QJsonArray::fromStringList(values.hiddenTools)},
                       {QStringLiteral("copy"), copy}};
    if (values.dashboard)
        object.insert(QStringLiteral("dashboard"), toJson(*values.dashboard));
    if (values.promo)
        object.insert(QStringLiteral("promo"), toJson(*values.promo));
    return object;
}

RemoteConfigValues decodeRemoteConfigValues(const JsonReader& json)
{
    if (!json.isObject())
        json.fail(QStringLiteral("expected an object"));
    return {.revision = json.optionalInteger("revision").value_or(0),
            .features = decodeFeatures(json.optionalObject("features")),
            .dashboard = decodeDashboard(json),
            .promo = decodePromo(json),
            .hiddenTools = json.textList("hiddenTools"),
            .copy = decodeCopy(json.optionalObject("copy"))};
}

} // namespace loom
