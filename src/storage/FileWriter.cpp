#include "storage/FileWriter.h"

#include "base/Log.h"
#include "storage/AtomicFile.h"

#include <QFile>
#include <QtConcurrentRun>

namespace loom
{

FileWriter::FileWriter()
{
    m_thread.setMaxThreadCount(1);
}

FileWriter::~FileWriter()
{
    waitUntilWritten();
}

void FileWriter::write(const QString& path, const QByteArray& bytes, MayReplace mayReplace)
{
    write(path, [bytes] { return bytes; }, std::move(mayReplace));
}

void FileWriter::write(const QString& path, Encode encode, MayReplace mayReplace)
{
    enqueue(path, {.encode = std::move(encode), .mayReplace = std::move(mayReplace)});
}

void FileWriter::remove(const QString& path)
{
    enqueue(path, {});
}

std::optional<std::optional<QByteArray>> FileWriter::pending(const QString& path) const
{
    Change change;
    {
        const QMutexLocker lock(&m_mutex);
        const auto found = m_waiting.constFind(path);
        if (found == m_waiting.cend())
            return std::nullopt;
        change = *found;
    }
    return change.encode ? std::optional(change.encode()) : std::optional<QByteArray>();
}

void FileWriter::waitUntilWritten()
{
    m_thread.waitForDone();
}

QFuture<void> FileWriter::written()
{
    // There is one thread, and it takes one after the other.
    return QtConcurrent::run(&m_thread, [] {});
}

void FileWriter::enqueue(const QString& path, Change change)
{
    const QMutexLocker lock(&m_mutex);
    change.number = ++m_changes;
    const bool isScheduled = m_waiting.contains(path);
    m_waiting.insert(path, change);
    if (!isScheduled)
        m_thread.start([this, path] { carryOut(path); });
}

void FileWriter::carryOut(const QString& path)
{
    for (;;) {
        Change change;
        {
            const QMutexLocker lock(&m_mutex);
            change = m_waiting.value(path);
        }
        if (!change.encode) {
            QFile::remove(path);
        } else if (!change.mayReplace || change.mayReplace(path)) {
            if (const auto written = writeFileAtomically(path, change.encode()); !written)
                qCWarning(logStorage) << "cannot write" << path << written.error();
        }
        const QMutexLocker lock(&m_mutex);
        if (m_waiting.value(path).number == change.number) {
            m_waiting.remove(path);
            return;
        }
    }
}

} // namespace loom
