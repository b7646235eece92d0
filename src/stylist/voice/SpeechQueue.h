#pragma once

#include "stylist/voice/MiraVoiceFormat.h"

#include <deque>
#include <span>
#include <vector>

namespace loom
{

/// Mira's speech between the line and the loudspeaker. An utterance begins once as much of it is there as the line has
/// lately been uneven, so that it does not break off; each begins anew, so that no delay is carried into the next.
/// Counts time in samples of the call, as pass() tells. One thread at a time.
class SpeechQueue
{
public:
    // In samples, as everything here.
    static constexpr std::size_t leastPreRoll = 80 * voiceFormat::sampleRate / 1000;
    static constexpr std::size_t mostPreRoll = 480 * voiceFormat::sampleRate / 1000;
    /// An utterance of which nothing comes for so long is over.
    static constexpr std::size_t longestGap = 600 * voiceFormat::sampleRate / 1000;
    /// A service that never stops talking is not listened to beyond this.
    static constexpr std::size_t mostWaiting = std::size_t{300} * voiceFormat::sampleRate;

    void add(std::vector<float> samples);
    /// Nothing more comes of this utterance.
    void end();
    void clear();
    /// So much time has passed.
    void pass(std::size_t samples);
    /// Fills the frame with what follows, soft where it begins and where it breaks off. False where there is nothing to
    /// be played now. Allocates nothing.
    [[nodiscard]] bool read(std::span<float> frame);
    /// Nothing waits, and nothing more is expected.
    [[nodiscard]] bool isIdle() const { return m_state == State::Idle; }
    /// How much of the next utterance is to be there before it begins.
    [[nodiscard]] std::size_t preRoll() const;

private:
    enum class State {
        Idle,
        Gathering, ///< not enough is there yet
        Playing
    };

    void finish();

    State m_state = State::Idle;
    std::deque<std::vector<float>> m_chunks;
    std::size_t m_readOfFirst = 0;
    std::size_t m_waiting = 0;
    bool m_isEnded = false;
    bool m_beginsSoftly = false;
    // Of this utterance.
    std::size_t m_age = 0; ///< since its first chunk
    std::size_t m_received = 0;
    std::size_t m_latest = 0;   ///< how much later than the first a chunk has come
    std::size_t m_gathered = 0; ///< time since there is something to gather
    std::size_t m_dry = 0;      ///< time since there is nothing
    /// How late chunks have lately been; before the first call has told, what a good line does.
    std::size_t m_jitter = 40 * voiceFormat::sampleRate / 1000;
};

} // namespace loom
