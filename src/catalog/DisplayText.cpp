#include "catalog/DisplayText.h"

#include <QStringList>

namespace loom
{

namespace
{

bool isUnwanted(QChar character)
{
    const char16_t code = character.unicode();
    if ((code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069))
        return true; // directional embeddings, overrides and isolates
    if (code == 0xfeff || (code >= 0xfff9 && code <= 0xfffb))
        return true; // byte order mark, interlinear annotation
    return character.category() == QChar::Other_Control && !character.isSpace();
}

} // namespace

QString displayCharacters(QStringView text)
{
    QString kept;
    kept.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        if (character.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            kept.append(character);
            kept.append(text[++i]);
        } else if (character.isSurrogate()) {
            kept.append(QChar(QChar::ReplacementCharacter));
        } else if (!isUnwanted(character)) {
            kept.append(character);
        }
    }
    return kept;
}

QString displayLine(const QString& text, qsizetype limit)
{
    // What is cut off cannot matter unless it stands behind more blanks than any text has.
    const QString kept = displayCharacters(QStringView(text).left(4 * limit));
    QString line = kept.simplified();
    if (line.size() > limit)
        line.truncate(line[limit - 1].isHighSurrogate() ? limit - 1 : limit);
    return line;
}

QString displayText(const QString& text, qsizetype limit)
{
    QString result;
    bool paragraphEnds = false;
    for (const QStringView raw : QStringView(text).left(4 * limit).split(u'\n')) {
        const qsizetype room = limit - result.size() - 2;
        if (room <= 0)
            break;
        const QString line = displayLine(raw.toString(), room);
        if (!line.isEmpty() && !result.isEmpty())
            result += paragraphEnds ? QStringLiteral("\n\n") : QStringLiteral("\n");
        paragraphEnds = line.isEmpty();
        result += line;
    }
    return result;
}

} // namespace loom
