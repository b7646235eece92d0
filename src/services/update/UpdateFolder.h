#pragma once

#include "release/InstallJob.h"
#include "services/update/UpdateRelease.h"

#include <optional>
#include <stop_token>

namespace loom
{

/// What the last installation left in the updater's working folder.
struct LastInstallation {
    std::optional<InstallJob> job;
    std::optional<InstallResult> result;
    /// There is no result yet, and the helper program may still write one.
    bool isUnderWay = false;
    /// A release has yet to prove itself, in this run or another, and may be taken back.
    bool isOnTrial = false;
};

/// The updater's working folder: images and what is exchanged with the helper program. Blocks; any thread.
namespace updateFolder
{

/// Where the image of a release lies.
[[nodiscard]] QString imageFile(const QString& folder, const UpdateRelease& release);

/// Whether `image` lies there. Makes the folder where there is none, this user's own.
[[nodiscard]] bool hasImage(const QString& folder, const QString& image);

/// Removes every image, whole or in part, but `kept` and what is there of it.
void removeImages(const QString& folder, const QString& kept);

[[nodiscard]] LastInstallation readLastInstallation(const QString& folder);

/// Whether the job's image is there, and the one that was verified when the job was written.
[[nodiscard]] bool isImageOf(const InstallJob& job, const std::stop_token& stop);

/// Takes the job in the place of any other, and of its result.
[[nodiscard]] bool writeJob(const InstallJob& job, const QString& folder);

/// Removes the job and its result.
void removeJob(const QString& folder);

} // namespace updateFolder

} // namespace loom
