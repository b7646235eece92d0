#pragma once

#include <QDeadlineTimer>
#include <QString>

namespace loom
{

/// Waits until a process has ended, or was none in the first place. False when it still runs at the deadline, or
/// cannot be watched.
[[nodiscard]] bool waitForEnd(qint64 processIdentifier, const QDeadlineTimer& deadline);

/// Waits until no process runs the program in this file, except the calling one. Processes that may not be looked at
/// are somebody else's and do not count.
[[nodiscard]] bool waitUntilUnused(const QString& program, const QDeadlineTimer& deadline);

} // namespace loom
