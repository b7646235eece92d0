#include "services/update/PartialImage.h"

#include "base/JsonReader.h"
#include "base/Log.h"
#include "storage/AtomicFile.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStorageInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

namespace loom
{

namespace
{

constexpr auto ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
constexpr qint64 longestMemo = 8192;

bool makeFolder(const QString& folder)
{
    return QFileInfo(folder).isDir() ||
           (QDir().mkpath(folder) && QFile::setPermissions(folder, ownerOnly | QFileDevice::ExeOwner));
}

/// A download that ends may have put the file into its place, or removed it, before it let go of it.
bool isStillThere(const QFile& file)
{
    struct stat opened{};
    struct stat there{};
    return ::fstat(file.handle(), &opened) == 0 &&
           ::stat(QFile::encodeName(file.fileName()).constData(), &there) == 0 && opened.st_dev == there.st_dev &&
           opened.st_ino == there.st_ino;
}

/// What was done in a folder outlives a power failure.
void syncFolder(const QString& folder)
{
    const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

} // namespace

PartialImage::PartialImage(QString file, const QUrl& url)
    : m_file(std::move(file))
    , m_url(url.toEncoded())
    , m_part(m_file + QStringLiteral(".part"))
{
}

PartialImage::Opening PartialImage::open()
{
    m_part.close();
    if (!makeFolder(QFileInfo(m_file).absolutePath()) ||
        !m_part.open(QIODevice::ReadWrite | QIODevice::Unbuffered, ownerOnly)) {
        qCWarning(logStorage) << "cannot write the image:" << m_part.error();
        return Opening::Failed;
    }
    if (::flock(m_part.handle(), LOCK_EX | LOCK_NB) != 0)
        return errno == EWOULDBLOCK ? Opening::Taken : Opening::Failed;
    if (!isStillThere(m_part))
        return Opening::Taken;
    m_validator = knownValidator();
    m_size = m_validator.isEmpty() ? 0 : m_part.size();
    if (!m_part.setPermissions(ownerOnly) || !m_part.resize(m_size) || !m_part.seek(m_size))
        return Opening::Failed;
    return Opening::Open;
}

QByteArray PartialImage::knownValidator() const
{
    QFile file(memo());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const auto validator = decodeJson(file.read(longestMemo), [this](const JsonReader& json) {
        return json.text("url").toUtf8() == m_url ? json.text("validator").toLatin1() : QByteArray();
    });
    return validator ? *validator : QByteArray();
}

bool PartialImage::restart(const QByteArray& validator)
{
    // In this order: at no moment does a memo lie beside bytes that it is not of.
    QFile::remove(memo());
    m_validator.clear();
    m_size = 0;
    if (!m_part.resize(0) || !m_part.seek(0))
        return false;
    if (validator.isEmpty())
        return true;
    const QJsonObject known{{QStringLiteral("url"), QString::fromUtf8(m_url)},
                            {QStringLiteral("validator"), QString::fromLatin1(validator)}};
    if (!writeFileAtomically(memo(), QJsonDocument(known).toJson(QJsonDocument::Compact)))
        return false;
    m_validator = validator;
    return true;
}

bool PartialImage::append(const QByteArray& bytes)
{
    if (m_part.write(bytes) != bytes.size()) {
        qCWarning(logStorage) << "cannot write the image:" << m_part.error();
        return false;
    }
    m_size += bytes.size();
    return true;
}

bool PartialImage::hasRoomFor(qint64 bytes) const
{
    const qint64 room = QStorageInfo(QFileInfo(m_file).absolutePath()).bytesAvailable();
    return room < 0 || bytes <= room;
}

bool PartialImage::complete()
{
    if (::fsync(m_part.handle()) != 0 ||
        std::rename(QFile::encodeName(m_part.fileName()).constData(), QFile::encodeName(m_file).constData()) != 0) {
        qCWarning(logStorage) << "cannot finish the image:" << errno;
        return false;
    }
    QFile::remove(memo());
    syncFolder(QFileInfo(m_file).absolutePath());
    m_part.close();
    return true;
}

void PartialImage::discard()
{
    QFile::remove(memo());
    QFile::remove(m_part.fileName());
    m_part.close();
}

} // namespace loom
