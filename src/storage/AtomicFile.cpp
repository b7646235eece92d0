#include "storage/AtomicFile.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace loom
{

Result<void, QString> writeFileAtomically(const QString& path, const QByteArray& bytes)
{
    const QString folder = QFileInfo(path).absolutePath();
    if (!QFileInfo(folder).isDir()) {
        const auto ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
        if (!QDir().mkpath(folder) || !QFile::setPermissions(folder, ownerOnly))
            return Unexpected(QStringLiteral("cannot make the folder of ") + path);
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return Unexpected(file.errorString());
    // Before the first byte, so that nobody else ever sees one.
    if (!file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        return Unexpected(file.errorString());
    if (file.write(bytes) != bytes.size() || !file.commit())
        return Unexpected(file.errorString());
    return {};
}

} // namespace loom
