#include "services/CrashReporter.h"

#include "base/Clock.h"
#include "base/FeatureGates.h"
#include "base/JsonReader.h"
#include "net/WidgetClient.h"
#include "services/DeviceFacts.h"
#include "services/ReportScrubbing.h"
#include "storage/DataFolder.h"
#include "storage/Preferences.h"

#include <QDir>
#include <QSysInfo>

#include <algorithm>

namespace loom
{

namespace
{

const QString waitingFile = QStringLiteral("lst_crash_reports");

/// What is written of reports as large as can be sent.
constexpr qsizetype maximumFileBytes = qsizetype{1024} * 1024;

std::vector<CrashReport> readWaiting(const std::optional<QByteArray>& bytes)
{
    if (!bytes || bytes->size() > maximumFileBytes)
        return {};
    auto reports = decodeJson(*bytes, decodeCrashReports);
    return reports ? *std::move(reports) : std::vector<CrashReport>();
}

} // namespace

CrashReporter::CrashReporter(WidgetClient& widget, Preferences& preferences, DataFolder& folder,
                             const FeatureGates& features, Clock& clock, Application application)
    : m_widget(widget)
    , m_preferences(preferences)
    , m_folder(folder)
    , m_features(features)
    , m_clock(clock)
    , m_application(std::move(application))
    , m_lastWords(folder.path())
{
}

void CrashReporter::start()
{
    const QDateTime now = m_clock.now();
    const LastRun last = m_lastWords.begin(now);
    if (!last.words.isEmpty())
        m_preferences.set(preferences::lastException, last.words);

    const std::optional<QByteArray> kept = m_folder.read(waitingFile);
    m_waiting = readWaiting(kept);
    if (const std::optional<QJsonObject> session = m_preferences.value(preferences::runningSession)) {
        const QString exception = scrubbed(m_preferences.value(preferences::lastException), QDir::homePath());
        take(abnormalExit(*session, exception, last.aliveLast));
    }
    if (!m_application.hasConsent()) {
        m_waiting.clear();
        if (kept)
            m_folder.remove(waitingFile);
    }
    // Without a mark these were words of a run that had ended well before it spoke.
    m_preferences.remove(preferences::lastException);
    // The new mark takes the place of the old one in one step: no run is reported twice, and none goes unmarked.
    m_preferences.set(preferences::runningSession, runningSession(m_application.version, m_application.build, now));
    m_lastNoted = m_clock.elapsed();
    m_lastWords.listen();
    m_hasStarted = true;
}

void CrashReporter::take(const CrashReport& report)
{
    // A process that ended between keeping a report and renewing its mark finds both.
    const bool isKnown = std::ranges::any_of(m_waiting, [&report](const CrashReport& waiting) {
        return waiting.kind == report.kind &&
               waiting.payload.value(QStringLiteral("startedAt")) == report.payload.value(QStringLiteral("startedAt"));
    });
    if (isKnown || !m_application.hasConsent())
        return;
    m_waiting.push_back(report);
    while (m_waiting.size() > maximumWaiting)
        m_waiting.erase(m_waiting.begin());
    save();
}

void CrashReporter::save()
{
    if (m_waiting.empty())
        m_folder.remove(waitingFile);
    else
        m_folder.save(waitingFile, toJson(m_waiting));
}

void CrashReporter::markCleanExit()
{
    m_activity.stop();
    m_preferences.remove(preferences::runningSession);
    m_lastWords.end();
}

void CrashReporter::setActive(bool isActive)
{
    if (isActive && m_hasStarted)
        static_cast<void>(noteActivity());
    else
        m_activity.stop();
}

QCoro::Task<> CrashReporter::noteActivity()
{
    const Work::Run run = m_activity.begin();
    while (!run.isStopped()) {
        const std::chrono::milliseconds due = m_lastNoted + activityInterval;
        if (m_clock.elapsed() < due) {
            co_await m_clock.sleep(due - m_clock.elapsed(), run.stop());
            continue;
        }
        m_lastNoted = m_clock.elapsed();
        m_lastWords.touch(m_clock.now());
    }
}

void CrashReporter::sendWaiting()
{
    if (m_hasStarted && !std::exchange(m_hasSent, true))
        static_cast<void>(send());
}

bool CrashReporter::isWanted() const
{
    return m_application.hasConsent() && m_features.isEnabled(Feature::CrashReports);
}

CrashSender CrashReporter::sender() const
{
    return {.appVersion = m_application.version,
            .build = m_application.build,
            .os = QSysInfo::prettyProductName() + QStringLiteral(", ") + QSysInfo::kernelType() + QLatin1Char(' ') +
                  QSysInfo::kernelVersion(),
            .visitorID = m_application.visitorID(),
            .device = toJson(readDeviceFacts())};
}

QCoro::Task<> CrashReporter::send()
{
    const Work::Run run = m_sending.begin();
    for (std::size_t at = 0; at < m_waiting.size();) {
        // The shopper and the store may have changed their minds meanwhile; what is not wanted is not kept either.
        if (!isWanted()) {
            m_waiting.clear();
            save();
            co_return;
        }
        // Counted before it is tried: what ends the application while it is sent is not tried for ever. A service that
        // gets a report again, because the answer to it was lost, knows it by its visitor and the start of the run.
        ++m_waiting[at].attempts;
        save();
        const QJsonObject envelope = crashEnvelope(m_waiting[at], sender());
        const ApiResult<QByteArray> answer = co_await m_widget.post(
            QStringLiteral("/app-version/crash-reports"), envelope, {.identity = Identity::Anonymous}, run.stop());
        if (run.isStopped())
            co_return;
        if (!answer && m_application.isOffline()) {
            // Nobody was there to refuse it, nor will anybody be for the others.
            --m_waiting[at].attempts;
            save();
            m_hasSent = false;
            co_return;
        }
        if (answer || m_waiting[at].attempts >= maximumAttempts)
            m_waiting.erase(m_waiting.begin() + static_cast<std::ptrdiff_t>(at));
        else
            ++at;
        save();
    }
}

} // namespace loom
