#include "stylist/MiraTopics.h"

#include "base/Clock.h"
#include "base/Random.h"
#include "catalog/DisplayText.h"
#include "storage/DataFolder.h"
#include "stylist/MiraRules.h"

#include <QSet>

#include <algorithm>
#include <tuple>

namespace loom
{

namespace
{

/// Clocks differ: a message that the service shows with a time as far from ours is ours all the same.
constexpr std::chrono::minutes tolerance{10};
/// A topic is called by so much of its first words.
constexpr qsizetype longestName = 48;

const QString localPrefix = QStringLiteral("local-");

QString comparable(const QString& body)
{
    return QString(body).remove(u'\r').trimmed();
}

/// The first words, whole ones as far as they are not too long.
QString firstWords(const std::vector<MiraEntry>& entries)
{
    for (const bool isMine : {true, false}) {
        for (const MiraEntry& entry : entries) {
            if (entry.isMine() != isMine)
                continue;
            MiraMessage beginning = entry.message;
            beginning.body.truncate(2000);
            const QString line = displayLine(MiraRules::shownText(beginning), longestName + 1);
            if (line.size() <= longestName && !line.isEmpty())
                return line;
            if (line.isEmpty())
                continue;
            const qsizetype blank = line.lastIndexOf(u' ', longestName);
            return displayLine(line.left(blank > longestName / 2 ? blank : longestName), longestName) + u'…';
        }
    }
    return {};
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

MiraTopics::MiraTopics(DataFolder& folder, const Clock& clock, Random& random)
    : m_folder(folder)
    , m_clock(clock)
    , m_random(random)
{
    m_current = makeTopic().topic.id;
}

MiraTopics::Topic& MiraTopics::makeTopic()
{
    const QDateTime now = m_clock.now();
    m_topics.push_back({.topic = {.id = localPrefix + m_random.uuid().toString(QUuid::WithoutBraces),
                                  .title = {},
                                  .createdAt = now,
                                  .lastMessage = now},
                        .entries = {}});
    return m_topics.back();
}

const MiraTopics::Topic* MiraTopics::topic(const QString& id) const
{
    const auto found = std::ranges::find_if(m_topics, [&id](const Topic& kept) { return kept.topic.id == id; });
    return found == m_topics.end() ? nullptr : &*found;
}

MiraTopics::Topic* MiraTopics::topic(const QString& id)
{
    return const_cast<Topic*>(std::as_const(*this).topic(id)); // NOLINT: the topic is ours
}

void MiraTopics::restore()
{
    if (auto kept = m_folder.load(QLatin1String(topicsFile), MiraTopicsFile::decode); kept && !kept->topics.empty()) {
        m_topics = std::move(kept->topics);
        m_owners = std::move(kept->owners);
        m_current = topic(kept->current) ? kept->current : m_topics.front().topic.id;
        return;
    }
    auto shown = m_folder.load(QLatin1String(cacheFile), MiraThreadFile::decode);
    if (!shown || shown->entries.empty())
        return;
    Topic& topic = *this->topic(m_current);
    if (!shown->topic.isEmpty())
        topic.topic.id = m_current = shown->topic;
    topic.entries = std::move(shown->entries);
    topic.topic.title = firstWords(topic.entries);
    for (const MiraEntry& entry : topic.entries) {
        if (!entry.message.serverID.isEmpty())
            m_owners.insert(entry.message.serverID, m_current);
    }
}

std::vector<MiraTopic> MiraTopics::list() const
{
    std::vector<MiraTopic> topics;
    topics.reserve(m_topics.size());
    for (const Topic& kept : m_topics)
        topics.push_back(kept.topic);
    std::ranges::sort(topics, std::greater(),
                      [](const MiraTopic& topic) { return std::tuple(topic.lastMessage, topic.createdAt, topic.id); });
    return topics;
}

QString MiraTopics::title(const QString& id) const
{
    const Topic* const found = topic(id);
    return found ? found->topic.title : QString();
}

const MiraEntry* MiraTopics::entry(const QString& key) const
{
    for (const Topic& kept : m_topics) {
        // What is asked for is nearly always among the last.
        const auto found = std::ranges::find(kept.entries.rbegin(), kept.entries.rend(), key, &MiraEntry::key);
        if (found != kept.entries.rend())
            return &*found;
    }
    return nullptr;
}

MiraEntry* MiraTopics::find(const QString& key)
{
    return const_cast<MiraEntry*>(entry(key)); // NOLINT: the entry is ours
}

bool MiraTopics::begin()
{
    if (thread().empty() && !topic(m_current)->topic.isNamed)
        return false;
    m_current = makeTopic().topic.id;
    limit();
    save();
    return true;
}

bool MiraTopics::open(const QString& id)
{
    if (id == m_current || !topic(id))
        return false;
    const QString left = std::exchange(m_current, id);
    const Topic& kept = *topic(left);
    const bool isBlank =
        kept.entries.empty() && !kept.topic.isNamed && std::ranges::find(m_owners, left) == m_owners.end();
    if (isBlank)
        std::erase_if(m_topics, [&left](const Topic& other) { return other.topic.id == left; });
    save();
    return true;
}

bool MiraTopics::rename(const QString& id, const QString& title)
{
    Topic* const renamed = topic(id);
    if (!renamed)
        return false;
    const QString name = displayLine(title, longestTitle);
    renamed->topic.isNamed = !name.isEmpty();
    renamed->topic.title = name.isEmpty() ? firstWords(renamed->entries) : name;
    save();
    return true;
}

bool MiraTopics::remove(const QString& id)
{
    if (!topic(id))
        return false;
    std::erase_if(m_topics, [&id](const Topic& kept) { return kept.topic.id == id; });
    for (QString& owner : m_owners) {
        if (owner == id)
            owner.clear();
    }
    if (id == m_current)
        m_current = makeTopic().topic.id;
    save();
    return true;
}

QString MiraTopics::add(const QString& body, std::vector<MiraAttachment> attachments)
{
    const QDateTime now = m_clock.now();
    Topic& topic = *this->topic(m_current);
    MiraEntry entry{.key = localPrefix + m_random.uuid().toString(QUuid::WithoutBraces),
                    .message = {.serverID = {},
                                .direction = MiraDirection::Outbound,
                                .body = body,
                                .attachments = std::move(attachments),
                                .createdAt = now},
                    .state = MiraEntry::State::Sending,
                    .attempts = 1,
                    .lastSent = now};
    const QString key = entry.key;
    topic.entries.push_back(std::move(entry));
    topic.topic.lastMessage = now;
    if (topic.topic.title.isEmpty())
        topic.topic.title = firstWords(topic.entries);
    save();
    return key;
}

void MiraTopics::sendAgain(const QString& key)
{
    MiraEntry* const entry = find(key);
    if (!entry)
        return;
    entry->state = MiraEntry::State::Sending;
    entry->lastSent = m_clock.now();
    ++entry->attempts;
    save();
}

void MiraTopics::settle(const QString& key, MiraEntry::State state)
{
    MiraEntry* const entry = find(key);
    if (!entry || entry->state == state)
        return;
    entry->state = state;
    save();
}

bool MiraTopics::discard(const QString& key)
{
    const MiraEntry* const entry = find(key);
    if (!entry || entry->state != MiraEntry::State::Unconfirmed)
        return false;
    for (Topic& kept : m_topics)
        std::erase_if(kept.entries, [&key](const MiraEntry& other) { return other.key == key; });
    save();
    return true;
}

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
        const auto own =
            std::ranges::find_if(sent, [&message](const auto& candidate) { return isSame(*candidate.first, message); });
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
        topic.topic.title = firstWords(topic.entries);
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
    bool isEchoed = false;
    for (const MiraMessage& message : messages) {
        if (m_owners.contains(message.serverID))
            continue;
        if (!home) { // its topic was deleted in the meantime
            m_owners.insert(message.serverID, QString());
            continue;
        }
        const bool isMine = message.direction == MiraDirection::Outbound;
        if (isMine && !std::exchange(isEchoed, true)) {
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

/// The oldest go, and what was said in them is not to come back.
void MiraTopics::limit()
{
    while (m_topics.size() > mostTopics) {
        const auto oldest = std::ranges::min_element(m_topics, std::less(), [this](const Topic& kept) {
            return std::pair(kept.topic.id == m_current, kept.topic.lastMessage);
        });
        const QString id = oldest->topic.id;
        m_topics.erase(oldest);
        for (QString& owner : m_owners) {
            if (owner == id)
                owner.clear();
        }
    }
}

void MiraTopics::forget()
{
    m_topics.clear();
    m_owners.clear();
    m_current = makeTopic().topic.id;
    m_folder.remove(QLatin1String(topicsFile));
    m_folder.remove(QLatin1String(cacheFile));
}

void MiraTopics::save()
{
    m_folder.save(
        QLatin1String(topicsFile),
        [file = MiraTopicsFile{.current = m_current, .topics = m_topics, .owners = m_owners}] { return file.json(); });
    const std::vector<MiraEntry>& entries = thread();
    const auto count = std::min(MiraThreadFile::mostMessages, entries.size());
    m_folder.save(QLatin1String(cacheFile),
                  [file = MiraThreadFile{.topic = m_current,
                                         .entries = {entries.end() - static_cast<std::ptrdiff_t>(count),
                                                     entries.end()}}] { return file.json(); });
}

} // namespace loom
