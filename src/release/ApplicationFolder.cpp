#include "release/ApplicationFolder.h"

#include "base/JsonReader.h"
#include "release/RecordFile.h"

#include <QFileInfo>

namespace loom
{

std::optional<ApplicationFolder> ApplicationFolder::read(const QString& path)
{
    const QString folder = QFileInfo(path).canonicalFilePath();
    if (folder.isEmpty() || folder == QStringLiteral("/"))
        return std::nullopt;
    // It may belong to another user, such as the one who administers the machine.
    const auto bytes = readRecord(folder + QStringLiteral("/release.json"), RecordOwner::Anyone);
    if (!bytes)
        return std::nullopt;
    auto release = decodeJson(*bytes, [&folder](const JsonReader& json) {
        ApplicationFolder record{.path = folder, .version = json.text("version"), .build = json.integer("build")};
        if (record.version.isEmpty() || record.build < 0)
            json.fail(QStringLiteral("no release"));
        return record;
    });
    if (!release)
        return std::nullopt;
    return *std::move(release);
}

std::optional<ApplicationFolder> ApplicationFolder::ofProgram(const QString& program)
{
    const QFileInfo folder(QFileInfo(QFileInfo(program).canonicalFilePath()).path());
    if (folder.fileName() != QStringLiteral("bin"))
        return std::nullopt;
    return read(folder.path());
}

} // namespace loom
