#pragma once

#include "stylist/MiraEntry.h"
#include "stylist/MiraTopic.h"

#include <QByteArray>
#include <QHash>

#include <vector>

namespace loom
{

class JsonReader;

/// A topic with its messages.
struct KeptTopic {
    MiraTopic topic;
    std::vector<MiraEntry> entries; ///< the oldest first

    bool operator==(const KeptTopic&) const = default;
};

/// What is written down of the topics, and how.
struct MiraTopicsFile {
    /// So many characters of messages are kept; of older ones only to which topic they belong.
    static constexpr qsizetype mostText = 400'000;
    static constexpr qsizetype mostIdentifiers = 50'000;

    QString current;
    std::vector<KeptTopic> topics;
    QHash<QString, QString> owners; ///< the topic of each identifier of the service; empty: to be shown nowhere

    /// Any thread.
    [[nodiscard]] QByteArray json() const;
    [[nodiscard]] static MiraTopicsFile decode(const JsonReader& json);
};

/// The messages shown last, the newest of them.
struct MiraThreadFile {
    static constexpr std::size_t mostMessages = 200;
    static constexpr qsizetype mostText = 100'000;

    QString topic;
    std::vector<MiraEntry> entries;

    [[nodiscard]] QByteArray json() const;
    [[nodiscard]] static MiraThreadFile decode(const JsonReader& json);
};

} // namespace loom
