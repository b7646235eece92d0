#include "catalog/MoneyFormat.h"

#include "catalog/Money.h"

#include <unicode/unum.h>

#include <array>
#include <cmath>

namespace loom
{

struct MoneyFormat::Formatter {
    explicit Formatter(AppLanguage language)
    {
        UErrorCode status = U_ZERO_ERROR;
        const QByteArray locale = icuLocale(language);
        number = unum_open(UNUM_CURRENCY, nullptr, 0, locale.constData(), nullptr, &status);
        round = unum_open(UNUM_CURRENCY, nullptr, 0, locale.constData(), nullptr, &status);
        if (round)
            unum_setAttribute(round, UNUM_MAX_FRACTION_DIGITS, 0);
    }
    Formatter(const Formatter&) = delete;
    Formatter& operator=(const Formatter&) = delete;
    ~Formatter()
    {
        unum_close(number);
        unum_close(round);
    }

    UNumberFormat* number = nullptr;
    UNumberFormat* round = nullptr; ///< without decimals
};

namespace
{

/// Where lines begin on the right, the sign at the end of "US$" would leave the letters that it belongs to, and a
/// number below zero would draw its currency to the side that those above do not have it on.
QString withSignKept(QString text)
{
    constexpr QChar leftToRightMark(0x200e);
    constexpr QChar rightToLeftMark(0x200f);
    const bool endsWithSign = text.size() > 1 && text.back().category() == QChar::Symbol_Currency &&
                              text.at(text.size() - 2).script() == QChar::Script_Latin;
    if (!endsWithSign || !text.startsWith(rightToLeftMark))
        return text;
    const qsizetype space = text.lastIndexOf(QChar::Nbsp);
    if (text.at(1) == leftToRightMark && space > 0)
        text.insert(space, rightToLeftMark);
    return text + leftToRightMark;
}

QString format(UNumberFormat* formatter, const Money& money)
{
    std::array<UChar, 96> buffer{};
    UErrorCode status = U_ZERO_ERROR;
    QString currency = money.currencyCode.toUpper();
    if (currency.size() == 3 && formatter) {
        const int length =
            unum_formatDoubleCurrency(formatter, money.amount,
                                      reinterpret_cast<UChar*>(currency.data()), // NOLINT: ICU writes nothing
                                      buffer.data(), static_cast<int32_t>(buffer.size()), nullptr, &status);
        if (U_SUCCESS(status) && status != U_STRING_NOT_TERMINATED_WARNING)
            return withSignKept(QString::fromUtf16(buffer.data(), length));
    }
    return (QString::number(money.amount, 'f', 2) + QLatin1Char(' ') + money.currencyCode).trimmed();
}

} // namespace

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
    return format(m_formatter->number, money);
}

QString MoneyFormat::roundText(const Money& money) const
{
    const bool isWhole = std::round(money.amount) == money.amount;
    return format(isWhole ? m_formatter->round : m_formatter->number, money);
}

} // namespace loom
