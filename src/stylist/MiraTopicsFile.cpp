#include "stylist/MiraTopicsFile.h"

#include "base/Dates.h"
#include "base/JsonReader.h"
#include "stylist/MiraReading.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>

namespace loom
{

namespace
{

QJsonObject entryJson(const MiraEntry& entry)
{
    MiraMessage message = entry.message;
    const bool isUnnamed = message.serverID.isEmpty();
    if (isUnnamed) // which no message is without
        message.serverID = entry.key;
    QJsonObject json = miraMessageJson(message);
    json.insert(QStringLiteral("key"), entry.key);
    if (isUnnamed)
        json.insert(QStringLiteral("isUnnamed"), true);
    if (entry.state != MiraEntry::State::Sent)
        json.insert(QStringLiteral("isUnconfirmed"), true);
    if (entry.attempts > 0)
        json.insert(QStringLiteral("attempts"), entry.attempts);
    if (entry.lastSent.isValid())
        json.insert(QStringLiteral("lastSent"), formatDate(entry.lastSent));
    return json;
}

QDateTime readDate(const JsonReader& json, std::string_view key)
{
    const auto text = json.optionalText(key);
    const auto date = text ? parseDate(*text) : Result<QDateTime, QString>();
    return date ? *date : QDateTime();
}

MiraEntry readEntry(const JsonReader& json)
{
    MiraEntry entry{.key = json.text("key"), .message = decodeMiraMessage(json)};
    if (json.optionalBoolean("isUnnamed").value_or(false))
        entry.message.serverID.clear();
    if (json.optionalBoolean("isUnconfirmed").value_or(false))
        entry.state = MiraEntry::State::Unconfirmed;
    entry.attempts = static_cast<int>(std::clamp<qint64>(json.optionalInteger("attempts").value_or(0), 0, 1000));
    entry.lastSent = readDate(json, "lastSent");
    if (entry.key.isEmpty())
        json.fail(QStringLiteral("a message without a key"));
    return entry;
}

std::vector<MiraEntry> readEntries(const JsonReader& json)
{
    std::vector<MiraEntry> entries = JsonReader::decodeEach(json.optionalList("messages"), readEntry);
    QSet<QString> keys;
    std::erase_if(entries, [&keys](const MiraEntry& entry) {
        const bool isKnown = keys.contains(entry.key);
        keys.insert(entry.key);
        return isKnown;
    });
    return entries;
}

qsizetype sizeOf(const MiraEntry& entry)
{
    qsizetype size = entry.message.body.size() + 100;
    for (const MiraAttachment& attachment : entry.message.attachments)
        size +=
            attachment.title.size() + attachment.imageURL.size() + attachment.reason.value_or(QString()).size() + 100;
    return size;
}

/// The newest for which there is room, and all that the service may not have.
QJsonArray entriesJson(const std::vector<MiraEntry>& entries, qsizetype& room)
{
    std::size_t first = entries.size();
    while (first > 0 && room > 0)
        room -= sizeOf(entries[--first]);
    QJsonArray list;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (i >= first || entries[i].state != MiraEntry::State::Sent)
            list.append(entryJson(entries[i]));
    }
    return list;
}

KeptTopic readTopic(const JsonReader& json)
{
    KeptTopic kept{.topic = {.id = json.text("id"),
                             .title = json.optionalText("title").value_or(QString()),
                             .isNamed = json.optionalBoolean("isNamed").value_or(false),
                             .createdAt = readDate(json, "createdAt"),
                             .lastMessage = readDate(json, "lastMessage")},
                   .entries = readEntries(json)};
    if (kept.topic.id.isEmpty())
        json.fail(QStringLiteral("a topic without an identifier"));
    return kept;
}

} // namespace

QByteArray MiraTopicsFile::json() const
{
    QHash<QString, QJsonArray> identifiers;
    qsizetype count = 0;
    for (auto owner = owners.cbegin(); owner != owners.cend() && count < mostIdentifiers; ++owner, ++count)
        identifiers[owner.value()].append(owner.key());
    // The current one first: it is what is looked at first.
    qsizetype room = mostText;
    QJsonArray list;
    const auto add = [&](const KeptTopic& kept) {
        list.append(QJsonObject{{QStringLiteral("id"), kept.topic.id},
                                {QStringLiteral("title"), kept.topic.title},
                                {QStringLiteral("isNamed"), kept.topic.isNamed},
                                {QStringLiteral("createdAt"), formatDate(kept.topic.createdAt)},
                                {QStringLiteral("lastMessage"), formatDate(kept.topic.lastMessage)},
                                {QStringLiteral("identifiers"), identifiers.value(kept.topic.id)},
                                {QStringLiteral("messages"), entriesJson(kept.entries, room)}});
    };
    for (const bool isCurrent : {true, false}) {
        for (const KeptTopic& kept : topics) {
            if ((kept.topic.id == current) == isCurrent)
                add(kept);
        }
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("current"), current},
                                     {QStringLiteral("topics"), list},
                                     {QStringLiteral("hidden"), identifiers.value(QString())}})
        .toJson(QJsonDocument::Compact);
}

MiraTopicsFile MiraTopicsFile::decode(const JsonReader& json)
{
    MiraTopicsFile file{.current = json.optionalText("current").value_or(QString())};
    for (const JsonReader& element : json.list("topics")) {
        for (KeptTopic& kept : JsonReader::decodeEach({element}, readTopic)) {
            const QString id = kept.topic.id;
            if (std::ranges::any_of(file.topics, [&id](const KeptTopic& other) { return other.topic.id == id; }))
                continue;
            for (const QString& identifier : element.textList("identifiers"))
                file.owners.insert(identifier, id);
            for (const MiraEntry& entry : kept.entries) {
                if (!entry.message.serverID.isEmpty())
                    file.owners.insert(entry.message.serverID, id);
            }
            file.topics.push_back(std::move(kept));
        }
    }
    for (const QString& identifier : json.textList("hidden"))
        file.owners.insert(identifier, QString());
    return file;
}

QByteArray MiraThreadFile::json() const
{
    qsizetype room = mostText;
    return QJsonDocument(
               QJsonObject{{QStringLiteral("topic"), topic}, {QStringLiteral("messages"), entriesJson(entries, room)}})
        .toJson(QJsonDocument::Compact);
}

MiraThreadFile MiraThreadFile::decode(const JsonReader& json)
{
    return {.topic = json.optionalText("topic").value_or(QString()), .entries = readEntries(json)};
}

} // namespace loom
