#pragma once

#include "stylist/voice/MiraVoicePhase.h"

#include <chrono>
#include <optional>

namespace loom
{

/// Whose turn it is in a call, and which of Mira's speech is still worth playing once the shopper has interrupted her.
/// Pure state: told of what happens, in order.
class MiraVoiceTurnTaking
{
public:
    /// Of a steady clock.
    using Time = std::chrono::milliseconds;
    /// Speech in which the service recognises nothing for so long after it ended was none.
    static constexpr std::chrono::seconds falseAlarm{2};

    [[nodiscard]] MiraVoicePhase phase() const { return m_phase; }

    void dial();
    void ready();
    void end() { *this = {}; }

    /// The service understood something of the shopper's speech.
    void recognised(bool isFinal);
    /// Some of Mira's speech came in. False where it belongs to what the shopper interrupted.
    [[nodiscard]] bool takeSpeech(Time now);
    /// She has said a line. `isHeard`: of her speech some is yet to be played, or to be played to its end.
    void lineEnded(bool isHeard);
    /// What the shopper said last is lost.
    void hiccup();

    void playbackBegan();
    void playbackEnded();
    /// The shopper's voice. `isInterruption`: it has silenced her.
    void speechBegan(bool isInterruption);
    void speechEnded(Time now);

private:
    /// Of Mira by the shopper, until she answers to it.
    struct Interruption {
        bool isRecognised = false;   ///< there were words in it
        std::optional<Time> endedAt; ///< none while the shopper speaks
    };

    [[nodiscard]] bool isConnected() const;
    void rest();

    MiraVoicePhase m_phase = MiraVoicePhase::Idle;
    bool m_isPlaying = false;
    bool m_owesAnswer = false; ///< nothing came yet in answer to what the shopper said
    std::optional<Interruption> m_interruption;
};

} // namespace loom
