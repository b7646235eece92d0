#include "kit/CallingJourney.h"

namespace loom
{

CallingJourney::CallingJourney()
{
    m_turn.start(std::chrono::milliseconds(20));
}

void CallingJourney::callFromChat()
{
    window.click(QStringLiteral("callMira"));
    phone = shop->callWindow();
}

void CallingJourney::awaitPhase(const QString& words) const
{
    const QQuickItem* const phase = phone.await(QStringLiteral("phase"));
    waitUntil([&] { return phase->property("text") == words; }, "the call is at \"" + words.toStdString() + '"');
}

void CallingJourney::awaitSaid(const QString& words) const
{
    MiraVoiceTranscript& said = *call().transcript();
    waitUntil(
        [&] {
            return call().phase() == MiraVoicePhase::Listening && !said.isLastMine() && said.lastText().contains(words);
        },
        "she has said \"" + words.toStdString() + '"');
}

void CallingJourney::awaitCaption(const QString& text) const
{
    phone.awaitText(text, phone.await(QStringLiteral("captions")));
}

} // namespace loom
