#include "services/update/UpdateRecords.h"

#include "base/Random.h"
#include "services/update/DottedVersion.h"
#include "storage/Preferences.h"

#include <algorithm>

namespace loom
{

namespace
{

const QString versionKey = QStringLiteral("version");
const QString buildKey = QStringLiteral("build");

/// Beyond it nothing depends on the count.
constexpr int mostFailures = 1000;

} // namespace

std::optional<UpdateRelease> UpdateRecords::pendingInstall() const
{
    const auto pending = m_preferences.value(preferences::updatePendingInstall);
    if (!pending || !DottedVersion::parse(pending->value(versionKey).toString()))
        return std::nullopt;
    UpdateRelease release;
    release.latest = pending->value(versionKey).toString();
    release.build = pending->value(buildKey).toInteger();
    return release;
}

void UpdateRecords::setPendingInstall(const UpdateRelease& release)
{
    m_preferences.set(preferences::updatePendingInstall,
                      {{versionKey, release.latest}, {buildKey, release.build.value_or(0)}});
}

void UpdateRecords::clearPendingInstall()
{
    m_preferences.remove(preferences::updatePendingInstall);
}

int UpdateRecords::inPlaceFailures(const QString& release) const
{
    const auto failures = m_preferences.value(preferences::updateInPlaceFailures);
    return failures ? std::clamp(failures->value(release).toInt(), 0, mostFailures) : 0;
}

void UpdateRecords::countInPlaceFailure(const QString& release)
{
    QJsonObject failures = m_preferences.value(preferences::updateInPlaceFailures).value_or(QJsonObject());
    failures.insert(release, inPlaceFailures(release) + 1);
    m_preferences.set(preferences::updateInPlaceFailures, failures);
}

QString UpdateRecords::inPlaceImpossible() const
{
    return m_preferences.value(preferences::updateInPlaceImpossible);
}

void UpdateRecords::setInPlaceImpossible(const QString& folder)
{
    m_preferences.set(preferences::updateInPlaceImpossible, folder);
}

QString UpdateRecords::rolloutSeed(Random& random)
{
    QString seed = m_preferences.value(preferences::updateRolloutSeed);
    if (seed.isEmpty()) {
        seed = random.uuid().toString(QUuid::WithoutBraces);
        m_preferences.set(preferences::updateRolloutSeed, seed);
    }
    return seed;
}

QString UpdateRecords::skippedVersion() const
{
    return m_preferences.value(preferences::updateSkippedVersion);
}

void UpdateRecords::setSkippedVersion(const QString& version)
{
    m_preferences.set(preferences::updateSkippedVersion, version);
}

QString UpdateRecords::revertedRelease() const
{
    return m_preferences.value(preferences::updateRevertedRelease);
}

void UpdateRecords::setRevertedRelease(const QString& release)
{
    m_preferences.set(preferences::updateRevertedRelease, release);
}

} // namespace loom
