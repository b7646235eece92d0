#include "ui/theme/TypeScale.h"

#include <algorithm>

namespace loom
{

namespace
{

constexpr double largestFactor = 2;

} // namespace

void TypeScale::setFactor(double factor)
{
    const double bounded = std::clamp(factor, 1.0, largestFactor);
    if (bounded == m_factor)
        return;
    m_factor = bounded;
    apply();
}

void TypeScale::setArabicScript(bool arabicScript)
{
    if (arabicScript == m_arabicScript)
        return;
    m_arabicScript = arabicScript;
    apply();
}

TypeStyle* TypeScale::style(const TypeTokens& tokens)
{
    m_styles.append(new TypeStyle(tokens, this));
    return m_styles.last();
}

void TypeScale::apply()
{
    for (TypeStyle* style : m_styles)
        style->apply(m_factor, m_arabicScript);
    Q_EMIT changed();
}

} // namespace loom
