#pragma once

#include <QString>

namespace loom
{

/// Lets two folders of one file system take each other's place in one step (renameat2 with RENAME_EXCHANGE): whoever
/// looks sees the one or the other, never neither. On the disk when this returns true.
[[nodiscard]] bool exchangeFolders(const QString& one, const QString& other);

/// Removes what was unpacked beside the application's folder, and nothing else: `staged` must be a folder that
/// stagingPrefix begins the name of, and is removed without following links.
bool removeStaged(const QString& staged);

/// The names of folders beside the application's that are not, or no longer, the application.
inline const QString stagingPrefix = QStringLiteral(".loomstreet-staged-");

} // namespace loom
