#pragma once

#include "base/Result.h"

#include <QDateTime>
#include <QString>

namespace loom
{

/// Reads a date as the store's servers write it, after trimming blanks. The first form that fits decides:
/// an RFC 3339 date-time with fractional seconds, one without, "yyyy-MM-dd HH:mm:ss" in UTC, "yyyy-MM-dd" at
/// midnight UTC. The result is in UTC. The failure reads "bad date " and the text. Holds no state: any thread.
[[nodiscard]] Result<QDateTime, QString> parseDate(const QString& text);

/// The first of those forms, in UTC, with milliseconds: what the application writes.
[[nodiscard]] QString formatDate(const QDateTime& date);

} // namespace loom
