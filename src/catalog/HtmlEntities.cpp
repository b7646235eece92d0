#include "catalog/HtmlEntities.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <utility>

namespace loom
{

namespace
{

constexpr char32_t firstLatin1 = 160;
constexpr char32_t firstWindows = 128;
constexpr qsizetype longestReference = 32;

/// The names of U+00A0 to U+00FF, in order.
constexpr std::array latin1Names{
    "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",   "uml",    "copy",   "ordf",
    "laquo",  "not",    "shy",    "reg",    "macr",   "deg",    "plusmn", "sup2",   "sup3",   "acute",  "micro",
    "para",   "middot", "cedil",  "sup1",   "ordm",   "raquo",  "frac14", "frac12", "frac34", "iquest", "Agrave",
    "Aacute", "Acirc",  "Atilde", "Auml",   "Aring",  "AElig",  "Ccedil", "Egrave", "Eacute", "Ecirc",  "Euml",
    "Igrave", "Iacute", "Icirc",  "Iuml",   "ETH",    "Ntilde", "Ograve", "Oacute", "Ocirc",  "Otilde", "Ouml",
    "times",  "Oslash", "Ugrave", "Uacute", "Ucirc",  "Uuml",   "Yacute", "THORN",  "szlig",  "agrave", "aacute",
    "acirc",  "atilde", "auml",   "aring",  "aelig",  "ccedil", "egrave", "eacute", "ecirc",  "euml",   "igrave",
    "iacute", "icirc",  "iuml",   "eth",    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide",
    "oslash", "ugrave", "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml"};
static_assert(latin1Names.size() == 96);

constexpr std::array<std::pair<const char*, char16_t>, 39> otherNames{{
    {"amp", u'&'},      {"lt", u'<'},       {"gt", u'>'},       {"quot", u'"'},     {"apos", u'\''},
    {"OElig", 0x0152},  {"oelig", 0x0153},  {"Scaron", 0x0160}, {"scaron", 0x0161}, {"ensp", 0x2002},
    {"emsp", 0x2003},   {"thinsp", 0x2009}, {"zwnj", 0x200c},   {"zwj", 0x200d},    {"lrm", 0x200e},
    {"rlm", 0x200f},    {"ndash", 0x2013},  {"mdash", 0x2014},  {"lsquo", 0x2018},  {"rsquo", 0x2019},
    {"sbquo", 0x201a},  {"ldquo", 0x201c},  {"rdquo", 0x201d},  {"bdquo", 0x201e},  {"dagger", 0x2020},
    {"bull", 0x2022},   {"hellip", 0x2026}, {"permil", 0x2030}, {"prime", 0x2032},  {"Prime", 0x2033},
    {"lsaquo", 0x2039}, {"rsaquo", 0x203a}, {"euro", 0x20ac},   {"trade", 0x2122},  {"larr", 0x2190},
    {"rarr", 0x2192},   {"minus", 0x2212},  {"hearts", 0x2665}, {"NewLine", u'\n'},
}};

/// Numbers 128 to 159 name control characters; who writes them means the characters of Windows-1252.
constexpr std::array<char16_t, 32> windowsCharacters{0x20ac, 0x81,   0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021,
                                                     0x02c6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8d,   0x017d, 0x8f,
                                                     0x90,   0x2018, 0x2019, 0x201c, 0x201d, 0x2022, 0x2013, 0x2014,
                                                     0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0x9d,   0x017e, 0x0178};

QHash<QString, char16_t> makeNames()
{
    QHash<QString, char16_t> names;
    for (std::size_t i = 0; i < latin1Names.size(); ++i)
        names.insert(QLatin1String(latin1Names[i]), static_cast<char16_t>(firstLatin1 + i));
    for (const auto& [name, character] : otherNames)
        names.insert(QLatin1String(name), character);
    return names;
}

QString numbered(QStringView digits, int base)
{
    const auto isDigit = [base](QChar character) {
        const char16_t code = character.toLower().unicode();
        return (code >= u'0' && code <= u'9') || (base == 16 && code >= u'a' && code <= u'f');
    };
    if (digits.isEmpty() || !std::ranges::all_of(digits, isDigit))
        return {};
    bool fits = false;
    const char32_t code = digits.toUInt(&fits, base);
    if (fits && code >= firstWindows && code < firstLatin1)
        return QChar(windowsCharacters[code - firstWindows]);
    if (!fits || code == 0 || code > QChar::LastValidCodePoint || QChar::isSurrogate(code))
        return QChar(QChar::ReplacementCharacter);
    return QString::fromUcs4(&code, 1);
}

/// The characters that `name`, without "&" and ";", stands for; empty when it is no reference.
QString referenced(QStringView name)
{
    static const QHash<QString, char16_t> names = makeNames();
    if (name.startsWith(u"#x") || name.startsWith(u"#X"))
        return numbered(name.mid(2), 16);
    if (name.startsWith(u'#'))
        return numbered(name.mid(1), 10);
    const auto found = names.constFind(name.toString());
    return found == names.cend() ? QString() : QString(QChar(*found));
}

} // namespace

QString decodedEntities(QStringView text)
{
    QString result;
    result.reserve(text.size());
    while (!text.isEmpty()) {
        const qsizetype start = text.indexOf(u'&');
        result.append(text.left(start < 0 ? text.size() : start));
        if (start < 0)
            break;
        text = text.mid(start);
        const qsizetype end = text.left(longestReference).indexOf(u';');
        const QString characters = end > 1 ? referenced(text.mid(1, end - 1)) : QString();
        result.append(characters.isEmpty() ? QStringLiteral("&") : characters);
        text = text.mid(characters.isEmpty() ? 1 : end + 1);
    }
    return result;
}

} // namespace loom
