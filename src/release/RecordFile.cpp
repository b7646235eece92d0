#include "release/RecordFile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace loom
{

namespace
{

bool writeAll(int descriptor, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), static_cast<size_t>(bytes.size()));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes = bytes.sliced(written);
    }
    return true;
}

bool syncFolderOf(const QString& path)
{
    const int folder =
        ::open(QFile::encodeName(QFileInfo(path).path()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return false;
    const bool isSynced = syncFolder(folder);
    ::close(folder);
    return isSynced;
}

} // namespace

bool openPlainFile(QFile& file, const QString& path)
{
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0)
        return false;
    struct stat facts = {};
    if (::fstat(descriptor, &facts) == 0 && S_ISREG(facts.st_mode) &&
        file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle))
        return true;
    ::close(descriptor);
    return false;
}

std::optional<QByteArray> readRecord(const QString& path, RecordOwner owner)
{
    QFile file;
    struct stat facts = {};
    if (!openPlainFile(file, path) || ::fstat(file.handle(), &facts) != 0)
        return std::nullopt;
    if (owner == RecordOwner::ThisUser && (facts.st_uid != ::geteuid() || (facts.st_mode & (S_IWGRP | S_IWOTH)) != 0))
        return std::nullopt;
    QByteArray bytes = file.read(maximumRecordBytes + 1);
    if (file.error() != QFileDevice::NoError || bytes.size() > maximumRecordBytes)
        return std::nullopt;
    return bytes;
}

bool writeRecord(const QString& path, const QByteArray& bytes)
{
    // QSaveFile would follow a link, and does not sync the folder.
    QByteArray fresh = QFile::encodeName(path) + ".XXXXXX";
    const int descriptor = ::mkostemp(fresh.data(), O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool isWritten = writeAll(descriptor, bytes) && ::fsync(descriptor) == 0;
    ::close(descriptor);
    if (isWritten && std::rename(fresh.constData(), QFile::encodeName(path).constData()) == 0)
        return syncFolderOf(path);
    ::unlink(fresh.constData());
    return false;
}

bool removeRecord(const QString& path)
{
    return (::unlink(QFile::encodeName(path).constData()) == 0 || errno == ENOENT) && syncFolderOf(path);
}

bool syncFolder(int folder)
{
    return ::fsync(folder) == 0 || errno == EINVAL || errno == ENOTSUP;
}

} // namespace loom
