#include "catalog/BrandIndex.h"

#include <QHash>

#include <algorithm>

namespace loom
{

namespace
{

/// Letters that are one character to Unicode, and something else to whoever looks for the name.
QString plainLetters(QChar letter)
{
    static const QHash<QChar, QString> known{
        {u'æ', QStringLiteral("ae")}, {u'œ', QStringLiteral("oe")}, {u'ø', QStringLiteral("o")},
        {u'ł', QStringLiteral("l")},  {u'đ', QStringLiteral("d")},  {u'ð', QStringLiteral("d")},
        {u'þ', QStringLiteral("th")}, {u'ß', QStringLiteral("ss")}, {u'ı', QStringLiteral("i")}};
    return known.value(letter, letter);
}

QString letterOf(const QString& folded)
{
    const QChar first = folded.isEmpty() ? QChar() : folded.front();
    return first >= u'a' && first <= u'z' ? QString(first.toUpper()) : QStringLiteral("#");
}

} // namespace

QString foldedName(const QString& name)
{
    QString folded;
    for (const QChar character : name.simplified().toLower().normalized(QString::NormalizationForm_KD)) {
        if (!character.isMark())
            folded += plainLetters(character);
    }
    return folded;
}

std::vector<BrandSection> indexOf(const std::vector<Brand>& brands, const QString& filter)
{
    struct Entry {
        QString letter;
        QString folded;
        const Brand* brand;
    };
    const QString wanted = foldedName(filter);
    std::vector<Entry> entries;
    for (const Brand& brand : brands) {
        QString folded = foldedName(brand.name);
        if (folded.contains(wanted))
            entries.push_back({letterOf(folded), std::move(folded), &brand});
    }
    // "#" comes before "A".
    std::ranges::sort(entries, [](const Entry& one, const Entry& other) {
        return std::tie(one.letter, one.folded, one.brand->name) <
               std::tie(other.letter, other.folded, other.brand->name);
    });
    std::vector<BrandSection> sections;
    for (const Entry& entry : entries) {
        if (sections.empty() || sections.back().letter != entry.letter)
            sections.push_back({.letter = entry.letter, .brands = {}});
        sections.back().brands.push_back(*entry.brand);
    }
    return sections;
}

} // namespace loom
