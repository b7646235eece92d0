#include "support/SupportFile.h"

#include "catalog/DisplayText.h"

#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>

namespace loom
{

namespace
{

constexpr qsizetype longestName = 120;

bool isAllowed(const QString& mimeType)
{
    static const QStringList types{QStringLiteral("image/jpeg"), QStringLiteral("image/png"),
                                   QStringLiteral("image/webp"), QStringLiteral("image/gif"),
                                   QStringLiteral("application/pdf")};
    return types.contains(mimeType);
}

} // namespace

Result<SupportFile, SupportFileProblem> readSupportFile(const QString& path)
{
    const QFileInfo info(path);
    if (!info.isFile()) // a pipe or a device would never come to its end
        return Unexpected(SupportFileProblem::Missing);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Unexpected(SupportFileProblem::Unreadable);
    SupportFile read{.path = path,
                     .name = displayLine(info.fileName(), longestName),
                     .mimeType = {},
                     .bytes = file.read(largestSupportFile + 1)}; // it may have grown since anybody looked
    if (file.error() != QFile::NoError)
        return Unexpected(SupportFileProblem::Unreadable);
    if (read.bytes.isEmpty())
        return Unexpected(SupportFileProblem::Empty);
    if (read.bytes.size() > largestSupportFile)
        return Unexpected(SupportFileProblem::TooLarge);
    read.mimeType = QMimeDatabase().mimeTypeForData(read.bytes).name();
    if (!isAllowed(read.mimeType))
        return Unexpected(SupportFileProblem::WrongType);
    return read;
}

} // namespace loom
