#include "base/Clock.h"
#include "stylist/MiraTopicTitle.h"
#include "stylist/MiraTopics.h"

#include <QSet>

#include <algorithm>
#include <tuple>

// What the service answers, and which of it is already here; what the shopper does with topics is in MiraTopics.cpp.

namespace loom
{

namespace
{

/// Clocks differ: a message that the service shows with a time as far from ours is ours all the same.
constexpr std::chrono::minutes tolerance{10};

QString comparable(const QString& body)
{
    return QString(body).remove(u'\r').trimmed();
}

bool isNear(const QDateTime& time, const MiraEntry& entry)
{
    if (!time.isValid() || !entry.lastSent.isValid())
        return true;
    const auto margin = std::chrono::seconds(tolerance).count();
    return time >= entry.message.createdAt.addSecs(-margin) && time <= entry.lastSent.addSecs(margin);
}

/// Whether the service shows with the message what was sent with the entry.
bool isSame(const MiraEntry& entry, const MiraMessage& message)
{
    return entry.attempts > 0 && message.direction == MiraDirection::Outbound && isNear(message.createdAt, entry) &&
           comparable(entry.message.body) == comparable(message.body);
}

/// Identifiers of the service and those of this machine never meet.
MiraEntry entryOf(MiraMessage message)
{
    return {.key = QStringLiteral("m-") + message.serverID, .message = std::move(message)};
}

} // namespace

/// Those that were sent from here and may show up in an answer yet, each with its topic.
std::vector<std::pair<MiraEntry*, QString>> MiraTopics::awaited()
{
    std::vector<std::pair<MiraEntry*, QString>> entries;
    for (Topic& kept : m_topics) {
        for (MiraEntry& entry : kept.entries) {
            if (entry.attempts > 0 && entry.isMine())
                entries.emplace_back(&entry, kept.topic.id);
        }
    }
    return entries;
}

/// The service shows it now. What stands here is what the shopper wrote, at the time of this machine.
void MiraTopics::confirm(MiraEntry& entry, const MiraMessage& message)
{
    entry.message.serverID = message.serverID;
    entry.attempts = std::max(0, entry.attempts - 1);
    if (entry.state == MiraEntry::State::Unconfirmed)
        entry.state = MiraEntry::State::Sent;
}

int MiraTopics::adopt(std::vector<MiraMessage> messages)
{
    if (std::ranges::none_of(messages,
                             [this](const MiraMessage& message) { return m_owners.contains(message.serverID); }))
        setAside();
    const auto sent = awaited();
    int added = 0;
    QSet<QString> homes;
    for (const Topic& kept : m_topics)
        homes.insert(kept.topic.id);
    QHash<QString, std::vector<Listed>> listed; // by topic
    QHash<QString, MiraEntry*> known;           // by the identifier of the service
    for (Topic& kept : m_topics) {
        for (MiraEntry& entry : kept.entries) {
            if (!entry.message.serverID.isEmpty())
                known.insert(entry.message.serverID, &entry);
        }
    }
    for (MiraMessage& message : messages) {
        const auto owner = m_owners.constFind(message.serverID);
        if (owner != m_owners.constEnd()) {
            if (homes.contains(*owner)) // else it is to be shown nowhere
                listed[*owner].push_back({.entry = known.value(message.serverID), .message = &message});
            continue;
        }
        // One that the service has not shown yet comes before another attempt at one that it has.
        auto own = std::ranges::find_if(sent, [&message](const auto& candidate) {
            return candidate.first->message.serverID.isEmpty() && isSame(*candidate.first, message);
        });
        if (own == sent.end())
            own = std::ranges::find_if(sent,
                                       [&message](const auto& candidate) { return isSame(*candidate.first, message); });
        if (own == sent.end()) {
            ++added;
            m_owners.insert(message.serverID, m_current);
            listed[m_current].push_back({.entry = nullptr, .message = &message});
        } else if (!own->first->message.serverID.isEmpty()) { // sent twice, shown once
            --own->first->attempts;
            m_owners.insert(message.serverID, QString());
        } else {
            confirm(*own->first, message);
            m_owners.insert(message.serverID, own->second);
            listed[own->second].push_back({.entry = own->first, .message = &message});
        }
    }
    for (auto&& [id, entries] : listed.asKeyValueRange())
        arrange(*topic(id), entries);
    save();
    return added;
}

/// The service knows of nothing that is here: its conversation is another one by now. What is here stays as a topic.
void MiraTopics::setAside()
{
    const bool hasAny =
        std::ranges::any_of(thread(), [](const MiraEntry& entry) { return !entry.message.serverID.isEmpty(); });
    if (!hasAny)
        return;
    std::vector<MiraEntry>& entries = topic(m_current)->entries;
    std::vector<MiraEntry> waiting;
    std::ranges::copy_if(entries, std::back_inserter(waiting),
                         [](const MiraEntry& entry) { return entry.message.serverID.isEmpty(); });
    std::erase_if(entries, [](const MiraEntry& entry) { return entry.message.serverID.isEmpty(); });
    m_current = makeTopic().topic.id;
    topic(m_current)->entries = std::move(waiting);
    limit();
}

/// Puts a topic's messages in the order in which the service lists them. What it does not list stays where it stood
/// before all of them, and what it may not have yet comes last.
void MiraTopics::arrange(Topic& topic, const std::vector<Listed>& rows)
{
    QSet<QString> keys;
    std::vector<MiraEntry> listed;
    listed.reserve(rows.size());
    for (const Listed& row : rows) {
        if (!row.entry) {
            listed.push_back(entryOf(std::move(*row.message)));
        } else {
            if (!row.entry->lastSent.isValid())
                row.entry->message = std::move(*row.message);
            keys.insert(row.entry->key);
            listed.push_back(std::move(*row.entry));
            row.entry->key = listed.back().key; // by which it is passed over below
        }
    }
    std::vector<MiraEntry> entries;
    entries.reserve(listed.size() + topic.entries.size());
    std::vector<MiraEntry> waiting;
    bool isBefore = true;
    for (MiraEntry& entry : topic.entries) {
        if (keys.contains(entry.key)) {
            isBefore = false;
        } else if (entry.message.serverID.isEmpty()) {
            if (entry.state == MiraEntry::State::Sent) {
                const auto place = std::ranges::find_if(listed, [&entry](const MiraEntry& other) {
                    return other.message.createdAt > entry.message.createdAt;
                });
                listed.insert(place, std::move(entry));
            } else {
                waiting.push_back(std::move(entry));
            }
        } else if (isBefore) {
            entries.push_back(std::move(entry));
        }
    }
    std::ranges::move(listed, std::back_inserter(entries));
    std::ranges::move(waiting, std::back_inserter(entries));
    topic.entries = std::move(entries);
    if (topic.topic.title.isEmpty())
        topic.topic.title = miraTopicTitle(topic.entries);
    for (auto entry = topic.entries.rbegin(); entry != topic.entries.rend(); ++entry) {
        if (entry->message.createdAt.isValid()) {
            topic.topic.lastMessage = std::min(entry->message.createdAt, m_clock.now());
            break;
        }
    }
}

std::vector<MiraMessage> MiraTopics::take(const QString& key, const std::vector<MiraMessage>& messages)
{
    std::vector<MiraMessage> replies;
    MiraEntry* sent = find(key);
    Topic* home = nullptr;
    for (Topic& kept : m_topics) {
        if (std::ranges::any_of(kept.entries, [&key](const MiraEntry& entry) { return entry.key == key; }))
            home = &kept;
    }
    // Where none says what was sent, the service changed the words, and the first of the shopper's is meant.
    bool isEchoed = home && std::ranges::any_of(messages, [this, sent](const MiraMessage& message) {
                        return !m_owners.contains(message.serverID) && isSame(*sent, message);
                    });
    for (const MiraMessage& message : messages) {
        if (m_owners.contains(message.serverID))
            continue;
        if (!home) { // its topic was deleted in the meantime
            m_owners.insert(message.serverID, QString());
            continue;
        }
        const bool isMine = message.direction == MiraDirection::Outbound;
        if (isMine && sent->attempts > 0 && (isSame(*sent, message) || !std::exchange(isEchoed, true))) {
            // The service may show what an earlier attempt left, too.
            const bool isNamed = !sent->message.serverID.isEmpty();
            m_owners.insert(message.serverID, isNamed ? QString() : home->topic.id);
            if (isNamed)
                --sent->attempts;
            else
                confirm(*sent, message);
            continue;
        }
        m_owners.insert(message.serverID, home->topic.id);
        home->entries.push_back(entryOf(message));
        sent = find(key);
        home->topic.lastMessage = m_clock.now();
        if (!isMine)
            replies.push_back(message);
    }
    if (sent)
        sent->state = MiraEntry::State::Sent;
    save();
    return replies;
}

} // namespace loom
