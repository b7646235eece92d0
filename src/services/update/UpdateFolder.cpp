#include "services/update/UpdateFolder.h"

#include "release/InstallLock.h"
#include "release/ReleaseCheck.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace loom::updateFolder
{

namespace
{

const QString imagePrefix = QStringLiteral("loomstreet-");
const QString imageSuffix = QStringLiteral(".squashfs");

QString pathOf(const char* fileName, const QString& folder)
{
    return folder + QLatin1Char('/') + QLatin1String(fileName);
}

} // namespace

QString imageFile(const QString& folder, const UpdateRelease& release)
{
    return folder + QLatin1Char('/') + imagePrefix + release.key() + imageSuffix;
}

bool hasImage(const QString& folder, const QString& image)
{
    QDir().mkpath(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QFileInfo file(image);
    return file.isFile() && !file.isSymLink();
}

void removeImages(const QString& folder, const QString& kept)
{
    const QDir directory(folder);
    const QString keptName = QFileInfo(kept).fileName();
    const QStringList names = directory.entryList({imagePrefix + QLatin1Char('*') + imageSuffix + QLatin1Char('*')},
                                                  QDir::Files | QDir::System);
    for (const QString& name : names) {
        if (keptName.isEmpty() || !name.startsWith(keptName))
            QFile::remove(directory.filePath(name));
    }
}

LastInstallation readLastInstallation(const QString& folder)
{
    LastInstallation last{.job = readInstallJob(folder),
                          .result = readInstallResult(folder),
                          .isOnTrial = readInstallTrial(folder).has_value()};
    if (last.job && !last.result) {
        // The helper lets go of its work only once its result is there.
        last.isUnderWay = !InstallLock::take(folder, InstallLock::Work::Helping);
        last.result = readInstallResult(folder);
    }
    return last;
}

bool isImageOf(const InstallJob& job, const std::stop_token& stop)
{
    QFile file;
    return openVerified(file, job, stop);
}

bool writeJob(const InstallJob& job, const QString& folder)
{
    QFile::remove(pathOf(InstallResult::fileName, folder));
    return write(job, folder);
}

void removeJob(const QString& folder)
{
    QFile::remove(pathOf(InstallJob::fileName, folder));
    QFile::remove(pathOf(InstallResult::fileName, folder));
}

} // namespace loom::updateFolder
