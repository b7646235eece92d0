#include "base/Dates.h"

#include <ctime>

using namespace loom;

namespace
{

/// Lives in another time zone for a while; the zone in POSIX form.
class TimeZone
{
public:
    explicit TimeZone(const char* zone)
        : m_before(qgetenv("TZ"))
    {
        qputenv("TZ", zone);
        tzset();
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;
    ~TimeZone()
    {
        qputenv("TZ", m_before);
        tzset();
    }

private:
    QByteArray m_before;
};

QString read(const char* text)
{
    const Result<QDateTime, QString> date = parseDate(QString::fromUtf8(text));
    if (!date)
        return date.error();
    EXPECT_EQ(date->timeSpec(), Qt::UTC) << text;
    return formatDate(*date);
}

TEST(Dates, EveryFormIsReadAsItsMomentInUtc)
{
    struct Row {
        const char* text;
        const char* moment;
    };
    for (const Row& row : {
             Row{"2025-03-09T08:07:06Z", "2025-03-09T08:07:06.000Z"},
             Row{"2025-03-09t08:07:06z", "2025-03-09T08:07:06.000Z"},
             Row{"2025-03-09T08:07:06.5Z", "2025-03-09T08:07:06.500Z"},
             Row{"2025-03-09T08:07:06.02+05:45", "2025-03-09T02:22:06.020Z"},
             Row{"2025-01-01T00:30:00+01:00", "2024-12-31T23:30:00.000Z"},
             Row{"2025-03-09 08:07:06", "2025-03-09T08:07:06.000Z"},
             Row{"2025-03-09", "2025-03-09T00:00:00.000Z"},
             Row{" \t2025-03-09\n", "2025-03-09T00:00:00.000Z"},
         })
        EXPECT_EQ(read(row.text), QLatin1String(row.moment)) << row.text;
}

TEST(Dates, ATextThatIsNoDateFailsWithTheText)
{
    const char* const none = "| |yesterday|2025|2025-02-29|2025-13-01|2025-00-10|0000-01-01|2025-3-9|2025-03- 9|"
                             "2025- 3-09|+025-03-09|-025-03-09|2025/03/09|"
                             "\xD9\xA2\xD9\xA0\xD9\xA2\xD9\xA5-\xD9\xA0\xD9\xA3-\xD9\xA0\xD9\xA9|2025-03-09 8:07:06|"
                             "2025-03-09 08:07: 6|2025-03-09 24:00:00|2025-03-09 08:07:06Z|2025-03-09T08:07:06|"
                             "2025-03-09T08:07Z|2025-03-09T24:00:00Z|2025-03-09T08:60:00Z|2025-03-09T08:07:06.Z|"
                             "2025-03-09T08:07:06ZZ|2025-03-09T08:07:06+24:00|2025-03-09T08:07:06+01:60|"
                             "2025-03-09T08:07:06 UTC|1741507626";
    for (const QString& text : QString::fromUtf8(none).split(u'|'))
        EXPECT_EQ(read(text.toUtf8().constData()), QStringLiteral("bad date ") + text);
}

TEST(Dates, AMomentThatTheLocalClockSkipsIsRead)
{
    // Summer time begins on 7 September 2025 at midnight here, and at three in the morning there.
    const TimeZone midnight("AAA4BBB,M9.1.0/0,M4.1.0/0");
    EXPECT_EQ(read("2025-09-07"), QStringLiteral("2025-09-07T00:00:00.000Z"));
    EXPECT_EQ(read("2025-09-07 00:30:00"), QStringLiteral("2025-09-07T00:30:00.000Z"));
    const TimeZone night("AAA-1BBB,M9.1.0/3,M4.1.0/3");
    EXPECT_EQ(read("2025-09-07 03:30:00"), QStringLiteral("2025-09-07T03:30:00.000Z"));
    EXPECT_EQ(read("2025-04-06 02:30:00"), QStringLiteral("2025-04-06T02:30:00.000Z"));
}

} // namespace
