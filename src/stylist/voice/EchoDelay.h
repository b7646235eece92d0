#pragma once

#include "stylist/voice/MiraVoiceFormat.h"

#include <array>
#include <cstdint>
#include <span>

namespace loom
{

/// Finds out how far what the sound server says about its delays is from the truth, where that is more than a canceller
/// copes with: compares how the loudness of what is played goes up and down with what the microphone hears. Frames of
/// voiceFormat::frameSamples. Pure state, no allocation; one thread at a time.
class EchoDelay
{
public:
    /// What a canceller copes with: an echo in the frame that it is shown its sound with, or so many frames later.
    static constexpr int latestFrame = 9;
    static constexpr int wantedFrame = 3;

    void reset() { *this = {}; }
    /// What was played next.
    void played(std::span<const float> samples);
    /// How loud the next frame was that was heard, as root mean square, and which sample of what is played the
    /// canceller is shown with it. Answers with how many samples later ones it should be shown from here on.
    [[nodiscard]] int heard(float level, std::int64_t shown);

private:
    static constexpr std::size_t window = 300;
    static constexpr std::size_t kept = 512;
    static constexpr int earliest = -50;
    static constexpr int latest = 30;
    static constexpr int every = 25; ///< frames

    struct Heard {
        float level = 0;        ///< decibels of full scale, as all here
        std::int64_t shown = 0; ///< frame of what is played
    };

    [[nodiscard]] float levelOf(std::int64_t frame) const;
    /// How alike the two are when frames `lag` later than those shown are held against what was heard.
    [[nodiscard]] float likeness(int lag) const;

    std::array<float, kept> m_played{}; ///< as a ring
    std::int64_t m_playedFrames = 0;
    float m_power = 0; ///< of the frame being played
    std::size_t m_powerSamples = 0;
    std::array<Heard, window> m_heard{}; ///< as a ring
    std::size_t m_heardFrames = 0;
    int m_lastLag = 0;
    bool m_hasLag = false;
};

} // namespace loom
