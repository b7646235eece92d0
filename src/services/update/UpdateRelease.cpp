#include "services/update/UpdateRelease.h"

#include "base/JsonReader.h"
#include "catalog/DisplayText.h"
#include "services/update/DottedVersion.h"
#include "services/update/ImageDownload.h"

#include <algorithm>
#include <cmath>

namespace loom
{

namespace
{

// No release of ours comes near these.
constexpr qsizetype longestVersion = 64;
constexpr qsizetype longestAddress = 2048;
constexpr qsizetype longestNotes = 4000;
constexpr qsizetype longestCode = 35;
constexpr int mostLanguages = 100;

bool isVersion(const QString& text)
{
    return text.size() <= longestVersion && DottedVersion::parse(text);
}

QUrl decodeImageUrl(const JsonReader& json)
{
    const QString text = json.text("url");
    const QUrl url(text.left(longestAddress + 1), QUrl::StrictMode);
    const bool isGood = text.size() <= longestAddress && url.isValid() && url.scheme() == QLatin1String("https") &&
                        !url.host().isEmpty() && url.userInfo().isEmpty() && !url.fileName().isEmpty();
    if (!isGood)
        json.fail(QStringLiteral("the image's address is none that can be used"));
    return url.adjusted(QUrl::RemoveFragment);
}

std::optional<qint64> decodeSize(const JsonReader& json)
{
    if (!json.has("size") || !json.value("size").asNumber())
        return std::nullopt;
    const auto size = json.optionalInteger("size");
    if (!size || *size <= 0 || *size > maximumImageBytes)
        json.fail(QStringLiteral("no image has the size that is said"));
    return size;
}

bool isAbsent(const JsonReader& json, std::string_view key)
{
    return !json.has(key) || json.value(key).asJson().isNull();
}

/// One that is said in whatever way stays a limit: read as "none", it would offer the release to everybody.
std::optional<qint64> decodeRollout(const JsonReader& json)
{
    const auto rollout = json.optionalInteger("rollout");
    if (rollout || isAbsent(json, "rollout"))
        return rollout;
    const double number = json.value("rollout").asNumber().value_or(0);
    return static_cast<qint64>(std::floor(std::clamp(number, -1.0, 100.0)));
}

QMap<QString, QString> decodeNotes(const JsonReader& json)
{
    QMap<QString, QString> notes;
    const auto object = json.optionalObject("notes");
    if (!object)
        return notes;
    for (const auto& [code, value] : object->members()) {
        const auto isOfCode = [](QChar c) {
            return c.unicode() < 128 && (c.isLetterOrNumber() || c == u'-' || c == u'_');
        };
        const bool isCode = !code.isEmpty() && code.size() <= longestCode && std::ranges::all_of(code, isOfCode);
        const QString text = isCode ? displayText(value.asText().value_or(QString()), longestNotes) : QString();
        if (!text.isEmpty() && !notes.contains(code))
            notes.insert(code, text);
        if (notes.size() == mostLanguages)
            break;
    }
    return notes;
}

UpdateRelease decodeRelease(const JsonReader& json)
{
    UpdateRelease release;
    release.latest = json.text("latest");
    if (!isVersion(release.latest))
        json.fail(QStringLiteral("the version is not made of dotted numbers"));
    release.url = decodeImageUrl(json);
    release.min = json.optionalText("min");
    if (release.min && !isVersion(*release.min))
        release.min.reset();
    release.build = json.optionalInteger("build");
    if (release.build && *release.build < 0)
        release.build.reset();
    release.sha256 = json.optionalText("sha256");
    release.size = decodeSize(json);
    release.notes = decodeNotes(json);
    release.rollout = decodeRollout(json);
    return release;
}

/// The notes of a language or, where there are none, of one of its regions or scripts.
QString notesOf(const QMap<QString, QString>& notes, const QString& language)
{
    const auto isSame = [&language](const QString& code) {
        return code.compare(language, Qt::CaseInsensitive) == 0;
    };
    const auto isOfIt = [&language](const QString& code) {
        return code.size() > language.size() && code.startsWith(language, Qt::CaseInsensitive) &&
               !code.at(language.size()).isLetterOrNumber();
    };
    for (auto note = notes.cbegin(); note != notes.cend(); ++note) {
        if (isSame(note.key()))
            return note.value();
    }
    for (auto note = notes.cbegin(); note != notes.cend(); ++note) {
        if (isOfIt(note.key()))
            return note.value();
    }
    return {};
}

} // namespace

QUrl UpdateRelease::signatureUrl() const
{
    QUrl address = url;
    address.setPath(url.path(QUrl::FullyEncoded) + QStringLiteral(".minisig"), QUrl::StrictMode);
    return address;
}

QString UpdateRelease::key() const
{
    return latest + QLatin1Char('-') + QString::number(build.value_or(0));
}

QString UpdateRelease::notesIn(const QString& languageCode) const
{
    for (const QString& language : {languageCode, languageCode.section(u'-', 0, 0), QStringLiteral("en")}) {
        if (const QString found = language.isEmpty() ? QString() : notesOf(notes, language); !found.isEmpty())
            return found;
    }
    return notes.isEmpty() ? QString() : notes.first();
}

Result<std::optional<UpdateRelease>, QString> decodeUpdateRelease(const QByteArray& body)
{
    return decodeJson(body, [](const JsonReader& json) {
        const bool isNone = json.isObject() && isAbsent(json, "macos");
        return isNone ? std::nullopt : std::optional(decodeRelease(json.object("macos")));
    });
}

} // namespace loom
