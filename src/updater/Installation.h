#pragma once

#include "release/InstallJob.h"
#include "updater/ImagePlan.h"

#include <QLoggingCategory>

#include <chrono>

namespace loom
{

Q_DECLARE_LOGGING_CATEGORY(logUpdater)

struct InstallSettings {
    std::chrono::milliseconds end = std::chrono::seconds(60);    ///< for the application to end
    std::chrono::milliseconds answer = std::chrono::seconds(10); ///< for the new version to say which it is
    UnpackLimits limits;
};

/// Puts the release of the job's image in the place of the application, once the application has ended, or says why
/// not; then everything is as it was. Whenever it is killed, the folder holds the one or the other release, whole, and
/// the next installation removes what is left beside it. Only for who holds the lock of InstallLock::Work::Helping.
/// The result is written, too.
[[nodiscard]] InstallResult install(const InstallJob& job, const QString& workingFolder,
                                    const InstallSettings& settings = {});

} // namespace loom
