#include "stylist/voice/MiraVoiceTurnTaking.h"

#include <utility>

namespace loom
{

namespace
{

/// Words that are not understood for so long after them never will be: who is silent is not waiting for them.
constexpr std::chrono::seconds lostWords{8};

} // namespace

bool MiraVoiceTurnTaking::isConnected() const
{
    return m_phase != MiraVoicePhase::Idle && m_phase != MiraVoicePhase::Connecting;
}

void MiraVoiceTurnTaking::dial()
{
    *this = {};
    m_phase = MiraVoicePhase::Connecting;
}

void MiraVoiceTurnTaking::ready()
{
    if (m_phase == MiraVoicePhase::Connecting)
        m_phase = MiraVoicePhase::Listening;
}

/// Nothing is heard of her.
void MiraVoiceTurnTaking::rest()
{
    m_phase = m_owesAnswer ? MiraVoicePhase::Thinking : MiraVoicePhase::Listening;
}

void MiraVoiceTurnTaking::recognised(bool isFinal)
{
    if (!isConnected())
        return;
    if (!isFinal) {
        if (m_interruption)
            m_interruption->isRecognised = true;
        return;
    }
    m_interruption.reset();
    m_owesAnswer = true;
    if (!m_isPlaying) // what the shopper said before she began may be understood only now
        rest();
}

bool MiraVoiceTurnTaking::takeSpeech(Time now)
{
    if (!isConnected())
        return false;
    if (m_interruption) {
        const auto patience = m_interruption->isRecognised ? lostWords : falseAlarm;
        const bool isOver = m_interruption->endedAt && now - *m_interruption->endedAt >= patience;
        if (!isOver)
            return false;
        m_interruption.reset();
    }
    m_owesAnswer = false;
    return true;
}

void MiraVoiceTurnTaking::lineEnded(bool isHeard)
{
    if (!isConnected() || isHeard)
        return;
    m_owesAnswer = false;
    if (!m_isPlaying)
        rest();
}

void MiraVoiceTurnTaking::hiccup()
{
    if (!isConnected())
        return;
    m_owesAnswer = false;
    if (m_interruption)
        m_interruption->isRecognised = false; // its words will not come
    if (!m_isPlaying)
        rest();
}

void MiraVoiceTurnTaking::playbackBegan()
{
    if (!isConnected())
        return;
    m_isPlaying = true;
    m_phase = MiraVoicePhase::Speaking;
}

void MiraVoiceTurnTaking::playbackEnded()
{
    if (!isConnected() || !std::exchange(m_isPlaying, false))
        return;
    rest();
}

void MiraVoiceTurnTaking::speechBegan(bool isInterruption)
{
    if (!isConnected())
        return;
    if (m_interruption)
        m_interruption->endedAt.reset();
    if (!isInterruption)
        return;
    m_interruption = Interruption{};
    m_isPlaying = false;
    m_owesAnswer = false;
    rest();
}

void MiraVoiceTurnTaking::speechEnded(Time now)
{
    if (m_interruption)
        m_interruption->endedAt = now;
}

} // namespace loom
