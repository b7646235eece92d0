#include "base/Dates.h"

#include <QRegularExpression>

namespace loom
{

namespace
{

/// RFC 3339: a full date and time with an offset. Qt's own parser would also take half of one.
QDateTime parseInternetDateTime(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral(R"(^(\d{4})-(\d{2})-(\d{2})[Tt](\d{2}):(\d{2}):(\d{2})(?:\.(\d+))?([Zz]|[+-]\d{2}:?\d{2})$)"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return {};
    const auto number = [&match](int group) {
        return match.captured(group).toInt();
    };
    const int milliseconds = match.captured(7).leftJustified(3, QLatin1Char('0'), true).toInt();
    const QDate day(number(1), number(2), number(3));
    const QTime time(number(4), number(5), number(6), milliseconds);
    if (!day.isValid() || !time.isValid())
        return {};
    int offset = 0;
    if (const QString zone = match.captured(8); zone.size() > 1) {
        const int hours = zone.mid(1, 2).toInt();
        const int minutes = zone.right(2).toInt();
        if (hours > 23 || minutes > 59)
            return {};
        offset = (hours * 60 + minutes) * 60 * (zone.startsWith(QLatin1Char('-')) ? -1 : 1);
    }
    return QDateTime(day, time, Qt::UTC).addSecs(-offset);
}

/// "yyyy-MM-dd", or that and "HH:mm:ss" after a blank. Not left to Qt, which would read it as local time and move what
/// the local clock skips when summer time begins.
QDateTime parsePlainDate(const QString& text)
{
    static const QRegularExpression form(QStringLiteral(R"(^(\d{4}-\d{2}-\d{2})(?: (\d{2}:\d{2}:\d{2}))?$)"));
    const QRegularExpressionMatch match = form.match(text);
    const QDate day = QDate::fromString(match.captured(1), Qt::ISODate);
    const QTime time =
        match.hasCaptured(2) ? QTime::fromString(match.captured(2), QStringLiteral("HH:mm:ss")) : QTime(0, 0);
    return day.isValid() && time.isValid() ? QDateTime(day, time, Qt::UTC) : QDateTime();
}

} // namespace

Result<QDateTime, QString> parseDate(const QString& text)
{
    const QString trimmed = text.trimmed();
    if (const QDateTime date = parseInternetDateTime(trimmed); date.isValid())
        return date;
    if (const QDateTime date = parsePlainDate(trimmed); date.isValid())
        return date;
    return Unexpected(QStringLiteral("bad date ") + text);
}

QString formatDate(const QDateTime& date)
{
    return date.toUTC().toString(Qt::ISODateWithMs);
}

} // namespace loom
