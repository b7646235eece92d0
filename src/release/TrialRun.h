#pragma once

#include "release/ApplicationFolder.h"
#include "release/InstallJob.h"
#include "release/InstallLock.h"

#include <chrono>
#include <mutex>
#include <optional>

namespace loom
{

/// The first starts of a release that was just installed. A start that is neither confirmed nor ends well has died;
/// after two of those the release before comes back. Made by main() before anything that may die. Blocks for a few file
/// operations, and only while there is a trial file; confirm() may be called on any thread, as it removes a release.
///
/// Whoever is killed at any instant leaves a state that the next start brings in order; which release lies in the
/// folder says how far it came. If it is not the one on trial, the helper did not come to exchange the folders, or,
/// after enough deaths, revert() has exchanged them back.
class TrialRun
{
public:
    static constexpr int maximumDeaths = 2;
    /// A run this long has started well.
    static constexpr std::chrono::seconds proof{30};

    enum class Verdict {
        Ordinary, ///< nothing is on trial, or another instance or the helper is at it
        OnTrial,
        Revert, ///< the release has died twice: revert() now
    };

    /// Counts this start. `running` is nothing where the program is no release.
    TrialRun(QString workingFolder, const std::optional<ApplicationFolder>& running);

    [[nodiscard]] Verdict verdict() const { return m_verdict; }
    /// Brings the release before back; the caller then starts `executable()` of the same folder in its own place, whose
    /// TrialRun says so in the result file and removes the one that died. False when it cannot be brought back: the new
    /// one goes on.
    [[nodiscard]] bool revert();
    /// It has run long enough: the release before is removed.
    void confirm();
    /// It quits as it should, before it could be confirmed: this start does not count.
    void endedWell();

private:
    void consider(const InstallTrial& trial, const ApplicationFolder& running);
    void count();
    void finishReverting(const InstallTrial& trial) const;
    void discard(const InstallTrial& trial) const;

    QString m_workingFolder;
    Verdict m_verdict = Verdict::Ordinary;
    InstallTrial m_trial;
    /// Held while this run is on trial, so that a second start beside it does not count.
    std::optional<InstallLock> m_lock;
    std::mutex m_mutex; ///< confirm() may still be at work when the application quits
};

} // namespace loom
