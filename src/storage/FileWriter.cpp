#include "storage/FileWriter.h"

#include "base/Log.h"
#include "storage/AtomicFile.h"

#include <QFile>

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

void FileWriter::write(const QString& path, const QByteArray& bytes, BeforeReplacing before)
{
    enqueue(path, {.bytes = bytes, .before = std::move(before)});
}

void FileWriter::remove(const QString& path)
{
    enqueue(path, {});
}

std::optional<std::optional<QByteArray>> FileWriter::pending(const QString& path) const
{
    const QMutexLocker lock(&m_mutex);
    const auto found = m_waiting.constFind(path);
    if (found == m_waiting.cend())
        return std::nullopt;
    return found->bytes;
}

void FileWriter::waitUntilWritten()
{
    m_thread.waitForDone();
}

void FileWriter::enqueue(const QString& path, Change change)
{
    const QMutexLocker lock(&m_mutex);
    change.number = ++m_changes;
    const auto waiting = m_waiting.constFind(path);
    const bool isScheduled = waiting != m_waiting.cend();
    // A change that overtakes a waiting one replaces the same file: what that one had to do first still has to be done.
    if (isScheduled && waiting->before)
        change.before = waiting->before;
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
            Change& waiting = m_waiting[path];
            change = waiting;
            waiting.before = {}; // not for a change that comes from now on, which replaces another file
        }
        if (change.bytes) {
            if (change.before)
                change.before(path);
            if (const auto written = writeFileAtomically(path, *change.bytes); !written)
                qCWarning(logStorage) << "cannot write" << path << written.error();
        } else {
            QFile::remove(path);
        }
        const QMutexLocker lock(&m_mutex);
        if (m_waiting.value(path).number == change.number) {
            m_waiting.remove(path);
            return;
        }
    }
}

} // namespace loom
