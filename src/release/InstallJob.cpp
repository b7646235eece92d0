#include "release/InstallJob.h"

#include "base/Dates.h"
#include "base/JsonReader.h"
#include "release/FolderExchange.h"
#include "release/RecordFile.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <limits>

namespace loom
{

namespace
{

struct NamedCode {
    InstallResult::Code code;
    QLatin1String name;
};

constexpr std::array codes{NamedCode{InstallResult::Code::Installed, QLatin1String("installed")},
                           NamedCode{InstallResult::Code::Busy, QLatin1String("busy")},
                           NamedCode{InstallResult::Code::NotWritable, QLatin1String("not-writable")},
                           NamedCode{InstallResult::Code::NoSpace, QLatin1String("no-space")},
                           NamedCode{InstallResult::Code::BadImage, QLatin1String("bad-image")},
                           NamedCode{InstallResult::Code::DoesNotStart, QLatin1String("does-not-start")},
                           NamedCode{InstallResult::Code::Failed, QLatin1String("failed")}};

QString fileIn(const QString& workingFolder, const char* name)
{
    return workingFolder + QLatin1Char('/') + QLatin1String(name);
}

QByteArray encoded(const QJsonObject& json)
{
    return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

/// A path that means the same to everybody who reads it.
QString path(const JsonReader& json, std::string_view key)
{
    QString text = json.text(key);
    if (!QDir::isAbsolutePath(text) || QDir::cleanPath(text) != text || text.size() < 2 || text.contains(QChar::Null))
        json.fail(QStringLiteral("not a path"));
    return text;
}

qint64 integerWithin(const JsonReader& json, std::string_view key, qint64 smallest, qint64 largest)
{
    const qint64 number = json.integer(key);
    if (number < smallest || number > largest)
        json.fail(QStringLiteral("out of range"));
    return number;
}

qint64 build(const JsonReader& json)
{
    return integerWithin(json, "build", 0, std::numeric_limits<qint64>::max());
}

QString version(const JsonReader& json)
{
    QString text = json.text("version");
    if (text.isEmpty())
        json.fail(QStringLiteral("no version"));
    return text;
}

bool isSha256(const QString& text)
{
    return text.size() == 64 && std::ranges::all_of(text, [](QChar letter) {
               return (letter >= QLatin1Char('0') && letter <= QLatin1Char('9')) ||
                      (letter >= QLatin1Char('a') && letter <= QLatin1Char('f'));
           });
}

template <typename Decode>
auto readFrom(const QString& workingFolder, const char* name, Decode decode)
    -> std::optional<decltype(decode(std::declval<const JsonReader&>()))>
{
    const auto bytes = readRecord(fileIn(workingFolder, name), RecordOwner::ThisUser);
    if (!bytes)
        return std::nullopt;
    auto record = decodeJson(*bytes, decode);
    if (!record)
        return std::nullopt;
    return *std::move(record);
}

} // namespace

QJsonObject toJson(const InstallJob& job)
{
    return {{QStringLiteral("version"), job.version},
            {QStringLiteral("build"), job.build},
            {QStringLiteral("relaunch"), job.relaunch},
            {QStringLiteral("createdAt"), formatDate(job.createdAt)},
            {QStringLiteral("processIdentifier"), job.processIdentifier},
            {QStringLiteral("image"), job.image},
            {QStringLiteral("sha256"), job.sha256},
            {QStringLiteral("folder"), job.folder}};
}

InstallJob decodeInstallJob(const JsonReader& json)
{
    InstallJob job{.version = version(json),
                   .build = build(json),
                   .relaunch = json.boolean("relaunch"),
                   .createdAt = json.date("createdAt"),
                   // 0, 1 and what is negative mean more, or another, than a process of ours.
                   .processIdentifier = integerWithin(json, "processIdentifier", 2, std::numeric_limits<int>::max()),
                   .image = path(json, "image"),
                   .sha256 = json.text("sha256"),
                   .folder = path(json, "folder")};
    if (!isSha256(job.sha256))
        json.fail(QStringLiteral("no checksum"));
    return job;
}

QJsonObject toJson(const InstallResult& result)
{
    const auto* const named = std::ranges::find(codes, result.code, &NamedCode::code);
    return {{QStringLiteral("code"), QString(named->name)},
            {QStringLiteral("path"), result.path},
            {QStringLiteral("relaunch"), result.relaunch}};
}

InstallResult decodeInstallResult(const JsonReader& json)
{
    const QString name = json.text("code");
    const auto* const named = std::ranges::find(codes, name, &NamedCode::name);
    return {.code = named == codes.end() ? InstallResult::Code::Failed : named->code,
            .path = json.text("path"),
            .relaunch = json.boolean("relaunch")};
}

QJsonObject toJson(const InstallTrial& trial)
{
    return {{QStringLiteral("version"), trial.version},
            {QStringLiteral("build"), trial.build},
            {QStringLiteral("folder"), trial.folder},
            {QStringLiteral("previous"), trial.previous},
            {QStringLiteral("starts"), trial.starts}};
}

InstallTrial decodeInstallTrial(const JsonReader& json)
{
    InstallTrial trial{.version = version(json),
                       .build = build(json),
                       .folder = path(json, "folder"),
                       .previous = path(json, "previous"),
                       .starts = static_cast<int>(integerWithin(json, "starts", 0, 1'000'000))};
    const QFileInfo previous(trial.previous);
    // Whoever reads it may remove that folder.
    if (previous.path() != QFileInfo(trial.folder).path() || !previous.fileName().startsWith(stagingPrefix) ||
        trial.previous == trial.folder)
        json.fail(QStringLiteral("not beside the application"));
    return trial;
}

std::optional<InstallJob> readInstallJob(const QString& workingFolder)
{
    return readFrom(workingFolder, InstallJob::fileName, decodeInstallJob);
}

std::optional<InstallResult> readInstallResult(const QString& workingFolder)
{
    return readFrom(workingFolder, InstallResult::fileName, decodeInstallResult);
}

std::optional<InstallTrial> readInstallTrial(const QString& workingFolder)
{
    return readFrom(workingFolder, InstallTrial::fileName, decodeInstallTrial);
}

bool write(const InstallJob& job, const QString& workingFolder)
{
    return writeRecord(fileIn(workingFolder, InstallJob::fileName), encoded(toJson(job)));
}

bool write(const InstallResult& result, const QString& workingFolder)
{
    return writeRecord(fileIn(workingFolder, InstallResult::fileName), encoded(toJson(result)));
}

bool write(const InstallTrial& trial, const QString& workingFolder)
{
    return writeRecord(fileIn(workingFolder, InstallTrial::fileName), encoded(toJson(trial)));
}

bool removeInstallTrial(const QString& workingFolder)
{
    return removeRecord(fileIn(workingFolder, InstallTrial::fileName));
}

} // namespace loom
