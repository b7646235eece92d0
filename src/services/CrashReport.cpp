#include "services/CrashReport.h"

#include "base/Dates.h"
#include "base/JsonReader.h"

#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>

namespace loom
{

namespace
{

/// A version or a build, should it look like one: the mark lies in a file that anybody may have changed.
QJsonValue releaseWord(const QJsonValue& value)
{
    static const QRegularExpression form(QStringLiteral("^[0-9][0-9A-Za-z.+~-]{0,31}\\z"));
    if (value.isDouble() || (value.isString() && form.match(value.toString()).hasMatch()))
        return value;
    return QJsonValue::Undefined;
}

void insertKnown(QJsonObject& object, const char* key, const QJsonValue& value)
{
    if (!value.isUndefined())
        object.insert(QLatin1String(key), value);
}

} // namespace

QJsonObject runningSession(const QString& version, qint64 build, const QDateTime& startedAt)
{
    return {{QStringLiteral("version"), version},
            {QStringLiteral("build"), build},
            {QStringLiteral("startedAt"), formatDate(startedAt)}};
}

CrashReport abnormalExit(const QJsonObject& session, const QString& exception, const QDateTime& aliveLast)
{
    QJsonObject details;
    insertKnown(details, "previousVersion", releaseWord(session.value(QStringLiteral("version"))));
    insertKnown(details, "previousBuild", releaseWord(session.value(QStringLiteral("build"))));
    if (const auto startedAt = parseDate(session.value(QStringLiteral("startedAt")).toString())) {
        details.insert(QStringLiteral("startedAt"), formatDate(*startedAt));
        // A clock that was set in between tells nothing.
        if (aliveLast.isValid() && aliveLast >= *startedAt)
            details.insert(QStringLiteral("ranSeconds"), startedAt->secsTo(aliveLast));
    }
    if (!exception.isEmpty())
        details.insert(QStringLiteral("exception"), exception);
    return {.kind = QStringLiteral("abnormal_exit"),
            .summary = QStringLiteral("App did not quit normally"),
            .payload = details};
}

QJsonObject crashEnvelope(const CrashReport& report, const CrashSender& sender)
{
    const bool fits = QJsonDocument(report.payload).toJson(QJsonDocument::Compact).size() <= maximumCrashPayload;
    return {
        {QStringLiteral("platform"), QStringLiteral("macos")}, // as in every call: the one the store's service knows
        {QStringLiteral("appVersion"), sender.appVersion},
        {QStringLiteral("build"), sender.build},
        {QStringLiteral("os"), sender.os},
        {QStringLiteral("kind"), report.kind},
        {QStringLiteral("summary"), report.summary},
        {QStringLiteral("count"), report.count},
        {QStringLiteral("visitorId"), sender.visitorID},
        {QStringLiteral("device"), sender.device},
        {QStringLiteral("payload"),
         fits ? report.payload
              : QJsonObject{{QStringLiteral("truncated"), true}, {QStringLiteral("device"), sender.device}}}};
}

QJsonArray toJson(const std::vector<CrashReport>& reports)
{
    QJsonArray list;
    for (const CrashReport& report : reports) {
        list.append(QJsonObject{{QStringLiteral("kind"), report.kind},
                                {QStringLiteral("summary"), report.summary},
                                {QStringLiteral("count"), report.count},
                                {QStringLiteral("payload"), report.payload},
                                {QStringLiteral("attempts"), report.attempts}});
    }
    return list;
}

std::vector<CrashReport> decodeCrashReports(const JsonReader& json)
{
    return JsonReader::decodeEach(json.elements(), [](const JsonReader& report) {
        return CrashReport{.kind = report.text("kind"),
                           .summary = report.text("summary"),
                           .count = static_cast<int>(std::clamp<qint64>(report.integer("count"), 1, 1'000'000)),
                           .payload = report.object("payload").asJson().toObject(),
                           .attempts = static_cast<int>(std::clamp<qint64>(report.integer("attempts"), 0, 1000))};
    });
}

} // namespace loom
