#include "account/ProfileRules.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace loom
{

namespace
{

constexpr int firstYear = 1900;
constexpr qsizetype fewestDigits = 5;
constexpr qsizetype longestPhone = 30;

/// With blanks that keep it together, and a mark that keeps it in order where lines begin on the right.
const QString examplePhone = QStringLiteral("\u200e+1\u00a0212\u00a0555\u00a00100");

/// Any day with two figures for each of its parts serves as an example.
constexpr int exampleYear = 1990;
constexpr int exampleMonth = 10;
constexpr int exampleDay = 24;

/// The short form of the place, with the year in full.
QString dayFormat(const QLocale& locale)
{
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (!format.contains(QLatin1String("yyyy")))
        format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    return format;
}

/// What the long form of the place has of month and year, with what it writes between them.
QString monthFormat(const QLocale& locale)
{
    static const QRegularExpression yearFirst(QStringLiteral("(yyyy[^dM]*M+[^d]*)d"));
    static const QRegularExpression monthFirst(QStringLiteral("M+(?:\\s|,|'[^']*')*yyyy"));
    const QString format = locale.dateFormat(QLocale::LongFormat);
    if (const QRegularExpressionMatch match = yearFirst.match(format); match.hasMatch())
        return match.captured(1).trimmed();
    const QRegularExpressionMatch match = monthFirst.match(format);
    return match.hasMatch() ? match.captured() : QStringLiteral("MMMM yyyy");
}

/// Every run of digits, of whatever script.
QStringList numbersIn(const QString& text)
{
    QStringList numbers;
    bool isWithin = false;
    for (const QChar letter : text) {
        const int digit = letter.digitValue();
        if (digit >= 0 && !isWithin)
            numbers.append(QString());
        if (digit >= 0)
            numbers.last().append(QLatin1Char(static_cast<char>('0' + digit)));
        isWithin = digit >= 0;
    }
    return numbers;
}

} // namespace

ProfileFlaw checkName(const QString& name)
{
    return name.trimmed().size() > longestName ? ProfileFlaw::NameTooLong : ProfileFlaw::None;
}

ProfileFlaw checkPhone(const QString& phone)
{
    const QString text = phone.trimmed();
    const auto isDigit = [](QChar letter) {
        return letter >= QLatin1Char('0') && letter <= QLatin1Char('9');
    };
    const auto isAllowed = [&isDigit](QChar letter) {
        return isDigit(letter) || QStringLiteral(" +-()").contains(letter);
    };
    const bool isRight = text.size() <= longestPhone && std::ranges::all_of(text, isAllowed) &&
                         std::ranges::count_if(text, isDigit) >= fewestDigits;
    return text.isEmpty() || isRight ? ProfileFlaw::None : ProfileFlaw::NotAPhone;
}

ProfileFlaw checkBirthday(const QString& text, const QLocale& locale, QDate today)
{
    if (text.trimmed().isEmpty())
        return ProfileFlaw::None;
    const QDate day = parseDay(text, locale);
    if (!day.isValid() || day.year() < firstYear)
        return ProfileFlaw::NotADate;
    return day < today ? ProfileFlaw::None : ProfileFlaw::NotInThePast;
}

QString flawText(ProfileFlaw flaw, const QLocale& locale)
{
    switch (flaw) {
    case ProfileFlaw::None:
        return {};
    case ProfileFlaw::NameTooLong:
        return QCoreApplication::translate("Loomstreet", "Use at most %Ln characters.", nullptr, longestName);
    case ProfileFlaw::NotAPhone:
        return QCoreApplication::translate("Loomstreet", "Enter a phone number, such as %1.").arg(examplePhone);
    case ProfileFlaw::NotADate:
        return QCoreApplication::translate("Loomstreet", "Enter a date, such as %1.").arg(exampleDayText(locale));
    case ProfileFlaw::NotInThePast:
        return QCoreApplication::translate("Loomstreet", "Enter a date in the past.");
    }
    return {};
}

QString dayText(QDate day, const QLocale& locale)
{
    return locale.toString(day, dayFormat(locale));
}

QString exampleDayText(const QLocale& locale)
{
    return dayText(QDate(exampleYear, exampleMonth, exampleDay), locale);
}

QString monthText(QDate day, const QLocale& locale, MonthForm form)
{
    QString format = monthFormat(locale);
    if (form == MonthForm::OnItsOwn)
        format.replace(QLatin1String("MMMM"),
                       QLatin1Char('\'') + locale.standaloneMonthName(day.month()) + QLatin1Char('\''));
    return locale.toString(day, format);
}

QDate parseDay(const QString& text, const QLocale& locale)
{
    const QStringList numbers = numbersIn(text);
    if (numbers.size() != 3 || text.size() > 40)
        return {};
    QString order; // of the parts, a letter each
    if (numbers.first().size() == 4) {
        order = QStringLiteral("yMd");
    } else {
        for (const QChar letter : dayFormat(locale)) {
            if (QStringLiteral("dMy").contains(letter) && !order.contains(letter))
                order.append(letter);
        }
    }
    const auto part = [&](char letter) {
        return numbers.value(order.indexOf(QLatin1Char(letter)));
    };
    if (part('y').size() != 4)
        return {};
    return {part('y').toInt(), part('M').toInt(), part('d').toInt()};
}

} // namespace loom
