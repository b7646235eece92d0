#pragma once

#include "kit/StylistJourney.h"
#include "stylist/voice/MiraVoiceSession.h"

#include <QTimer>

namespace loom
{

/// A journey in which the shopper calls the stylist.
class CallingJourney : public StylistJourney
{
protected:
    CallingJourney();

    [[nodiscard]] MiraVoiceSession& call() const { return *shop->model().call(); }
    /// What the service knows of the latest call.
    [[nodiscard]] QJsonObject known() { return store.calls().last().toObject(); }
    /// Presses the telephone of the panel beside the page.
    void callFromChat();
    /// Waits until the call's window says what the call is at.
    void awaitPhase(const QString& words) const;
    /// Waits until the last line of the call is this one of hers, in words, and nothing of it is left to be heard.
    void awaitSaid(const QString& words) const;
    /// Waits until a line of the call can be read in its window.
    void awaitCaption(const QString& text) const;

    WindowDriver phone; ///< the call's window

private:
    QTimer m_turn; ///< neither sound nor another process is an event of this one
};

} // namespace loom
