#pragma once

#include "net/AppLanguage.h"
#include "services/PseudoTranslator.h"
#include "services/WindowTranslator.h"

#include <QLocale>
#include <QObject>

namespace loom
{

class MarketStore;

/// Has the whole application speak one language: its texts, the form of numbers and dates, and the direction in which
/// it is read. One per process, before its first window; main thread.
class WindowLanguage final : public QObject
{
    Q_OBJECT

public:
    enum class Wording { Translated, Pseudo };

    explicit WindowLanguage(Wording wording = Wording::Translated, QObject* parent = nullptr);
    ~WindowLanguage() override;

    [[nodiscard]] AppLanguage language() const { return m_language; }
    /// What the window's texts are looked up in.
    [[nodiscard]] const QTranslator& translator() const;

    void speak(AppLanguage language);
    /// From now on the market's, before anybody else hears of a change.
    void follow(const MarketStore& market);

Q_SIGNALS:
    /// From left to right, or the other way round, is about to become the other.
    void directionChanging();
    /// What was looked up before is in another language.
    void changed();

private:
    /// Where its lines begin; the other end for who started the application in reverse.
    [[nodiscard]] Qt::LayoutDirection directionIn(AppLanguage language) const;
    void applyLocale();

    Wording m_wording;
    QLocale m_formerLocale;
    Qt::LayoutDirection m_formerDirection;
    AppLanguage m_language = AppLanguage::English;
    WindowTranslator m_texts;
    PseudoTranslator m_pseudo;
};

} // namespace loom
