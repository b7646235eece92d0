#include "release/TrialRun.h"

#include "release/FolderExchange.h"

#include <QFileInfo>

namespace loom
{

TrialRun::TrialRun(QString workingFolder, const std::optional<ApplicationFolder>& running)
    : m_workingFolder(std::move(workingFolder))
{
    if (!running || !QFileInfo::exists(m_workingFolder + QLatin1Char('/') + QLatin1String(InstallTrial::fileName)))
        return;
    m_lock = InstallLock::take(m_workingFolder, InstallLock::Work::Trial);
    if (!m_lock)
        return; // the helper is about to exchange the folders, or another instance is on trial
    if (const auto trial = readInstallTrial(m_workingFolder))
        consider(*trial, *running);
    if (m_verdict == Verdict::Ordinary)
        m_lock.reset();
}

void TrialRun::consider(const InstallTrial& trial, const ApplicationFolder& running)
{
    // What lies there now counts: this program may run on out of a folder that has been exchanged since it started.
    const auto installed = ApplicationFolder::read(trial.folder);
    if (installed != running) {
        // Another copy of the application. What is on trial is that copy's affair, unless there is none any more.
        if (!installed && !QFileInfo::exists(trial.folder) && running.path != trial.previous)
            discard(trial);
        return;
    }
    if (installed->version != trial.version || installed->build != trial.build) {
        if (trial.starts >= maximumDeaths)
            finishReverting(trial);
        else
            discard(trial); // the helper was killed before it exchanged the folders, or another release came since
        return;
    }
    m_trial = trial;
    if (trial.starts >= maximumDeaths) {
        m_verdict = Verdict::Revert;
        return;
    }
    m_verdict = Verdict::OnTrial;
    count();
}

void TrialRun::count()
{
    ++m_trial.starts;
    // Where there is no room, this start is not counted: the release before would not fare better.
    static_cast<void>(write(m_trial, m_workingFolder));
}

bool TrialRun::revert()
{
    const std::scoped_lock guard(m_mutex);
    if (!m_lock || m_verdict != Verdict::Revert)
        return false;
    const auto before = ApplicationFolder::read(m_trial.previous);
    if (!before || !QFileInfo(before->executable()).isExecutable() ||
        !exchangeFolders(m_trial.folder, m_trial.previous)) {
        m_verdict = Verdict::OnTrial;
        count();
        return false;
    }
    // This process may need its files still, and may die of anything: the release before does the rest.
    m_verdict = Verdict::Ordinary;
    m_lock.reset();
    return true;
}

void TrialRun::finishReverting(const InstallTrial& trial) const
{
    // In this order: removing makes room for the result, and while there is a trial, the next start does it all again.
    removeStaged(trial.previous);
    const InstallResult result{.code = InstallResult::Code::DoesNotStart, .path = trial.folder, .relaunch = true};
    if (write(result, m_workingFolder))
        static_cast<void>(removeInstallTrial(m_workingFolder));
}

void TrialRun::discard(const InstallTrial& trial) const
{
    removeStaged(trial.previous);
    static_cast<void>(removeInstallTrial(m_workingFolder));
}

void TrialRun::confirm()
{
    const std::scoped_lock guard(m_mutex);
    if (!m_lock || m_verdict != Verdict::OnTrial)
        return;
    // The trial first: a release that is half removed must not be brought back.
    if (removeInstallTrial(m_workingFolder))
        removeStaged(m_trial.previous);
    m_lock.reset();
}

void TrialRun::endedWell()
{
    const std::scoped_lock guard(m_mutex);
    if (!m_lock || m_verdict != Verdict::OnTrial)
        return;
    --m_trial.starts;
    static_cast<void>(write(m_trial, m_workingFolder));
    m_lock.reset();
}

} // namespace loom
