#include "catalog/DateFormat.h"

#include <QDateTime>

#include <unicode/udat.h>

#include <array>

namespace loom
{

struct DateFormat::Formatter {
    explicit Formatter(AppLanguage language)
    {
        UErrorCode status = U_ZERO_ERROR;
        const QByteArray locale = icuLocale(language);
        day = udat_open(UDAT_NONE, UDAT_MEDIUM, locale.constData(), nullptr, 0, nullptr, 0, &status);
        time = udat_open(UDAT_SHORT, UDAT_NONE, locale.constData(), nullptr, 0, nullptr, 0, &status);
        moment = udat_open(UDAT_SHORT, UDAT_MEDIUM, locale.constData(), nullptr, 0, nullptr, 0, &status);
    }
    Formatter(const Formatter&) = delete;
    Formatter& operator=(const Formatter&) = delete;
    ~Formatter()
    {
        udat_close(day);
        udat_close(time);
        udat_close(moment);
    }

    UDateFormat* day = nullptr;
    UDateFormat* time = nullptr;
    UDateFormat* moment = nullptr;
};

namespace
{

QString format(UDateFormat* formatter, const QDateTime& date)
{
    if (!date.isValid())
        return {};
    std::array<UChar, 96> buffer{};
    UErrorCode status = U_ZERO_ERROR;
    if (formatter) {
        const int length = udat_format(formatter, static_cast<UDate>(date.toMSecsSinceEpoch()), buffer.data(),
                                       static_cast<int32_t>(buffer.size()), nullptr, &status);
        if (U_SUCCESS(status) && status != U_STRING_NOT_TERMINATED_WARNING)
            return QString::fromUtf16(buffer.data(), length);
    }
    return date.toLocalTime().date().toString(Qt::ISODate);
}

} // namespace

DateFormat::DateFormat(AppLanguage language)
{
    setLanguage(language);
}

DateFormat::~DateFormat() = default;

void DateFormat::setLanguage(AppLanguage language)
{
    m_formatter = std::make_unique<Formatter>(language);
}

QString DateFormat::day(const QDateTime& date) const
{
    return format(m_formatter->day, date);
}

QString DateFormat::time(const QDateTime& date) const
{
    return format(m_formatter->time, date);
}

QString DateFormat::moment(const QDateTime& date) const
{
    return format(m_formatter->moment, date);
}

} // namespace loom
