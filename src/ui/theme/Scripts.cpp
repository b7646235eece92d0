#include "ui/theme/Scripts.h"

#include <QLocale>

#include <algorithm>

namespace loom
{

int Scripts::of(const QString& text) const
{
    int found = Plain;
    for (const QChar letter : text) {
        const char16_t code = letter.unicode();
        if (code < 0x590)
            continue;
        if (code <= 0x5ff || (code >= 0xfb1d && code <= 0xfb4f))
            found |= Hebrew;
        else if (code <= 0x8ff || (code >= 0xfb50 && code <= 0xfdff) || (code >= 0xfe70 && code <= 0xfefe))
            found |= Arabic;
        else if (code <= 0x97f)
            found |= Devanagari;
        else if (code >= 0xe00 && code <= 0xe7f)
            found |= Thai;
        else if (code == 0x200e || code == 0x200f)
            found |= Marks;
        else if (code >= 0x2066 && code <= 0x2069)
            found |= Isolates;
        else if (code == 0x202f)
            found |= NarrowSpace;
        else if ((code >= 0x1100 && code <= 0x11ff) || (code >= 0x2e80 && code <= 0x9fff) ||
                 (code >= 0xac00 && code <= 0xd7af) || (code >= 0xf900 && code <= 0xfaff) || code >= 0xff00)
            found |= Han;
    }
    return found;
}

bool Scripts::canBeParted(const QString& text) const
{
    return (of(text) & (Arabic | Devanagari | Thai)) == 0;
}

QString Scripts::inCapitals(const QString& text, const QString& language) const
{
    QString byLetter = text;
    std::ranges::transform(byLetter, byLetter.begin(), [](QChar letter) { return letter.toUpper(); });
    const QString byLanguage = QLocale(language).toUpper(text);
    return byLanguage == byLetter ? text : byLanguage;
}

} // namespace loom
