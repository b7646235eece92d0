#include "base/FoldedText.h"

#include <QStringList>

#include <algorithm>

namespace loom
{

namespace
{

/// Letters that have no decomposition and are typed as others.
QLatin1String typedAs(QChar letter)
{
    switch (letter.unicode()) {
    case u'ø':
        return QLatin1String("o");
    case u'ł':
        return QLatin1String("l");
    case u'đ':
    case u'ð':
        return QLatin1String("d");
    case u'ı':
        return QLatin1String("i");
    case u'æ':
        return QLatin1String("ae");
    case u'œ':
        return QLatin1String("oe");
    case u'ß':
        return QLatin1String("ss");
    case u'þ':
        return QLatin1String("th");
    default:
        return {};
    }
}

bool standsAlone(QChar letter)
{
    const QChar::Script script = letter.script();
    return script == QChar::Script_Han || script == QChar::Script_Hiragana || script == QChar::Script_Katakana;
}

bool isApostrophe(QChar character)
{
    return character == u'\'' || character == u'’' || character == u'ʼ';
}

class Folding
{
public:
    explicit Folding(QList<int>* origins)
        : m_origins(origins)
    {
    }

    QString run(const QString& original)
    {
        m_text.reserve(original.size() + 1);
        for (qsizetype i = 0; i < original.size(); ++i) {
            m_origin = static_cast<int>(i);
            const QChar character = original[i];
            if (character.unicode() < 0x80) {
                add(character.isLetter() ? QChar(character.unicode() | 0x20) : character);
                continue;
            }
            const bool isPair = character.isHighSurrogate() && i + 1 < original.size();
            for (const QChar part : original.mid(i, isPair ? 2 : 1).normalized(QString::NormalizationForm_KD))
                addDecomposed(part);
            if (isPair)
                ++i;
        }
        if (m_text == QLatin1String(" "))
            return {};
        return m_text;
    }

private:
    void addDecomposed(QChar part)
    {
        if (part.isMark())
            return;
        const QChar letter = part.toCaseFolded();
        const QLatin1String others = typedAs(letter);
        if (others.isEmpty())
            add(letter);
        for (const char other : others)
            add(QLatin1Char(other));
    }

    void add(QChar character)
    {
        if (isApostrophe(character))
            return;
        if (!character.isLetterOrNumber() && !character.isSurrogate()) {
            m_isInWord = false;
            return;
        }
        if (!m_isInWord || standsAlone(character))
            put(u' ');
        put(character);
        m_isInWord = true;
    }

    void put(QChar character)
    {
        m_text.append(character);
        if (m_origins)
            m_origins->append(m_origin);
    }

    QList<int>* m_origins;
    QString m_text;
    int m_origin = 0;
    bool m_isInWord = false;
};

} // namespace

QString FoldedText::fold(const QString& original)
{
    return Folding(nullptr).run(original);
}

FoldedText FoldedText::withOrigins(const QString& original)
{
    FoldedText folded;
    folded.text = Folding(&folded.origins).run(original);
    return folded;
}

bool matchesWords(const QString& text, const QString& typed)
{
    const QList<QStringView> words = QStringView(typed).split(u' ', Qt::SkipEmptyParts);
    return !words.isEmpty() && std::ranges::all_of(words, [&](QStringView word) {
        return text.contains(QStringView(typed).mid(word.data() - typed.constData() - 1, word.size() + 1));
    });
}

TextSpan lastWordMatch(const QString& text, const QString& typed)
{
    const QString wanted = FoldedText::fold(typed);
    const qsizetype last = wanted.lastIndexOf(u' ');
    if (last < 0)
        return {};
    const FoldedText folded = FoldedText::withOrigins(text);
    const QString word = wanted.mid(last);
    const qsizetype found = folded.text.indexOf(word);
    if (found < 0)
        return {};
    const int start = folded.origins[found + 1];
    // A letter that folds to two is taken whole, and its accents with it.
    int stop = folded.origins[found + word.size() - 1] + 1;
    while (stop < text.size() && (text[stop].isMark() || text[stop].isLowSurrogate()))
        ++stop;
    return {.start = start, .length = stop - start};
}

} // namespace loom
