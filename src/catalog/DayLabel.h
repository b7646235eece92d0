#pragma once

#include <QString>

class QDateTime;

namespace loom
{

class DateFormat;

/// The day of a date as a conversation names it: "Today" and "Yesterday" in the language of the window, or the date.
/// Days are those of this machine's time zone.
[[nodiscard]] QString dayLabel(const QDateTime& date, const QDateTime& now, const DateFormat& dates);

} // namespace loom
