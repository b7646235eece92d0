#include "services/update/UpdateOffer.h"

#include "services/update/DottedVersion.h"

#include <algorithm>

namespace loom
{

namespace
{

/// Whether two texts say the same version, such as "1.3" and "1.3.0".
bool isVersion(const QString& text, const DottedVersion& version)
{
    return DottedVersion::parse(text) == version;
}

} // namespace

UpdateOffer updateOffer(const UpdateRelease& release, const Installation& installation)
{
    const auto latest = DottedVersion::parse(release.latest);
    const auto running = DottedVersion::parse(installation.version);
    if (!latest || !running || *latest < *running)
        return UpdateOffer::None;
    const bool isSame = *latest == *running;
    if (isSame && release.build.value_or(installation.build) <= installation.build)
        return UpdateOffer::None;

    // By hand it may be tried again: what was in its way may be gone.
    const bool isByHand = installation.manuallyCheckedVersion == release.latest;
    if (release.key() == installation.revertedRelease && !isByHand)
        return UpdateOffer::None;

    // What is no longer supported has no choice: neither the rollout nor the shopper's wish to skip counts.
    const auto min = release.min ? DottedVersion::parse(*release.min) : std::nullopt;
    if (!isSame && min && *running < *min)
        return UpdateOffer::Mandatory;
    if (isByHand)
        return UpdateOffer::Offered;
    if (isVersion(installation.skippedVersion, *latest))
        return UpdateOffer::None;
    // A newer build of what runs mends it, and is for everybody.
    if (isSame || !release.rollout)
        return UpdateOffer::Offered;
    return rolloutBucket(installation.rolloutSeed, release.latest) < std::clamp<qint64>(*release.rollout, 0, 100)
               ? UpdateOffer::Offered
               : UpdateOffer::None;
}

int rolloutBucket(const QString& seed, const QString& version)
{
    quint64 hash = 0xcbf29ce484222325;
    for (const char byte : (seed + QLatin1Char(':') + version).toUtf8()) {
        hash ^= static_cast<uchar>(byte);
        hash *= 0x100000001b3;
    }
    return static_cast<int>(hash % 100);
}

} // namespace loom
