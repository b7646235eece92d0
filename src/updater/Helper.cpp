#include "updater/Helper.h"

#include "release/InstallLock.h"
#include "updater/ProcessEnd.h"
#include "updater/Programs.h"

namespace loom
{

HelperEnd help(const QString& workingFolder, const InstallSettings& settings)
{
    // Taking the lock makes a file.
    if (!readInstallJob(workingFolder))
        return HelperEnd::NothingToDo;
    const auto lock = InstallLock::take(workingFolder, InstallLock::Work::Helping);
    if (!lock)
        return HelperEnd::AnotherIsAtIt;
    const auto job = readInstallJob(workingFolder);
    if (!job)
        return HelperEnd::NothingToDo;
    qCInfo(logUpdater) << "installing" << job->version << job->build;
    const InstallResult result = install(*job, workingFolder, settings);
    qCInfo(logUpdater) << "ended with code" << static_cast<int>(result.code);
    const QString program = result.path + QStringLiteral("/bin/loomstreet");
    // While it runs there is nothing to start again.
    const bool runs = result.code == InstallResult::Code::Busy && !waitUntilUnused(program, QDeadlineTimer(0));
    if (result.relaunch && !runs && !startDetached(program))
        qCWarning(logUpdater) << "the application cannot be started again";
    return HelperEnd::Done;
}

} // namespace loom
