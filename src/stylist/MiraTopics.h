#pragma once

#include "stylist/MiraEntry.h"
#include "stylist/MiraTopic.h"
#include "stylist/MiraTopicsFile.h"

#include <optional>
#include <vector>

namespace loom
{

class Clock;
class DataFolder;
class Random;

/// The topics of this machine: slices of the one conversation that the service holds, each with copies of its messages.
/// What belongs to no other topic belongs to the current one. There always is a current one. Main thread; what changes
/// is written down in the background.
class MiraTopics
{
public:
    static constexpr const char* topicsFile = "lst_mira_topics";
    static constexpr const char* cacheFile = "lst_mira_chat_cache";

    static constexpr std::size_t mostTopics = 100;
    static constexpr qsizetype longestTitle = 80;

    MiraTopics(DataFolder& folder, const Clock& clock, Random& random);

    /// Reads what was kept. What was on its way then has not been confirmed.
    void restore();

    [[nodiscard]] const QString& current() const { return m_current; }
    /// Of the current topic, the oldest first.
    [[nodiscard]] const std::vector<MiraEntry>& thread() const { return topic(m_current)->entries; }
    /// The newest first.
    [[nodiscard]] std::vector<MiraTopic> list() const;
    [[nodiscard]] QString title(const QString& id) const;
    /// Null where there is none of that key, in any topic.
    [[nodiscard]] const MiraEntry* entry(const QString& key) const;

    // Each returns whether anything changed.

    bool begin();
    bool open(const QString& id);
    /// An empty title leaves the naming to the topic's first words again.
    bool rename(const QString& id, const QString& title);
    bool remove(const QString& id);

    /// Puts a message of the shopper's, on its way, at the end of the current topic; returns its key.
    QString add(const QString& body, std::vector<MiraAttachment> attachments);
    void sendAgain(const QString& key);
    void settle(const QString& key, MiraEntry::State state);
    bool discard(const QString& key);

    /// Takes over the conversation as the service holds it; returns how many messages were not here before.
    int adopt(std::vector<MiraMessage> messages);
    /// Takes over what came of the message of that key; returns its replies.
    std::vector<MiraMessage> take(const QString& key, const std::vector<MiraMessage>& messages);

    /// Everything, and the files.
    void forget();

private:
    using Topic = KeptTopic;
    /// A message as the service lists it, and the entry it is here, if it was.
    struct Listed {
        MiraEntry* entry = nullptr;
        MiraMessage* message = nullptr;
    };

    [[nodiscard]] const Topic* topic(const QString& id) const;
    [[nodiscard]] Topic* topic(const QString& id);
    [[nodiscard]] MiraEntry* find(const QString& key);
    [[nodiscard]] Topic& makeTopic();
    [[nodiscard]] std::vector<std::pair<MiraEntry*, QString>> awaited();
    static void confirm(MiraEntry& entry, const MiraMessage& message);
    void arrange(Topic& topic, const std::vector<Listed>& rows);
    void setAside();
    void limit();
    void save();

    DataFolder& m_folder;
    const Clock& m_clock;
    Random& m_random;
    std::vector<Topic> m_topics; ///< in no order
    QString m_current;
    QHash<QString, QString> m_owners; ///< the topic of each identifier of the service; empty: to be shown nowhere
};

} // namespace loom
