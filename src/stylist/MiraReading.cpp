#include "stylist/MiraReading.h"

#include "base/Dates.h"
#include "base/JsonReader.h"
#include "catalog/DisplayText.h"

#include <QJsonArray>
#include <QLocale>
#include <QSet>

#include <cmath>

namespace loom
{

namespace
{

constexpr qsizetype longestLine = 240;
constexpr qsizetype longestName = 64;
constexpr qsizetype longestHandle = 255;
constexpr qsizetype longestAddress = 2048;
constexpr std::size_t mostAttachments = 100;
constexpr std::size_t mostOrders = 100;

void requireObject(const JsonReader& json)
{
    if (!json.isObject())
        json.fail(QStringLiteral("expected an object"));
}

QString line(const JsonReader& json, std::string_view key, qsizetype limit = longestLine)
{
    return displayLine(json.optionalText(key).value_or(QString()), limit);
}

/// As it came, for it goes into calls; empty where it is longer than any can be.
QString token(const JsonReader& json, std::string_view key, qsizetype limit)
{
    const QString text = json.optionalText(key).value_or(QString());
    return text.size() <= limit ? text : QString();
}

/// A text or a number; empty where it is neither.
QString identifier(const JsonReader& json, std::string_view key)
{
    if (const auto text = json.optionalText(key))
        return *text;
    const auto number = json.optionalInteger(key);
    return number ? QString::number(*number) : QString();
}

MiraAttachment decodeAttachment(const JsonReader& json)
{
    MiraAttachment attachment{.handle = token(json, "handle", longestHandle),
                              .title = line(json, "title"),
                              .vendor = line(json, "vendor"),
                              .price = decodeMiraPrice(json),
                              .imageURL = token(json, "image", longestAddress)};
    if (attachment.title.isEmpty())
        json.fail(QStringLiteral("item without title"));
    if (const QString reason = line(json, "reason"); !reason.isEmpty())
        attachment.reason = reason;
    return attachment;
}

/// Takes out what has the same identity as one before it; an empty identity is none.
template <typename Record>
void keepEachOnce(std::vector<Record>& records, QString Record::* identity)
{
    QSet<QString> known;
    std::erase_if(records, [&known, identity](const Record& record) {
        const QString& id = record.*identity;
        if (known.contains(id))
            return true;
        if (!id.isEmpty())
            known.insert(id);
        return false;
    });
}

MiraOrdersResponse::Order decodeOrder(const JsonReader& json)
{
    MiraOrdersResponse::Order order{.id = identifier(json, "id"),
                                    .name = line(json, "name", longestName),
                                    .status = line(json, "status", longestName)};
    if (order.id.isEmpty() || order.name.isEmpty())
        json.fail(QStringLiteral("an order without an identifier or a name"));
    return order;
}

MiraOrdersResponse::Refund decodeRefund(const JsonReader& json)
{
    MiraOrdersResponse::Refund refund{.id = identifier(json, "id"),
                                      .orderName = line(json, "orderName", longestName),
                                      .status = line(json, "status", longestName)};
    if (refund.id.isEmpty())
        json.fail(QStringLiteral("a refund without an identifier"));
    return refund;
}

template <typename Record>
std::vector<Record> firstOf(std::vector<Record> records, std::size_t count)
{
    records.resize(std::min(records.size(), count));
    return records;
}

} // namespace

QString decodeMiraPrice(const JsonReader& json)
{
    if (json.optionalText("price"))
        return line(json, "price", longestName);
    const auto number = json.optionalDecimal("price");
    const bool isPrice = number && std::isfinite(*number) && *number >= 0 && *number < 1e12;
    return isPrice ? QString::number(*number, 'f', QLocale::FloatingPointShortest) : QString();
}

MiraMessage decodeMiraMessage(const JsonReader& json)
{
    MiraMessage message{.serverID = identifier(json, "id"),
                        .direction = json.optionalText("direction") == QStringLiteral("outbound")
                                         ? MiraDirection::Outbound
                                         : MiraDirection::Inbound,
                        .body = json.optionalText("body").value_or(QString()),
                        .attachments = JsonReader::decodeEach(json.optionalList("attachments"), decodeAttachment),
                        .createdAt = json.optionalDate("createdAt").value_or(QDateTime())};
    if (message.serverID.isEmpty())
        message.serverID = identifier(json, "serverID");
    if (message.serverID.isEmpty())
        json.fail(QStringLiteral("message without id"));
    keepEachOnce(message.attachments, &MiraAttachment::handle);
    message.attachments = firstOf(std::move(message.attachments), mostAttachments);
    return message;
}

std::vector<MiraMessage> decodeMiraMessages(const std::vector<JsonReader>& elements)
{
    std::vector<MiraMessage> messages = JsonReader::decodeEach(elements, decodeMiraMessage);
    keepEachOnce(messages, &MiraMessage::serverID);
    return messages;
}

MiraInitResponse decodeMiraInit(const JsonReader& json)
{
    requireObject(json);
    MiraInitResponse answer{.visitorToken = token(json, "visitorToken", longestAddress),
                            .hasConversation = json.optionalBoolean("hasConversation").value_or(false),
                            .failureCode = json.optionalText("failureCode")};
    if (answer.failureCode && answer.failureCode->isEmpty())
        answer.failureCode.reset();
    // What has no list is no answer, rather than that of somebody who never wrote; it would replace the conversation.
    const bool mayLackList = answer.failureCode || json.optionalBoolean("hasConversation") == false;
    answer.messages = decodeMiraMessages(mayLackList ? json.optionalList("messages") : json.list("messages"));
    return answer;
}

MiraSendResponse decodeMiraSend(const JsonReader& json)
{
    return {.messages = decodeMiraMessages(json.list("messages"))};
}

MiraGuideResponse decodeMiraGuide(const JsonReader& json)
{
    requireObject(json);
    const auto guide = json.optionalObject("guide");
    return {.guideName = guide ? line(*guide, "name", longestName) : QString(),
            .conversationId = identifier(json, "conversationId")};
}

MiraOrdersResponse decodeMiraOrders(const JsonReader& json)
{
    return {.orders = firstOf(JsonReader::decodeEach(json.list("orders"), decodeOrder), mostOrders),
            .refunds = firstOf(JsonReader::decodeEach(json.optionalList("refunds"), decodeRefund), mostOrders)};
}

QJsonObject miraMessageJson(const MiraMessage& message)
{
    QJsonArray attachments;
    for (const MiraAttachment& attachment : message.attachments) {
        QJsonObject json = miraAttachmentJson(attachment);
        if (attachment.reason)
            json.insert(QStringLiteral("reason"), *attachment.reason);
        attachments.append(json);
    }
    QJsonObject json{{QStringLiteral("id"), message.serverID},
                     {QStringLiteral("direction"), message.direction == MiraDirection::Outbound
                                                       ? QStringLiteral("outbound")
                                                       : QStringLiteral("inbound")},
                     {QStringLiteral("body"), message.body},
                     {QStringLiteral("attachments"), attachments}};
    if (message.createdAt.isValid())
        json.insert(QStringLiteral("createdAt"), formatDate(message.createdAt));
    return json;
}

QJsonObject miraAttachmentJson(const MiraAttachment& attachment)
{
    return {{QStringLiteral("handle"), attachment.handle},
            {QStringLiteral("title"), attachment.title},
            {QStringLiteral("vendor"), attachment.vendor},
            {QStringLiteral("price"), attachment.price},
            {QStringLiteral("image"), attachment.imageURL}};
}

} // namespace loom
