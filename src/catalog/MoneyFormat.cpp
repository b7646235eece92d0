#include "catalog/MoneyFormat.h"

#include "catalog/Money.h"

#include <unicode/unum.h>

#include <array>

namespace loom
{

struct MoneyFormat::Formatter {
    explicit Formatter(AppLanguage language)
    {
        UErrorCode status = U_ZERO_ERROR;
        const QByteArray locale = appLanguageCode(language).toLatin1();
        number = unum_open(UNUM_CURRENCY, nullptr, 0, locale.constData(), nullptr, &status);
    }
    Formatter(const Formatter&) = delete;
    Formatter& operator=(const Formatter&) = delete;
    ~Formatter() { unum_close(number); }

    UNumberFormat* number = nullptr;
};

MoneyFormat::MoneyFormat(AppLanguage language)
{
    setLanguage(language);
}

MoneyFormat::~MoneyFormat() = default;

void MoneyFormat::setLanguage(AppLanguage language)
{
    m_formatter = std::make_unique<Formatter>(language);
}

QString MoneyFormat::text(const Money& money) const
{
    std::array<UChar, 96> buffer{};
    UErrorCode status = U_ZERO_ERROR;
    QString currency = money.currencyCode.toUpper();
    if (currency.size() == 3 && m_formatter->number) {
        const int length = unum_formatDoubleCurrency(
            m_formatter->number, money.amount, reinterpret_cast<UChar*>(currency.data()), // NOLINT: ICU writes nothing
            buffer.data(), static_cast<int32_t>(buffer.size()), nullptr, &status);
        if (U_SUCCESS(status) && status != U_STRING_NOT_TERMINATED_WARNING)
            return QString::fromUtf16(buffer.data(), length);
    }
    return (QString::number(money.amount, 'f', 2) + QLatin1Char(' ') + money.currencyCode).trimmed();
}

} // namespace loom
