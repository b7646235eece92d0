#include "updater/Installation.h"

#include "release/ApplicationFolder.h"
#include "release/FolderExchange.h"
#include "release/InstallLock.h"
#include "release/RecordFile.h"
#include "release/ReleaseCheck.h"
#include "updater/Descriptor.h"
#include "updater/ImageUnpacker.h"
#include "updater/ProcessEnd.h"
#include "updater/Programs.h"
#include "updater/StagedFolder.h"

#include <QDeadlineTimer>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace loom
{

Q_LOGGING_CATEGORY(logUpdater, "loomstreet.updater")

namespace
{

using Code = InstallResult::Code;

/// A job without a build number leaves it to the image.
bool isRelease(const std::optional<ApplicationFolder>& folder, const InstallJob& job)
{
    return folder && folder->version == job.version && (job.build == 0 || folder->build == job.build);
}

/// Whether the program says that it is this version; the answer may hold other words.
bool saysVersion(const QByteArray& answer, const QString& version)
{
    return answer.simplified().split(' ').contains(version.toUtf8());
}

/// Gives the staged folder the permissions of the one it replaces, and has all of it on the disk.
Result<void, Code> settle(const QString& staged, const QString& folder)
{
    const Descriptor opened(::open(QFile::encodeName(staged).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct stat replaced{};
    if (!opened.isOpen() || lstat(QFile::encodeName(folder).constData(), &replaced) != 0 ||
        fchmod(opened.number(), (replaced.st_mode & 0777) | 0700) != 0)
        return Unexpected(Code::Failed);
    if (syncfs(opened.number()) != 0)
        return Unexpected(codeOfError(errno));
    return {};
}

/// Unpacks the image beside the application and tries it: a release that is the job's, starts, and is on the disk.
Result<StagedFolder, Code> stage(const InstallJob& job, const QString& workingFolder, const InstallSettings& settings)
{
    QFile image;
    if (!openVerified(image, job)) {
        qCWarning(logUpdater) << "the image is not the one that was verified";
        return Unexpected(Code::BadImage);
    }
    LOOM_TRY(staged, StagedFolder::beside(job.folder, workingFolder));
    if (auto unpacked = unpackImage(image.handle(), staged.path(), settings.limits); !unpacked)
        return Unexpected(unpacked.error());
    const auto release = ApplicationFolder::read(staged.path());
    if (!isRelease(release, job)) {
        qCWarning(logUpdater) << "the image holds another release";
        return Unexpected(Code::BadImage);
    }
    const auto answer = versionAnswer(release->executable(), settings.answer);
    if (!answer || !saysVersion(*answer, job.version)) {
        qCWarning(logUpdater) << "the new version does not start";
        return Unexpected(Code::DoesNotStart);
    }
    if (auto settled = settle(staged.path(), job.folder); !settled)
        return Unexpected(settled.error());
    return staged;
}

/// The one step that counts. Before it, the trial file says what will lie where.
bool exchange(const QString& staged, const InstallJob& job, const QString& workingFolder)
{
    const auto release = ApplicationFolder::read(staged);
    if (!release)
        return false; // somebody has removed it since
    const auto before = readInstallTrial(workingFolder);
    const InstallTrial trial{
        .version = release->version, .build = release->build, .folder = job.folder, .previous = staged};
    if (write(trial, workingFolder) && exchangeFolders(staged, job.folder))
        return true;
    if (isRelease(ApplicationFolder::read(job.folder), job))
        return true; // exchanged, though the disk could not say so
    if (!before || !write(*before, workingFolder))
        (void)removeInstallTrial(workingFolder);
    return false;
}

Code installOnceEnded(const InstallJob& job, const QString& workingFolder, const InstallSettings& settings,
                      const QDeadlineTimer& deadline)
{
    const auto installed = ApplicationFolder::read(job.folder);
    if (!installed || installed->path != job.folder) {
        qCWarning(logUpdater) << "no release lies where one is to be replaced";
        return Code::Failed;
    }
    // A result says how this installation went, or there is none.
    (void)removeRecord(workingFolder + QLatin1Char('/') + QLatin1String(InstallResult::fileName));
    removeStaleFolders(job.folder, workingFolder);
    if (isRelease(installed, job))
        return Code::Installed; // by a helper that was killed before it could say so
    // There is one trial file: another copy of the application must have its way back until it has proved itself.
    const auto trial = readInstallTrial(workingFolder);
    if (trial && trial->folder != job.folder)
        return Code::Busy;
    if (!isReplaceable(job.folder))
        return Code::NotWritable;
    auto staged = stage(job, workingFolder, settings);
    if (!staged)
        return staged.error();
    // The shopper may have started the old version again meanwhile.
    if (!waitUntilUnused(installed->executable(), deadline))
        return Code::Busy;
    if (!exchange(staged->path(), job, workingFolder))
        return Code::Failed;
    staged->keep();
    // A release before that was still on trial has no use any more.
    removeStaleFolders(job.folder, workingFolder);
    return Code::Installed;
}

} // namespace

InstallResult install(const InstallJob& job, const QString& workingFolder, const InstallSettings& settings)
{
    InstallResult result{.code = Code::Busy, .path = job.folder, .relaunch = job.relaunch};
    const QDeadlineTimer deadline(settings.end);
    const bool ended = waitForEnd(job.processIdentifier, deadline) &&
                       waitUntilUnused(job.folder + QStringLiteral("/bin/loomstreet"), deadline);
    const auto lock = ended ? InstallLock::take(workingFolder, InstallLock::Work::Trial) : std::nullopt;
    if (lock)
        result.code = installOnceEnded(job, workingFolder, settings, deadline);
    if (!write(result, workingFolder))
        qCWarning(logUpdater) << "the result cannot be written";
    return result;
}

} // namespace loom
