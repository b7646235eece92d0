#include "catalog/DayLabel.h"

#include "catalog/DateFormat.h"

#include <QCoreApplication>
#include <QDateTime>

namespace loom
{

QString dayLabel(const QDateTime& date, const QDateTime& now, const DateFormat& dates)
{
    const qint64 age = date.toLocalTime().date().daysTo(now.toLocalTime().date());
    if (age == 0)
        return QCoreApplication::translate("Loomstreet", "Today");
    if (age == 1)
        return QCoreApplication::translate("Loomstreet", "Yesterday");
    return dates.day(date);
}

} // namespace loom
