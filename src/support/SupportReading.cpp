#include "support/SupportReading.h"

#include "base/Dates.h"
#include "base/JsonReader.h"
#include "catalog/DisplayText.h"

#include <QJsonArray>
#include <QSet>

namespace loom
{

namespace
{

constexpr qsizetype longestName = 120;
constexpr qsizetype longestToken = 2048;
constexpr std::size_t mostAttachments = 20;
constexpr qint64 mostPixels = 100000;

/// As it came, for it goes into calls; empty where it is longer than any can be.
QString token(const JsonReader& json, std::string_view key)
{
    const QString text = json.optionalText(key).value_or(QString());
    return text.size() <= longestToken ? text : QString();
}

QString line(const JsonReader& json, std::string_view key)
{
    return displayLine(json.optionalText(key).value_or(QString()), longestName);
}

int pixels(const JsonReader& json, std::string_view key)
{
    const qint64 count = json.optionalInteger(key).value_or(0);
    return count > 0 && count <= mostPixels ? static_cast<int>(count) : 0;
}

int unreadCount(std::optional<qint64> count)
{
    return static_cast<int>(std::clamp<qint64>(count.value_or(0), 0, mostSupportMessages));
}

SupportAttachment decodeAttachment(const JsonReader& json)
{
    SupportAttachment attachment{.url = token(json, "url"),
                                 .name = line(json, "name"),
                                 .mimeType = line(json, "mimeType"),
                                 .width = pixels(json, "width"),
                                 .height = pixels(json, "height")};
    if (attachment.url.isEmpty())
        json.fail(QStringLiteral("attachment without address"));
    return attachment;
}

} // namespace

SupportMessage decodeSupportMessage(const JsonReader& json)
{
    SupportMessage message{.id = token(json, "id"),
                           .clientID = token(json, "clientID"),
                           .direction = json.optionalText("direction") == QStringLiteral("outbound")
                                            ? SupportDirection::Outbound
                                            : SupportDirection::Inbound,
                           .body = displayText(json.optionalText("body").value_or(QString()), longestSupportBody),
                           .attachments = JsonReader::decodeEach(json.optionalList("attachments"), decodeAttachment),
                           .createdAt = json.optionalDate("createdAt").value_or(QDateTime()),
                           .agent = line(json, "agent")};
    message.attachments.resize(std::min(message.attachments.size(), mostAttachments));
    if (message.id.isEmpty())
        json.fail(QStringLiteral("message without id"));
    if (message.body.isEmpty() && message.attachments.empty())
        json.fail(QStringLiteral("message without content"));
    return message;
}

std::vector<SupportMessage> decodeSupportMessages(const std::vector<JsonReader>& elements)
{
    std::vector<SupportMessage> messages = JsonReader::decodeEach(elements, decodeSupportMessage);
    QSet<QString> known;
    std::erase_if(messages, [&known](const SupportMessage& message) {
        const bool isKnown = known.contains(message.id);
        known.insert(message.id);
        return isKnown;
    });
    if (messages.size() > mostSupportMessages)
        messages.erase(messages.begin(), messages.end() - mostSupportMessages);
    return messages;
}

SupportInitResponse decodeSupportInit(const JsonReader& json)
{
    SupportInitResponse answer{.visitorToken = token(json, "visitorToken"),
                               .messages = decodeSupportMessages(json.list("messages")),
                               .unreadCount = unreadCount(json.optionalInteger("unreadCount"))};
    if (answer.visitorToken.isEmpty())
        json.fail(QStringLiteral("conversation without token"));
    return answer;
}

SupportRepliesResponse decodeSupportReplies(const JsonReader& json)
{
    SupportRepliesResponse answer{.messages = decodeSupportMessages(json.list("messages")), .unreadCount = {}};
    if (const auto count = json.optionalInteger("unreadCount"))
        answer.unreadCount = unreadCount(count);
    return answer;
}

QJsonObject supportMessageJson(const SupportMessage& message)
{
    QJsonArray attachments;
    for (const SupportAttachment& attachment : message.attachments) {
        attachments.append(QJsonObject{{QStringLiteral("url"), attachment.url},
                                       {QStringLiteral("name"), attachment.name},
                                       {QStringLiteral("mimeType"), attachment.mimeType},
                                       {QStringLiteral("width"), attachment.width},
                                       {QStringLiteral("height"), attachment.height}});
    }
    QJsonObject json{{QStringLiteral("id"), message.id},
                     {QStringLiteral("clientID"), message.clientID},
                     {QStringLiteral("direction"), message.direction == SupportDirection::Outbound
                                                       ? QStringLiteral("outbound")
                                                       : QStringLiteral("inbound")},
                     {QStringLiteral("body"), message.body},
                     {QStringLiteral("attachments"), attachments},
                     {QStringLiteral("agent"), message.agent}};
    if (message.createdAt.isValid())
        json.insert(QStringLiteral("createdAt"), formatDate(message.createdAt));
    return json;
}

SupportFile decodeSupportFile(const JsonReader& json)
{
    return {.path = json.text("path"), .name = line(json, "name"), .mimeType = line(json, "mimeType"), .bytes = {}};
}

QJsonObject supportFileJson(const SupportFile& file)
{
    return {{QStringLiteral("path"), file.path},
            {QStringLiteral("name"), file.name},
            {QStringLiteral("mimeType"), file.mimeType}};
}

} // namespace loom
