#pragma once

#include "updater/Installation.h"

namespace loom
{

/// How the helper program ends, as its exit status.
enum class HelperEnd {
    Done = 0,        ///< the result file says how it went
    NothingToDo = 2, ///< there is no job, or none that may be trusted; nothing was touched
    AnotherIsAtIt = 3,
    Usage = 64,
};

/// Does the job in the working folder, and starts the application again when the job says so: the new one, or after a
/// failure the old one.
[[nodiscard]] HelperEnd help(const QString& workingFolder, const InstallSettings& settings = {});

} // namespace loom
