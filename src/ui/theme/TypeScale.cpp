#include "ui/theme/TypeScale.h"

#include "ui/theme/Lettering.h"

#include <QElapsedTimer>

#include <algorithm>

namespace loom
{

namespace
{

constexpr double largestFactor = 2;
constexpr int slice = 6; // milliseconds

} // namespace

void TypeScale::setFactor(double factor)
{
    const double bounded = std::clamp(factor, 1.0, largestFactor);
    if (bounded == m_factor)
        return;
    m_factor = bounded;
    const Lettering& lettering = letteringOf(m_language);
    for (TypeStyle* style : m_styles)
        style->apply(m_factor, lettering);
    m_waiting.clear();
    Q_EMIT changed();
}

void TypeScale::setLanguage(const QString& language)
{
    if (language == m_language)
        return;
    const bool areOtherLetters = &letteringOf(language) != &letteringOf(m_language);
    m_language = language;
    Q_EMIT languageChanged();
    if (!areOtherLetters)
        return;
    m_waiting = m_styles;
    applyForAWhile();
}

QString TypeScale::figuresFamily() const
{
    const QString family = QStringLiteral("Loomstreet Figures");
    return letteringOf(m_language).families ? family + u' ' + m_language : family;
}

void TypeScale::timerEvent(QTimerEvent* /*event*/)
{
    applyForAWhile();
}

TypeStyle* TypeScale::style(const TypeTokens& tokens)
{
    m_styles.append(new TypeStyle(tokens, this));
    return m_styles.last();
}

void TypeScale::applyForAWhile()
{
    const Lettering& lettering = letteringOf(m_language);
    QElapsedTimer spent;
    spent.start();
    while (!m_waiting.isEmpty() && spent.elapsed() < slice)
        m_waiting.takeLast()->apply(m_factor, lettering);
    if (m_waiting.isEmpty())
        m_next.stop();
    else if (!m_next.isActive())
        m_next.start(0, this);
}

} // namespace loom
