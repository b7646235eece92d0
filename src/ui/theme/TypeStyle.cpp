#include "ui/theme/TypeStyle.h"

#include "ui/theme/Lettering.h"
#include "ui/theme/Scripts.h"

#include <algorithm>
#include <cmath>

namespace loom
{

namespace
{

/// Too little to see, and enough to keep letters from being joined.
constexpr double apart = 0.0015;

int scaled(double size, double factor)
{
    return static_cast<int>(std::lround(size * factor));
}

} // namespace

TypeStyle::TypeStyle(const TypeTokens& tokens, QObject* parent)
    : QObject(parent)
    , m_tokens(tokens)
    , m_size(tokens.size)
    , m_line(tokens.line)
    , m_family(QString::fromLatin1(tokens.face->family))
    , m_tracking(tokens.tracking)
    , m_capitals(tokens.capitals)
    , m_centredLeading(leading())
{
}

void TypeStyle::apply(double factor, const Lettering& lettering)
{
    m_size = scaled(m_tokens.size, factor);
    m_line = scaled(m_tokens.line, factor);
    m_centredLeading = leading();
    if (!m_tokens.always) {
        const TypeFace& face = *m_tokens.face;
        m_size = std::max(m_size, scaled(lettering.smallest, factor));
        const double leastLine = qstrcmp(face.name, "display") == 0 ? lettering.displayLine : lettering.textLine;
        m_line = std::max(m_line + scaled(lettering.extraLine, factor), scaled(m_size, leastLine));
        m_family = lettering.families ? QLatin1String(face.languageFamily) + QLatin1String(lettering.language)
                                      : QString::fromLatin1(face.family);
        m_capitals = m_tokens.capitals && lettering.cases;
        m_tracking = lettering.cases ? m_tokens.tracking : 0;
        if (!lettering.ligatures && m_tracking == 0)
            m_tracking = apart;
    }
    Q_EMIT changed();
}

double TypeStyle::leading() const
{
    return std::round((m_line - (m_tokens.face->ascent + m_tokens.face->descent) * m_size) / 2);
}

double TypeStyle::rise(int scripts) const
{
    const TypeFace& face = *m_tokens.face;
    double ascent = face.ascent;
    if (scripts & Scripts::Hebrew)
        ascent = std::max(ascent, face.hebrewAscent);
    if (scripts & Scripts::Arabic)
        ascent = std::max(ascent, face.arabicAscent);
    if (scripts & Scripts::Devanagari)
        ascent = std::max(ascent, face.devanagariAscent);
    if (scripts & Scripts::Thai)
        ascent = std::max(ascent, face.thaiAscent);
    if (scripts & Scripts::Han)
        ascent = std::max(ascent, face.hanAscent);
    if (scripts & Scripts::Marks)
        ascent = std::max(ascent, face.markAscent);
    if (scripts & Scripts::Isolates)
        ascent = std::max(ascent, face.isolateAscent);
    if (scripts & Scripts::NarrowSpace)
        ascent = std::max(ascent, face.narrowSpaceAscent);
    return ascent - face.ascent;
}

} // namespace loom
