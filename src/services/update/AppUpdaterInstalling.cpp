#include "services/update/AppUpdater.h"

#include "base/Clock.h"
#include "base/Log.h"
#include "release/TrialRun.h"
#include "services/update/UpdateFolder.h"

#include <QCoreApplication>
#include <QtConcurrentRun>
#include <qcoro/qcorofuture.h>

namespace loom
{

namespace
{

UpdateRelease releaseOf(const InstallJob& job)
{
    UpdateRelease release;
    release.latest = job.version;
    release.build = job.build;
    release.sha256 = job.sha256;
    return release;
}

} // namespace

QCoro::Task<> AppUpdater::concludeInstallation()
{
    const Work::Run run = m_concluding.begin();
    if (!m_platform.workingFolder.isEmpty()) {
        const QString folder = m_platform.workingFolder;
        LastInstallation last = co_await QtConcurrent::run(updateFolder::readLastInstallation, folder);
        // Who quits and starts the application again at once meets the helper at work.
        const auto patience = m_services.clock.elapsed() + helperPatience;
        while (!run.isStopped() && last.isUnderWay && m_services.clock.elapsed() < patience) {
            co_await m_services.clock.sleep(helperGlance, run.stop());
            if (run.isStopped())
                co_return;
            last = co_await QtConcurrent::run(updateFolder::readLastInstallation, folder);
        }
        if (run.isStopped())
            co_return;
        const auto pending = m_records.pendingInstall();
        const bool isOfPending = last.job && (!pending || releaseOf(*last.job).key() == pending->key());
        const bool isWantedAgain = conclude(last) && isOfPending;
        co_await QtConcurrent::run(updateFolder::removeJob, folder);
        if (run.isStopped())
            co_return;
        if (isWantedAgain) {
            co_await readyAgain(*last.job, run.stop());
            if (run.isStopped())
                co_return;
        }
    }
    m_isConcluded = true;
    installWhatWaits();
    if (m_isCheckingWanted)
        beginChecking();
}

bool AppUpdater::conclude(const LastInstallation& last)
{
    using Code = InstallResult::Code;
    const auto pending = m_records.pendingInstall();
    const auto code = last.result ? std::optional(last.result->code) : std::nullopt;
    if (code == Code::NotWritable && !last.result->path.isEmpty())
        m_records.setInPlaceImpossible(last.result->path);
    if (!pending) {
        m_records.clearPendingInstall(); // what is there may be no release
        return code == Code::Busy;
    }
    if (!isLater(*pending, running())) {
        // On trial it may yet be taken back, and must then be known.
        if (!m_isOnTrial && !last.isOnTrial) {
            m_records.clearPendingInstall();
            discardImages();
        }
        return false;
    }
    // The process that runs may have been started before the folders were exchanged: the next start shows.
    if (code == Code::Installed)
        return false;
    m_records.clearPendingInstall();
    if (code == Code::Busy)
        return true;
    if (code == Code::DoesNotStart)
        m_records.setRevertedRelease(pending->key());
    noteFailure(*pending);
    return code != Code::DoesNotStart && code != Code::BadImage;
}

void AppUpdater::noteFailure(const Release& release)
{
    qCWarning(logApp) << release.key() << "could not be installed in place";
    m_records.countInPlaceFailure(release.key());
    m_selfUpdateFailed = true;
    m_failedRelease = release.key();
    Q_EMIT changed();
    Q_EMIT updateFailed();
}

QCoro::Task<> AppUpdater::readyAgain(InstallJob job, std::stop_token stop)
{
    const Release release = releaseOf(job);
    const QString image = updateFolder::imageFile(m_platform.workingFolder, release);
    const bool isMeant = canUpdate() && isLater(release, running()) && job.image == image &&
                         updateOffer(release, installation()) != UpdateOffer::None;
    if (!isMeant || !co_await QtConcurrent::run(updateFolder::isImageOf, job, stop) || stop.stop_requested())
        co_return;
    // The shopper may have been quicker.
    const bool isBusy = isReady() || m_phase == Phase::Downloading || m_phase == Phase::Verifying;
    if (isBusy)
        co_return;
    m_release = release;
    m_offer = UpdateOffer::Offered;
    m_downloadIsBackground = !job.relaunch;
    const Phase phase = m_phase;
    setReady(image, job.sha256);
    if (phase == Phase::Checking)
        enter(phase); // the check ends with the image still ready
}

QCoro::Task<> AppUpdater::confirmTrial()
{
    const Work::Run run = m_proving.begin();
    co_await m_services.clock.sleep(TrialRun::proof, run.stop());
    if (run.isStopped())
        co_return;
    m_confirming = QtConcurrent::run([trial = m_platform.trial] { trial->confirm(); });
    co_await m_confirming;
    if (run.isStopped())
        co_return;
    m_isOnTrial = false;
    const auto pending = m_records.pendingInstall();
    if (pending && !isLater(*pending, running())) {
        m_records.clearPendingInstall();
        discardImages();
    }
}

void AppUpdater::willTerminate()
{
    m_proving.stop();
    if (std::exchange(m_isOnTrial, false))
        m_platform.trial->endedWell(); // nothing where it has been confirmed
}

void AppUpdater::relaunchToUpdate()
{
    const bool isPossible =
        isInstalledAtQuit() && !isInstalledByHand() && (m_phase == Phase::Ready || m_phase == Phase::Checking);
    if (isPossible)
        beginInstalling(Relaunch::Yes);
}

bool AppUpdater::shouldTerminate()
{
    if (m_helperLaunched || m_hasReplied)
        return true;
    if (m_terminateReplyPending)
        return false;
    const bool isBeingPrepared = m_installing.isRunning() || m_next;
    if (!isBeingPrepared && !isInstalledAtQuit())
        return true;
    m_terminateReplyPending = true;
    static_cast<void>(holdQuitting());
    if (!isBeingPrepared)
        beginInstalling(Relaunch::No);
    return false;
}

QCoro::Task<> AppUpdater::holdQuitting()
{
    const Work::Run run = m_holding.begin();
    co_await m_services.clock.sleep(longestHold, run.stop());
    if (run.isStopped())
        co_return;
    m_installing.stop();
    m_next.reset();
    enter(Phase::Ready);
    replyToTerminate();
}

void AppUpdater::replyToTerminate()
{
    m_terminateReplyPending = false;
    m_hasReplied = true;
    // Never before shouldTerminate() has said its word.
    QMetaObject::invokeMethod(this, &AppUpdater::terminateReplied, Qt::QueuedConnection);
}

void AppUpdater::beginInstalling(Relaunch relaunch)
{
    if (!m_concluding.isRunning()) {
        static_cast<void>(install(relaunch));
        return;
    }
    // The helper program may be at work, and a job that lies there is the last one.
    m_checking.stop();
    m_next = relaunch;
    enter(Phase::Installing);
}

void AppUpdater::installWhatWaits()
{
    const auto relaunch = std::exchange(m_next, std::nullopt);
    if (!relaunch)
        return;
    // What has become of the last installation may stand in the way.
    if (isInstalledAtQuit() && (m_terminateReplyPending || !isInstalledByHand())) {
        static_cast<void>(install(*relaunch));
        return;
    }
    m_holding.stop();
    enter(Phase::Ready);
    if (m_terminateReplyPending)
        replyToTerminate();
}

QCoro::Task<> AppUpdater::install(Relaunch relaunch)
{
    const Work::Run run = m_installing.begin();
    m_checking.stop();
    enter(Phase::Installing);
    const Release release = *m_release;
    const bool isWritten = co_await QtConcurrent::run(updateFolder::writeJob, job(relaunch), m_platform.workingFolder);
    if (run.isStopped())
        co_return;
    if (isWritten) {
        m_records.setPendingInstall(release);
        m_helperLaunched = m_platform.startDetached(m_platform.folder->helper(), {m_platform.workingFolder});
    }
    m_holding.stop();
    if (!m_helperLaunched)
        enter(Phase::Ready);
    if (m_terminateReplyPending) {
        replyToTerminate(); // an installation that has not begun is noticed at the next start
    } else if (m_helperLaunched) {
        Q_EMIT quitRequested();
    } else {
        m_records.clearPendingInstall();
        noteFailure(release);
    }
}

InstallJob AppUpdater::job(Relaunch relaunch) const
{
    return {.version = m_release->latest,
            .build = m_release->build.value_or(0),
            .relaunch = relaunch == Relaunch::Yes,
            .createdAt = m_services.clock.now(),
            .processIdentifier = QCoreApplication::applicationPid(),
            .image = m_image,
            .sha256 = m_readySHA256.value_or(QString()),
            .folder = m_platform.folder->path};
}

} // namespace loom
