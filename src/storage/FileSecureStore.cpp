#include "storage/FileSecureStore.h"

#include "storage/AtomicFile.h"

#include <QFile>
#include <QFileInfo>
#include <QtConcurrent>
#include <qcoro/qcorofuture.h>

#include <unistd.h>

namespace loom
{

namespace
{

Result<std::optional<QByteArray>, QString> readFile(const QString& path)
{
    QFile file(path);
    if (!file.exists())
        return std::optional<QByteArray>();
    // Put there by somebody else: whoever it signs in is not this shopper.
    if (QFileInfo(path).ownerId() != geteuid())
        return std::optional<QByteArray>();
    if (!file.open(QIODevice::ReadOnly))
        return Unexpected(file.errorString());
    // A copy or a backup may have come with the rights of any file.
    const QFileDevice::Permissions ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
    static_cast<void>(file.setPermissions(ownerOnly));
    return std::optional(file.readAll());
}

Result<void, QString> removeFile(const QString& path)
{
    if (QFile file(path); file.exists() && !file.remove())
        return Unexpected(file.errorString());
    return {};
}

} // namespace

FileSecureStore::FileSecureStore(QString folder)
    : m_folder(std::move(folder))
{
    m_thread.setMaxThreadCount(1);
}

QString FileSecureStore::filePath(const QString& key) const
{
    return m_folder + QStringLiteral("/.secret-") + key;
}

QCoro::Task<Result<void, QString>> FileSecureStore::store(QString key, QByteArray bytes)
{
    co_return co_await QtConcurrent::run(&m_thread, writeFileAtomically, filePath(key), bytes);
}

QCoro::Task<Result<std::optional<QByteArray>, QString>> FileSecureStore::read(QString key)
{
    co_return co_await QtConcurrent::run(&m_thread, readFile, filePath(key));
}

QCoro::Task<Result<void, QString>> FileSecureStore::remove(QString key)
{
    co_return co_await QtConcurrent::run(&m_thread, removeFile, filePath(key));
}

} // namespace loom
