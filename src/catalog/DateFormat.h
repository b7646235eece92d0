#pragma once

#include "net/AppLanguage.h"

#include <memory>

class QDateTime;

namespace loom
{

/// Writes dates as the shopper's language does (CLDR), in the time zone of this machine. Main thread.
class DateFormat
{
public:
    explicit DateFormat(AppLanguage language);
    DateFormat(const DateFormat&) = delete;
    DateFormat& operator=(const DateFormat&) = delete;
    ~DateFormat();

    void setLanguage(AppLanguage language);

    /// "Nov 21, 2026"; empty for a date that is none.
    [[nodiscard]] QString day(const QDateTime& date) const;
    /// "3:04 PM"; empty for a date that is none.
    [[nodiscard]] QString time(const QDateTime& date) const;
    /// "Nov 21, 2026, 3:04 PM".
    [[nodiscard]] QString moment(const QDateTime& date) const;

private:
    struct Formatter;
    std::unique_ptr<Formatter> m_formatter;
};

} // namespace loom
