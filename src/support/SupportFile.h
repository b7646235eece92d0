#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>

namespace loom
{

/// A file of this machine on its way to customer service.
struct SupportFile {
    QString path;
    QString name; ///< without its folder, as it is shown and sent
    QString mimeType;
    QByteArray bytes; ///< not kept over a restart: they are read again then

    bool operator==(const SupportFile&) const = default;
};

enum class SupportFileProblem {
    Missing,    ///< it is not there, or is no file
    Unreadable, ///< it may not be read
    Empty,
    TooLarge,
    WrongType, ///< neither a picture nor a PDF
};

inline constexpr qint64 largestSupportFile = qint64{10} * 1024 * 1024;

/// Reads a picture or a PDF; its contents decide what it is, whatever it is called. Any thread but the main one: the
/// disk may be slow.
[[nodiscard]] Result<SupportFile, SupportFileProblem> readSupportFile(const QString& path);

} // namespace loom
