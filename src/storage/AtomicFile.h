#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>

namespace loom
{

/// Replaces the file at `path` in one step with `bytes`, readable and writable by its owner alone (mode 0600). On
/// failure the old file stays as it was and the text says why. Blocks until the bytes are on the disk: call it off
/// the main thread.
[[nodiscard]] Result<void, QString> writeFileAtomically(const QString& path, const QByteArray& bytes);

} // namespace loom
