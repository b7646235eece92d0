#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <vector>

namespace loom
{

class JsonReader;
struct LastRun;

/// Something that went wrong and that the store is to know of, fit to leave the machine.
struct CrashReport {
    QString kind;
    QString summary;
    int count = 1; ///< how many occurrences it stands for
    QJsonObject payload;
    int attempts = 0; ///< to send it

    bool operator==(const CrashReport&) const = default;
};

/// Who reports.
struct CrashSender {
    QString appVersion;
    qint64 build = 0;
    QString os;
    QString visitorID;
    QJsonObject device;
};

/// How large the payload of a report may be when it is written down.
inline constexpr qsizetype maximumCrashPayload = 92160;

/// The mark of a run: removed when it ends as it should, found by the next one when it did not.
[[nodiscard]] QJsonObject runningSession(const QString& version, qint64 build, const QDateTime& startedAt);

/// That the run of this mark did not end as it should. `exception` is scrubbed; what is not known is left out.
[[nodiscard]] CrashReport abnormalExit(const QJsonObject& session, const QString& exception,
                                       const QDateTime& aliveLast);

/// What is sent of a report. A payload that is too large makes way for the word that it was.
[[nodiscard]] QJsonObject crashEnvelope(const CrashReport& report, const CrashSender& sender);

// The reports that wait for another start.

[[nodiscard]] QJsonArray toJson(const std::vector<CrashReport>& reports);
/// One that cannot be read is left out.
[[nodiscard]] std::vector<CrashReport> decodeCrashReports(const JsonReader& json);

} // namespace loom
