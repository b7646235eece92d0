#pragma once

#include "services/update/UpdateRelease.h"

#include <optional>

namespace loom
{

class Preferences;
class Random;

/// What the updater notes for itself among the preferences, whoever wrote them. Owned by AppUpdater; main thread.
class UpdateRecords
{
public:
    explicit UpdateRecords(Preferences& preferences)
        : m_preferences(preferences)
    {
    }

    /// The release that was handed to the helper program and has not been seen to run: its version and build alone.
    [[nodiscard]] std::optional<UpdateRelease> pendingInstall() const;
    void setPendingInstall(const UpdateRelease& release);
    void clearPendingInstall();

    /// How often a release, by its key(), could not be installed in place.
    [[nodiscard]] int inPlaceFailures(const QString& release) const;
    void countInPlaceFailure(const QString& release);

    /// The folder that the helper program cannot write; empty: none.
    [[nodiscard]] QString inPlaceImpossible() const;
    void setInPlaceImpossible(const QString& folder);

    /// This installation's identity in rollouts, made on first use and kept for ever.
    [[nodiscard]] QString rolloutSeed(Random& random);

    [[nodiscard]] QString skippedVersion() const;
    void setSkippedVersion(const QString& version);

    /// The key() of a release that died here; empty: none.
    [[nodiscard]] QString revertedRelease() const;
    void setRevertedRelease(const QString& release);

private:
    Preferences& m_preferences;
};

} // namespace loom
