#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

class QFile;

namespace loom
{

// Small files that say how an installation stands, and what lies in folders that others may have written to. Everything
// here blocks; any thread.

/// No record of ours comes near it.
inline constexpr qint64 maximumRecordBytes = 65536;

enum class RecordOwner { Anyone, ThisUser };

/// Opens a file for reading, without a buffer of its own, if it is a plain one: no link, no device and nothing that
/// lets its opener wait.
[[nodiscard]] bool openPlainFile(QFile& file, const QString& path);

/// Nothing when it is missing, no plain file, too large, or, where it has to be this user's, one that others may write.
[[nodiscard]] std::optional<QByteArray> readRecord(const QString& path, RecordOwner owner);

/// All of the file or nothing of it, for this user alone; on the disk when this returns true.
[[nodiscard]] bool writeRecord(const QString& path, const QByteArray& bytes);

/// True when the file is gone from the disk, or was not there.
[[nodiscard]] bool removeRecord(const QString& path);

/// Whether what the open folder holds is on the disk, as far as its file system can tell.
[[nodiscard]] bool syncFolder(int folder);

} // namespace loom
