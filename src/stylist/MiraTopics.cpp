#include "stylist/MiraTopics.h"

#include "base/Clock.h"
#include "base/Random.h"
#include "catalog/DisplayText.h"
#include "storage/DataFolder.h"
#include "stylist/MiraTopicTitle.h"

#include <QSet>

#include <algorithm>
#include <tuple>

namespace loom
{

namespace
{

const QString localPrefix = QStringLiteral("local-");

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
    topic.topic.title = miraTopicTitle(topic.entries);
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
    renamed->topic.title = name.isEmpty() ? miraTopicTitle(renamed->entries) : name;
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
        topic.topic.title = miraTopicTitle(topic.entries);
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
