#pragma once

#include "base/Dates.h"
#include "base/JsonReader.h"
#include "storage/FileWriter.h"

#include <QJsonValue>
#include <QMutex>
#include <QSet>

namespace loom
{

/// A cached server answer and when it was saved, in UTC.
template <typename T>
struct Snapshot {
    T value{};
    QDateTime savedAt;

    bool operator==(const Snapshot&) const = default;
};

/// The JSON files that survive a restart, each addressed by its store's name. One per process; main thread. Saving
/// returns at once and is carried out in the background; a write that fails leaves the previous file in place.
///
/// Nothing is lost by a file that cannot be read: before a save replaces it, it is set aside beside its place, and
/// where it cannot be set aside it is not replaced.
class DataFolder
{
public:
    /// The folder need not exist yet.
    explicit DataFolder(QString path);

    [[nodiscard]] const QString& path() const { return m_path; }

    /// The name, with ".json" appended unless it ends so already.
    [[nodiscard]] static QString fileName(const QString& name);

    void save(const QString& name, const QJsonValue& value);
    /// For what takes long to write down: `encode` makes the JSON in the background.
    void save(const QString& name, FileWriter::Encode encode);
    void saveSnapshot(const QString& name, const QJsonValue& value, const QDateTime& savedAt);

    /// Removes the file and what was set aside of it.
    void remove(const QString& name);

    /// What `decode` reads from the file; nothing when the file is missing or does not decode.
    template <typename Decode>
    [[nodiscard]] auto load(const QString& name, Decode&& decode)
        -> std::optional<decltype(decode(std::declval<const JsonReader&>()))>
    {
        const std::optional<QByteArray> bytes = read(name);
        if (!bytes)
            return std::nullopt;
        auto record = decodeJson(*bytes, std::forward<Decode>(decode));
        if (!record) {
            markUnreadable(name, record.error());
            return std::nullopt;
        }
        return std::move(*record);
    }

    template <typename Decode>
    [[nodiscard]] auto loadSnapshot(const QString& name, Decode&& decode)
    {
        using Value = decltype(decode(std::declval<const JsonReader&>()));
        return load(name, [&decode](const JsonReader& json) {
            return Snapshot<Value>{.value = decode(json.value("value")), .savedAt = json.date("savedAt")};
        });
    }

    /// Every record of a list file that does decode, also when the file was cut off in the middle.
    template <typename Decode>
    [[nodiscard]] auto loadList(const QString& name, Decode&& decode)
        -> std::vector<decltype(decode(std::declval<const JsonReader&>()))>
    {
        std::vector<decltype(decode(std::declval<const JsonReader&>()))> records;
        const std::optional<QByteArray> bytes = read(name);
        if (!bytes)
            return records;
        bool isWhole = true;
        for (const QByteArray& element : completeElements(*bytes, &isWhole)) {
            if (auto record = decodeJson(element, decode))
                records.push_back(std::move(*record));
            else
                isWhole = false;
        }
        if (!isWhole)
            markUnreadable(name, QStringLiteral("some records do not decode"));
        return records;
    }

    // For long lists, which are read on another thread: what the file holds, its elements, and the word that some of
    // them could not be read.

    [[nodiscard]] std::optional<QByteArray> read(const QString& name);
    /// The whole elements of a list, each as it is written there, also when it was cut off. Any thread.
    [[nodiscard]] static std::vector<QByteArray> completeElements(const QByteArray& list, bool* isWhole);
    void markUnreadable(const QString& name, const QString& reason);

    /// Blocks until everything saved so far is on the disk. For the end of the process and for tests.
    void waitUntilWritten() { m_writer.waitUntilWritten(); }
    /// Ends when everything saved so far is on the disk, or could not be written.
    [[nodiscard]] QFuture<void> written() { return m_writer.written(); }

private:
    [[nodiscard]] QString filePath(const QString& name) const;
    [[nodiscard]] bool isKnownUnreadable(const QString& file) const;
    /// Sets the file aside first if that has to be. Runs on the writer's thread.
    [[nodiscard]] bool mayReplace(const QString& file, const QString& path);

    QString m_path;
    mutable QMutex m_mutex;
    QSet<QString> m_unreadable; ///< names of files that could not be read and still lie in their place
    FileWriter m_writer;        ///< the last: its thread uses the others until it ends
};

} // namespace loom
