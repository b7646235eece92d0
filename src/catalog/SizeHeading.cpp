#include "catalog/SizeHeading.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace loom
{

namespace
{

/// Captures centimetres (1) or kilograms (2), except right behind a number.
const QRegularExpression& metricWord()
{
    static const QRegularExpression pattern(
        QStringLiteral(R"((?<!\d)(?<!\d\s)\b(?:(cm|centimet(?:re|er)s?)|(kg|kilos?|kilogram(?:me)?s?))\b)"),
        QRegularExpression::CaseInsensitiveOption);
    return pattern;
}

/// "in" is a unit where no word follows, and a preposition in "measured in cm".
const QRegularExpression& fixedWord()
{
    static const QRegularExpression pattern(
        QStringLiteral(
            R"((?<!\d)(?<!\d\s)(?:\b(?:inch(?:es)?|ft|feet|lbs?|pounds?|oz|mm|g)\b|\bin\b(?!\s+\w)|[(/]\s*["″]))"),
        QRegularExpression::CaseInsensitiveOption);
    return pattern;
}

QString imperialWord(const QRegularExpressionMatch& match, const QString& before)
{
    const QString metric = match.captured();
    QString word;
    if (match.hasCaptured(2))
        word = metric.size() == 2 ? QStringLiteral("lbs") : QStringLiteral("pounds");
    else if (metric.size() > 2 || before.endsWith(QLatin1String(" in "), Qt::CaseInsensitive))
        word = QStringLiteral("inches");
    else
        word = QStringLiteral("in");
    return metric == metric.toUpper() ? word.toUpper() : word;
}

} // namespace

StatedUnit statedUnit(const QString& heading)
{
    if (fixedWord().match(heading).hasMatch())
        return StatedUnit::Fixed;
    StatedUnit stated = StatedUnit::None;
    for (auto matches = metricWord().globalMatch(heading); matches.hasNext();) {
        const StatedUnit unit = matches.next().hasCaptured(2) ? StatedUnit::Kilograms : StatedUnit::Centimetres;
        if (stated != StatedUnit::None && stated != unit)
            return StatedUnit::Fixed;
        stated = unit;
    }
    return stated;
}

bool namesSizes(const QString& heading)
{
    static const QRegularExpression notWord(QStringLiteral(R"([^\p{L}\p{N}]+)"));
    static const QStringList known =
        QStringLiteral(
            "age alpha au br cn cup de eu eur fit fr int international it jp kr label letter months no number "
            "numeric ru size sizes standard uk us usa year years größe größen maat storlek taglia talla "
            "tamanho サイズ 尺码")
            .split(u' ');
    const QStringList words = QString(heading).remove(metricWord()).toLower().split(notWord, Qt::SkipEmptyParts);
    return !words.isEmpty() && std::ranges::all_of(words, [](const QString& word) { return known.contains(word); });
}

QString imperialHeading(const QString& heading)
{
    QString result;
    qsizetype done = 0;
    for (auto matches = metricWord().globalMatch(heading); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        result += heading.mid(done, match.capturedStart() - done);
        result += imperialWord(match, u' ' + heading.left(match.capturedStart()));
        done = match.capturedEnd();
    }
    return result + heading.mid(done);
}

} // namespace loom
