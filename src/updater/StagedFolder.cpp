#include "updater/StagedFolder.h"

#include "release/ApplicationFolder.h"
#include "release/FolderExchange.h"
#include "release/TrialRun.h"
#include "updater/ImageUnpacker.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace loom
{

namespace
{

QByteArray parentOf(const QString& folder)
{
    return QFile::encodeName(QFileInfo(folder).path());
}

std::optional<struct stat> statusOf(const QByteArray& path)
{
    struct stat status{};
    if (lstat(path.constData(), &status) != 0)
        return {};
    return status;
}

bool maySetContent(const QByteArray& folder)
{
    return faccessat(AT_FDCWD, folder.constData(), W_OK | X_OK, AT_EACCESS) == 0;
}

/// Whether somebody still needs a trial: its release lies where it says, or, of another copy of the application, has
/// been reverted, which that copy has yet to tell.
bool isOpen(const InstallTrial& trial, const QString& folder)
{
    const auto installed = ApplicationFolder::read(trial.folder);
    if (!installed)
        return false;
    return (installed->version == trial.version && installed->build == trial.build) ||
           (trial.folder != folder && trial.starts >= TrialRun::maximumDeaths);
}

} // namespace

Result<StagedFolder, InstallResult::Code> StagedFolder::beside(const QString& folder, const QString& workingFolder)
{
    QByteArray path = parentOf(folder) + '/' + QFile::encodeName(stagingPrefixOf(folder, workingFolder)) + "XXXXXX";
    if (mkdtemp(path.data()) == nullptr)
        return Unexpected(codeOfError(errno));
    return StagedFolder(QFile::decodeName(path));
}

StagedFolder::~StagedFolder()
{
    if (!m_path.isEmpty())
        removeStaged(m_path);
}

QString stagingPrefixOf(const QString& folder, const QString& workingFolder)
{
    const QString both = QFileInfo(workingFolder).canonicalFilePath() + QChar(QChar::Null) + folder;
    const QByteArray hash = QCryptographicHash::hash(both.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    return stagingPrefix + QString::fromLatin1(hash) + QLatin1Char('-');
}

void removeStaleFolders(const QString& folder, const QString& workingFolder)
{
    auto trial = readInstallTrial(workingFolder);
    // The file first: while it is there it must name a whole release.
    if ((!trial || !isOpen(*trial, folder)) && removeInstallTrial(workingFolder)) {
        if (trial && trial->previous != folder)
            removeStaged(trial->previous);
        trial.reset();
    }
    const QDir parent(QFileInfo(folder).path());
    const QStringList staged = parent.entryList({stagingPrefixOf(folder, workingFolder) + QLatin1Char('*')},
                                                QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QString& name : staged) {
        const QString path = parent.filePath(name);
        const auto status = statusOf(QFile::encodeName(path));
        if (path == folder || (trial && path == trial->previous) || !status || status->st_uid != geteuid())
            continue;
        removeStaged(path);
    }
}

bool isReplaceable(const QString& folder)
{
    const QByteArray path = QFile::encodeName(folder);
    const QByteArray parent = parentOf(folder);
    const auto own = statusOf(path);
    const auto around = statusOf(parent);
    if (!own || !around || !S_ISDIR(own->st_mode) || own->st_dev != around->st_dev)
        return false;
    if (!maySetContent(parent) || !maySetContent(path))
        return false;
    // In a sticky folder everybody moves only what is theirs.
    const uid_t user = geteuid();
    return (around->st_mode & S_ISVTX) == 0 || user == 0 || own->st_uid == user || around->st_uid == user;
}

} // namespace loom
