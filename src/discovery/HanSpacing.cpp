#include "discovery/HanSpacing.h"

namespace loom
{

namespace
{

bool isBlank(QChar character)
{
    return character == u' ' || character == QChar(QChar::Nbsp);
}

/// Nothing before this is Han: most texts are done with by it alone.
constexpr char32_t firstHan = 0x2e80;

bool isHan(char32_t character)
{
    return character >= firstHan && QChar::script(character) == QChar::Script_Han;
}

bool endsInHan(QStringView text)
{
    if (text.size() > 1 && text.back().isLowSurrogate() && text[text.size() - 2].isHighSurrogate())
        return isHan(QChar::surrogateToUcs4(text[text.size() - 2], text.back()));
    return !text.isEmpty() && isHan(text.back().unicode());
}

bool beginsWithHan(QStringView text)
{
    if (text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate())
        return isHan(QChar::surrogateToUcs4(text[0], text[1]));
    return !text.isEmpty() && isHan(text.front().unicode());
}

} // namespace

QString withHanSpacing(QString text)
{
    for (qsizetype i = 1; i < text.size(); ++i) {
        if (!isBlank(text.at(i)))
            continue;
        qsizetype end = i + 1;
        while (end < text.size() && isBlank(text.at(end)))
            ++end;
        const QStringView whole(text);
        if (endsInHan(whole.first(i)) && beginsWithHan(whole.sliced(end)))
            text.remove(i, end - i); // what stands at `i` now is no blank
        else
            i = end;
    }
    return text;
}

} // namespace loom
