#include "catalog/SizeCell.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <optional>

namespace loom
{

namespace
{

constexpr double centimetresPerInch = 2.54;
constexpr double poundsPerKilogram = 2.204622621849;

QRegularExpression pattern(const QString& text)
{
    return QRegularExpression(text, QRegularExpression::CaseInsensitiveOption);
}

/// Captures a number (1) and, with `repetition` "?" perhaps, the end of a range (2).
QString rangePattern(const QString& repetition = {})
{
    const QString number = QStringLiteral(R"((?<![\d.,])(\d{1,5}(?:\.\d+|,\d{1,2})?))");
    return number + QStringLiteral(R"((?:\s*[-‐‑–—−~～]\s*)") + number + u')' + repetition;
}

QRegularExpressionMatch bareMeasure(const QString& cell)
{
    static const QRegularExpression bare = pattern(u'^' + rangePattern(QStringLiteral("?")) + u'$');
    return bare.match(cell);
}

bool isImperialCell(const QString& cell)
{
    static const QRegularExpression imperial = pattern(QStringLiteral(R"(["]|\blbs\b|\bin\b|\d\s*['’]\s*\d)"));
    return imperial.match(cell).hasMatch();
}

bool hasNumber(const QString& text)
{
    return std::ranges::any_of(text, [](QChar character) { return character.isNumber(); });
}

/// `low` or "low – high", converted; none when it is too little to be said in that unit.
std::optional<QString> converted(const QString& low, const QString& high, StatedUnit unit)
{
    const auto convert = [unit](QString number) -> std::optional<QString> {
        const bool hasComma = number.contains(u',');
        const double value = number.replace(u',', u'.').toDouble();
        const double result = unit == StatedUnit::Kilograms ? std::round(value * poundsPerKilogram)
                                                            : std::round(value / centimetresPerInch * 2) / 2;
        if (result == 0 && value > 0)
            return std::nullopt;
        const QString text = QString::number(result);
        return hasComma ? QString(text).replace(u'.', u',') : text;
    };
    std::optional<QString> first = convert(low);
    if (high.isEmpty() || !first)
        return first;
    std::optional<QString> last = convert(high);
    if (!last || *last == *first)
        return last;
    return *first + QStringLiteral(" – ") + *last;
}

/// Every measure of `cell` with a metric unit, converted.
std::optional<QString> convertedMeasures(const QString& cell)
{
    static const QRegularExpression measure =
        pattern(rangePattern(QStringLiteral("?")) + QStringLiteral(R"(\s*(cm|kg)\b)"));
    QString result;
    QString rest;
    qsizetype done = 0;
    for (auto matches = measure.globalMatch(cell); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const bool isWeight = match.captured(3).compare(QLatin1String("kg"), Qt::CaseInsensitive) == 0;
        const auto value =
            converted(match.captured(1), match.captured(2), isWeight ? StatedUnit::Kilograms : StatedUnit::Centimetres);
        if (!value)
            return std::nullopt;
        const QString between = cell.mid(done, match.capturedStart() - done);
        rest += between;
        result += between + *value + (isWeight ? QStringLiteral(" lbs") : QStringLiteral(" in"));
        done = match.capturedEnd();
    }
    rest += cell.mid(done);
    if (hasNumber(rest))
        return std::nullopt;
    return result + cell.mid(done);
}

/// A cell that is nothing but a number or a range of the unit `stated`, converted.
std::optional<QString> convertedBare(const QString& cell, StatedUnit stated)
{
    const QRegularExpressionMatch match = bareMeasure(cell);
    if (!match.hasMatch() || (stated != StatedUnit::Centimetres && stated != StatedUnit::Kilograms))
        return std::nullopt;
    return converted(match.captured(1), match.captured(2), stated);
}

QString withEnDash(const QString& cell)
{
    static const QRegularExpression range =
        pattern(u'^' + rangePattern() + QStringLiteral(R"((\s*(?:[a-z]+|["”″])?)$)"));
    const QRegularExpressionMatch match = range.match(cell);
    return match.hasMatch() ? match.captured(1) + QStringLiteral(" – ") + match.captured(2) + match.captured(3) : cell;
}

} // namespace

bool isBareMeasure(const QString& cell)
{
    return bareMeasure(cell.simplified()).hasMatch();
}

bool isMetricCell(const QString& cell)
{
    static const QRegularExpression metric = pattern(QStringLiteral(R"(\d\s*(cm|kg|mm)\b)"));
    return metric.match(cell).hasMatch();
}

bool canSwitch(const QString& cell, StatedUnit stated)
{
    static const QRegularExpression ownUnit =
        pattern(QStringLiteral(R"(\d\s*(?:in|inch|inches|lb|lbs|ft)\b|\d\s*[”″])"));
    const QString text = cell.simplified();
    return !hasNumber(text) || isMetricCell(text) || isImperialCell(text) || ownUnit.match(text).hasMatch() ||
           convertedBare(text, stated).has_value();
}

QString sizeCell(const QString& cell, SizeUnit unit, StatedUnit stated)
{
    static const QRegularExpression both = pattern(QStringLiteral(R"(^(.*?(?:cm|kg|mm))\s*/\s*(.+)$)"));
    const QString text = cell.simplified();
    const QRegularExpressionMatch parts = both.match(text);
    // "84 cm / 88 cm" and the heading "Bust (cm / in)" have the form but do not hold both.
    if (parts.hasMatch() && isMetricCell(parts.captured(1)) &&
        (!isMetricCell(parts.captured(2)) || isImperialCell(parts.captured(2))))
        return withEnDash(parts.captured(unit == SizeUnit::Metric ? 1 : 2));
    if (unit == SizeUnit::Metric)
        return withEnDash(text);
    const auto shown = isMetricCell(text) ? convertedMeasures(text) : convertedBare(text, stated);
    return shown ? *shown : withEnDash(text);
}

} // namespace loom
