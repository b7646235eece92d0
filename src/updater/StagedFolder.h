#pragma once

#include "base/Result.h"
#include "release/InstallJob.h"

#include <QString>

#include <utility>

namespace loom
{

/// A new, empty folder beside the application's, only this user's, which goes away with this unless it is kept.
class StagedFolder
{
public:
    [[nodiscard]] static Result<StagedFolder, InstallResult::Code> beside(const QString& folder,
                                                                          const QString& workingFolder);

    StagedFolder(StagedFolder&& other) noexcept
        : m_path(std::exchange(other.m_path, QString()))
    {
    }
    StagedFolder(const StagedFolder&) = delete;
    StagedFolder& operator=(const StagedFolder&) = delete;
    ~StagedFolder();

    [[nodiscard]] const QString& path() const { return m_path; }
    /// What lies there from now on is somebody else's to remove.
    void keep() { m_path.clear(); }

private:
    explicit StagedFolder(QString path)
        : m_path(std::move(path))
    {
    }

    QString m_path;
};

/// What begins the names of the folders that helpers of this working folder put beside this application: no other
/// helper's, be it of another copy of the application or of another data folder.
[[nodiscard]] QString stagingPrefixOf(const QString& folder, const QString& workingFolder);

/// Removes what helpers of this working folder that were killed have left beside the application's folder, and a trial
/// of a release that is not where it says. A release before that a trial still names stays. Only for who holds the lock
/// of InstallLock::Work::Trial.
void removeStaleFolders(const QString& folder, const QString& workingFolder);

/// Whether this user may put another folder in the place of this one, which is a folder on the disk of the one it lies
/// in.
[[nodiscard]] bool isReplaceable(const QString& folder);

} // namespace loom
