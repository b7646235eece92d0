#pragma once

#include <QByteArray>
#include <QFuture>
#include <QHash>
#include <QMutex>
#include <QString>
#include <QThreadPool>

#include <functional>
#include <optional>

namespace loom
{

/// Writes and removes files one after the other on a thread of its own, so that the main thread never waits for a
/// disk. Of several changes to one file that are still waiting only the last is carried out. The destructor waits
/// until everything is written.
class FileWriter
{
public:
    /// Asked on the writer's thread just before a file is replaced; it stays as it is if the answer is no.
    using MayReplace = std::function<bool(const QString& path)>;
    /// Makes the bytes of a file when its turn comes, on the writer's thread; what it holds it holds alone.
    using Encode = std::function<QByteArray()>;

    FileWriter();
    FileWriter(const FileWriter&) = delete;
    FileWriter& operator=(const FileWriter&) = delete;
    ~FileWriter();

    void write(const QString& path, const QByteArray& bytes, MayReplace mayReplace = {});
    void write(const QString& path, Encode encode, MayReplace mayReplace = {});
    /// A file that does not exist or cannot be removed is ignored.
    void remove(const QString& path);

    /// What the file will hold once the waiting changes are carried out; nothing when none waits for it. An empty
    /// inner value means that it will be removed.
    [[nodiscard]] std::optional<std::optional<QByteArray>> pending(const QString& path) const;

    void waitUntilWritten();
    /// Ends when everything written so far has been tried, whether or not it could be written.
    [[nodiscard]] QFuture<void> written();

private:
    struct Change {
        Encode encode; ///< none removes the file
        MayReplace mayReplace;
        quint64 number = 0;
    };
    void enqueue(const QString& path, Change change);
    void carryOut(const QString& path);

    mutable QMutex m_mutex;
    QHash<QString, Change> m_waiting;
    quint64 m_changes = 0;
    QThreadPool m_thread;
};

} // namespace loom
