#include "stylist/EnteredNumber.h"

#include <QStringList>

#include <algorithm>

namespace loom
{

std::optional<double> enteredNumber(const QString& text)
{
    constexpr qsizetype mostDigits = 12;
    constexpr QStringView decimalMarks = u".,٫．";

    QString digits;
    for (const QChar character : text.trimmed().left(mostDigits + 2)) {
        if (character.category() == QChar::Number_DecimalDigit)
            digits += QChar(u'0' + character.digitValue());
        else if (decimalMarks.contains(character))
            digits += u'.';
        else
            return std::nullopt;
    }
    // Digits on both sides of a mark, of which there is at most one.
    const QStringList parts = digits.split(u'.');
    const bool isNumber =
        parts.size() <= 2 && std::ranges::none_of(parts, [](const QString& part) { return part.isEmpty(); });
    return isNumber && digits.size() <= mostDigits ? std::optional(digits.toDouble()) : std::nullopt;
}

} // namespace loom
