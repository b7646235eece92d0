#include "ui/theme/TypeStyle.h"

#include <cmath>

namespace loom
{

namespace
{

constexpr int arabicExtraLine = 4;

} // namespace

TypeStyle::TypeStyle(const TypeTokens& tokens, QObject* parent)
    : QObject(parent)
    , m_tokens(tokens)
    , m_size(tokens.size)
    , m_line(tokens.line)
{
}

void TypeStyle::apply(double factor, bool arabicScript)
{
    m_arabicScript = arabicScript && !m_tokens.always;
    m_size = static_cast<int>(std::lround(m_tokens.size * factor));
    m_line = static_cast<int>(std::lround(m_tokens.line * factor)) + (m_arabicScript ? arabicExtraLine : 0);
    Q_EMIT changed();
}

double TypeStyle::leading() const
{
    return std::round((m_line - (m_tokens.face->ascent + m_tokens.face->descent) * m_size) / 2);
}

double TypeStyle::arabicLeading() const
{
    return leading() - (m_tokens.face->arabicAscent - m_tokens.face->ascent) * m_size;
}

double TypeStyle::hanLeading() const
{
    return leading() - (m_tokens.face->hanAscent - m_tokens.face->ascent) * m_size;
}

} // namespace loom
