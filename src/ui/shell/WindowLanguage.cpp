#include "ui/shell/WindowLanguage.h"

#include "catalog/MarketStore.h"

#include <QGuiApplication>

namespace loom
{

WindowLanguage::WindowLanguage(Wording wording, QObject* parent)
    : QObject(parent)
    , m_wording(wording)
    , m_formerDirection(QGuiApplication::layoutDirection())
    , m_pseudo(m_texts)
{
    QCoreApplication::installTranslator(wording == Wording::Pseudo ? static_cast<QTranslator*>(&m_pseudo) : &m_texts);
    applyLocale();
}

WindowLanguage::~WindowLanguage()
{
    // A translator takes itself out.
    QLocale::setDefault(m_formerLocale);
    QGuiApplication::setLayoutDirection(m_formerDirection);
}

Qt::LayoutDirection WindowLanguage::directionIn(AppLanguage language) const
{
    const bool isRightToLeft = appLocale(language).textDirection() == Qt::RightToLeft;
    return isRightToLeft == (m_formerDirection == Qt::RightToLeft) ? Qt::LeftToRight : Qt::RightToLeft;
}

void WindowLanguage::applyLocale()
{
    QLocale::setDefault(appLocale(m_language));
    QGuiApplication::setLayoutDirection(directionIn(m_language));
}

const QTranslator& WindowLanguage::translator() const
{
    return m_wording == Wording::Pseudo ? static_cast<const QTranslator&>(m_pseudo) : m_texts;
}

void WindowLanguage::speak(AppLanguage language)
{
    if (std::exchange(m_language, language) == language)
        return;
    // The texts of those who make the window are made from the English.
    if (m_wording == Wording::Translated)
        m_texts.setLanguage(language);
    if (directionIn(language) != QGuiApplication::layoutDirection())
        Q_EMIT directionChanging();
    applyLocale();
    Q_EMIT changed();
}

void WindowLanguage::follow(const MarketStore& market)
{
    connect(&market, &MarketStore::languageChanged, this, [this, &market] { speak(market.context().language); });
    speak(market.context().language);
}

} // namespace loom
