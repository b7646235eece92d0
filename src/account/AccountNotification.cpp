#include "account/AccountNotification.h"

#include "base/Dates.h"
#include "base/JsonReader.h"
#include "catalog/DisplayText.h"

namespace loom
{

namespace
{

constexpr qsizetype longestId = 512;
constexpr qsizetype longestTitle = 300;
constexpr qsizetype longestBody = 4000;
constexpr qsizetype longestAddress = 4096;

QString shortText(const JsonReader& json, std::string_view key)
{
    const QString text = json.optionalText(key).value_or(QString()).trimmed();
    return text.size() <= longestAddress ? text : QString();
}

QString decodeId(const JsonReader& json)
{
    const QString id = json.text("id");
    if (id.isEmpty() || id.size() > longestId)
        json.fail(QStringLiteral("no id that could be kept"));
    return id;
}

/// Pictures come from servers: a file of this machine is none.
QString decodeImage(const JsonReader& json)
{
    const QString address = shortText(json, "image");
    return address.startsWith(QLatin1String("https://"), Qt::CaseInsensitive) ? address : QString();
}

} // namespace

AccountNotification decodeAccountNotification(const JsonReader& json)
{
    return {.id = decodeId(json),
            .type = shortText(json, "type"),
            .title = displayLine(json.optionalText("title").value_or(QString()), longestTitle),
            .body = displayText(json.optionalText("body").value_or(QString()), longestBody),
            .link = shortText(json, "link"),
            .image = decodeImage(json),
            .date = json.optionalDate("date"),
            .isUnread = json.optionalBoolean("sourceUnread").value_or(true)};
}

QJsonObject toJson(const AccountNotification& notification)
{
    QJsonObject json{{QStringLiteral("id"), notification.id},
                     {QStringLiteral("type"), notification.type},
                     {QStringLiteral("title"), notification.title},
                     {QStringLiteral("body"), notification.body},
                     {QStringLiteral("link"), notification.link},
                     {QStringLiteral("image"), notification.image},
                     {QStringLiteral("sourceUnread"), notification.isUnread}};
    if (notification.date)
        json.insert(QStringLiteral("date"), formatDate(*notification.date));
    return json;
}

} // namespace loom
