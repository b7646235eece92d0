#pragma once

#include "services/update/UpdateRelease.h"

namespace loom
{

/// What decides whether this installation is offered a release.
struct Installation {
    QString version;
    qint64 build = 0;
    QString rolloutSeed;
    QString skippedVersion;                        ///< that the shopper does not want; empty: none
    QString revertedRelease;                       ///< UpdateRelease::key() of one that died here; empty: none
    std::optional<QString> manuallyCheckedVersion; ///< that the shopper found by asking
};

enum class UpdateOffer {
    None,
    Offered,
    Mandatory, ///< what runs is no longer supported
};

[[nodiscard]] UpdateOffer updateOffer(const UpdateRelease& release, const Installation& installation);

/// 0 to 99, always the same for an installation and a version: the 64-bit FNV-1a hash of the seed, ":" and the version,
/// in UTF-8, modulo 100.
[[nodiscard]] int rolloutBucket(const QString& seed, const QString& version);

} // namespace loom
