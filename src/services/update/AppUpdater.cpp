#include "services/update/AppUpdater.h"

#include "base/Clock.h"
#include "base/FeatureGates.h"
#include "base/Log.h"
#include "base/Random.h"
#include "net/NetworkStatus.h"
#include "net/WidgetClient.h"
#include "release/TrialRun.h"
#include "services/update/DottedVersion.h"

#include <QtConcurrentRun>
#include <qcoro/qcorofuture.h>

namespace loom
{

namespace
{

/// Between nothing and `most`.
std::chrono::milliseconds pause(Random& random, std::chrono::milliseconds most)
{
    quint32 drawn = 0;
    for (const char byte : random.bytes(sizeof drawn))
        drawn = (drawn << 8) | static_cast<uchar>(byte);
    return std::chrono::milliseconds(drawn % (most.count() + 1));
}

} // namespace

AppUpdater::AppUpdater(Services services, Identity identity, UpdatePlatform platform, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_identity(std::move(identity))
    , m_platform(std::move(platform))
    , m_records(services.preferences)
    , m_isOnTrial(m_platform.trial && m_platform.trial->verdict() != TrialRun::Verdict::Ordinary)
{
    connect(&m_services.network, &NetworkStatus::changed, this, [this] {
        if (m_isCheckDue)
            checkForUpdates(Check::Automatic);
    });
}

AppUpdater::~AppUpdater()
{
    m_confirming.waitForFinished(); // the trial may not outlive this for long
}

void AppUpdater::start()
{
    if (std::exchange(m_isStarted, true))
        return;
    static_cast<void>(concludeInstallation());
    if (m_isOnTrial)
        static_cast<void>(confirmTrial());
}

void AppUpdater::beginChecking()
{
    m_isCheckingWanted = true;
    if (m_isConcluded && !m_timer.isRunning())
        static_cast<void>(checkFromTimeToTime());
}

void AppUpdater::enter(Phase phase)
{
    m_phase = phase;
    m_trouble.reset();
    Q_EMIT changed();
}

void AppUpdater::enterFailed(Trouble trouble)
{
    m_phase = Phase::Failed;
    m_trouble = trouble;
    Q_EMIT changed();
}

QCoro::Task<> AppUpdater::checkFromTimeToTime()
{
    const Work::Run run = m_timer.begin();
    while (!run.isStopped()) {
        checkForUpdates(Check::Automatic);
        co_await m_services.clock.sleep(interval + pause(m_services.random, jitter), run.stop());
    }
}

void AppUpdater::checkForUpdates(Check check)
{
    if (m_phase == Phase::Downloading || m_phase == Phase::Verifying || m_phase == Phase::Installing ||
        m_phase == Phase::Checking)
        return;
    if (check == Check::Automatic) {
        if (!canUpdate() || !m_services.features.isEnabled(Feature::AutoUpdate))
            return;
        m_isCheckDue = m_services.network.isOffline();
        if (m_isCheckDue || m_checking.isRunning())
            return;
    }
    static_cast<void>(ask(check));
}

QCoro::Task<> AppUpdater::ask(Check check)
{
    const Work::Run run = m_checking.begin();
    if (check == Check::Manual)
        enter(Phase::Checking);
    const auto answer =
        co_await m_services.widget.get(QStringLiteral("/app-version"), {}, {.timeout = checkTimeout}, run.stop());
    if (run.isStopped())
        co_return;
    auto release = Result<std::optional<Release>, QString>(Unexpected(QString()));
    if (answer) {
        release = co_await QtConcurrent::run(decodeUpdateRelease, *answer);
        if (run.isStopped())
            co_return;
        if (!release)
            qCWarning(logNet) << "the store's newest release cannot be read:" << release.error();
    }
    if (release) {
        m_lastChecked = m_services.clock.now();
        take(*release, check);
    } else if (check == Check::Manual && isReady()) {
        enter(Phase::Ready);
    } else if (check == Check::Manual) {
        enterFailed({.kind = Trouble::Kind::Check});
    }
}

void AppUpdater::take(const std::optional<Release>& release, Check check)
{
    if (check == Check::Manual)
        m_manuallyCheckedVersion = release ? std::optional(release->latest) : std::nullopt;
    const UpdateOffer offer = release ? updateOffer(*release, installation()) : UpdateOffer::None;
    if (staysReady(release, offer)) {
        // What the job of an earlier run knew of it was less.
        if (offer != UpdateOffer::None && release->key() == m_release->key()) {
            m_release = release;
            m_offer = offer;
        }
        enter(Phase::Ready);
        return;
    }
    const bool isWithdrawn = isReady() && offer == UpdateOffer::None;
    forgetImage();
    m_offer = offer;
    m_release = offer == UpdateOffer::None ? std::nullopt : release;
    m_selfUpdateFailed = m_selfUpdateFailed && release && m_failedRelease == release->key();
    if (isWithdrawn)
        discardImages();
    if (offer == UpdateOffer::None) {
        const bool isUpToDate = check == Check::Manual || m_phase == Phase::UpToDate;
        enter(isUpToDate ? Phase::UpToDate : Phase::Idle);
        return;
    }
    if (check == Check::Automatic && canReplaceInPlace() && !m_services.network.isMetered() &&
        m_flawedRelease != release->key() && isMeantUnasked(*release)) {
        m_downloadIsBackground = true;
        static_cast<void>(download(*release));
    } else {
        enter(Phase::Idle);
    }
}

bool AppUpdater::staysReady(const std::optional<Release>& release, UpdateOffer offer) const
{
    if (!isReady())
        return false;
    const bool isNewer = release && isLater(*release, *m_release);
    const bool isOlder = !release || isLater(*m_release, *release);
    if (offer != UpdateOffer::None && !isNewer && !isOlder)
        return true;
    // It was withdrawn, which does not count against who has asked for it.
    return !m_downloadIsBackground && (offer == UpdateOffer::None || !isNewer);
}

bool AppUpdater::isMeantUnasked(const Release& release)
{
    Installation unasked = installation();
    unasked.manuallyCheckedVersion.reset();
    return updateOffer(release, unasked) != UpdateOffer::None;
}

Installation AppUpdater::installation()
{
    return {.version = m_identity.version,
            .build = m_identity.build,
            .rolloutSeed = m_records.rolloutSeed(m_services.random),
            .skippedVersion = m_records.skippedVersion(),
            .revertedRelease = m_records.revertedRelease(),
            .manuallyCheckedVersion = m_manuallyCheckedVersion};
}

AppUpdater::Release AppUpdater::running() const
{
    Release release;
    release.latest = m_identity.version;
    release.build = m_identity.build;
    return release;
}

bool AppUpdater::isLater(const Release& one, const Release& other)
{
    const auto version = DottedVersion::parse(one.latest);
    const auto otherVersion = DottedVersion::parse(other.latest);
    if (!version || !otherVersion)
        return false;
    return *version > *otherVersion || (*version == *otherVersion && one.build.value_or(0) > other.build.value_or(0));
}

bool AppUpdater::canUpdate() const
{
    return !m_identity.publicKey.isEmpty() && !m_platform.workingFolder.isEmpty();
}

bool AppUpdater::canReplaceInPlace() const
{
    if (!canUpdate() || !m_release || !m_platform.folder || !m_platform.startDetached)
        return false;
    // What the system runs from a place of its own choice cannot be replaced there.
    static const QString translocated = QStringLiteral("/AppTranslocation/");
    const QString& path = m_platform.folder->path;
    return !m_platform.program.contains(translocated) && !(path + QLatin1Char('/')).contains(translocated) &&
           path != m_records.inPlaceImpossible() &&
           m_records.inPlaceFailures(m_release->key()) < maximumInPlaceFailures;
}

bool AppUpdater::isInstalledByHand() const
{
    return m_release && (!canReplaceInPlace() || (m_selfUpdateFailed && m_failedRelease == m_release->key()));
}

bool AppUpdater::isInstalledAtQuit() const
{
    // Whoever was shown the image may have installed it already.
    return isReady() && canReplaceInPlace() && !m_isImageOpened;
}

bool AppUpdater::canSkip() const
{
    const bool isOnItsWay =
        m_phase == Phase::Downloading || m_phase == Phase::Verifying || m_phase == Phase::Installing;
    return m_release && m_offer != UpdateOffer::Mandatory && !isOnItsWay && m_phase != Phase::Checking;
}

void AppUpdater::skipThisVersion()
{
    if (!canSkip())
        return;
    m_records.setSkippedVersion(m_release->latest);
    m_manuallyCheckedVersion.reset();
    m_release.reset();
    m_offer = UpdateOffer::None;
    m_selfUpdateFailed = false;
    forgetImage();
    discardImages();
    enter(Phase::Idle);
}

bool AppUpdater::isCalling() const
{
    const bool isUnasked = m_downloadIsBackground && (m_phase == Phase::Downloading || m_phase == Phase::Verifying);
    return m_selfUpdateFailed || (m_release && !isUnasked);
}

AppUpdater::Action AppUpdater::action() const
{
    switch (m_phase) {
    case Phase::Checking:
    case Phase::Downloading:
    case Phase::Verifying:
    case Phase::Installing:
        return Action::None;
    case Phase::UpToDate:
        return Action::Check;
    case Phase::Ready:
        return isInstalledByHand() ? Action::OpenImage : Action::Relaunch;
    case Phase::Idle:
    case Phase::Failed:
        break;
    }
    const bool hasCheckFailed = m_trouble && m_trouble->kind == Trouble::Kind::Check;
    return m_release && canUpdate() && !hasCheckFailed ? Action::Download : Action::Check;
}

void AppUpdater::act()
{
    switch (action()) {
    case Action::None:
        return;
    case Action::Check:
        return checkForUpdates(Check::Manual);
    case Action::Download:
        return downloadAndInstall();
    case Action::Relaunch:
        return relaunchToUpdate();
    case Action::OpenImage:
        return openImage();
    }
}

void AppUpdater::retranslate()
{
    Q_EMIT changed();
}

} // namespace loom
