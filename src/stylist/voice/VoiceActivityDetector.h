#pragma once

#include "stylist/voice/MiraVoiceFormat.h"

#include <array>
#include <cstdint>
#include <span>

namespace loom
{

/// Tells speech from the room: follows the noise floor, and wants what stands out from it to last and to have the
/// pitch of a voice. Steps of voiceFormat::frameSamples samples. Pure state, no allocation; one thread at a time.
class VoiceActivityDetector
{
public:
    /// Speech counts as ended when nothing of it was heard for so long.
    static constexpr std::chrono::milliseconds hangOver{600};

    /// What is known about a frame besides its sound.
    struct Circumstances {
        bool isPlaying = false; ///< Mira speaks
        bool isEchoFree = true; ///< the echo of that was taken out
        float playedLevel = 0;  ///< root mean square of what is played
        float heardLevel = 0;   ///< likewise of what was heard, before the echo was taken out
    };

    /// Looks at the next frame. True while the shopper speaks, and for the hang-over after it.
    bool look(std::span<const float> frame, const Circumstances& circumstances);
    [[nodiscard]] bool isSpeech() const { return m_silentFrames < hangOverFrames; }
    /// Root mean square of the frame, without rumble; from 0 to 1.
    [[nodiscard]] float level() const;
    /// Root mean square of the room, likewise.
    [[nodiscard]] float noiseFloor() const;
    void reset() { *this = {}; }

private:
    static constexpr int hangOverFrames = hangOver / voiceFormat::frame;
    static constexpr std::size_t decimation = 4;
    static constexpr std::size_t frameDecimated = voiceFormat::frameSamples / decimation;
    static constexpr std::size_t pitchWindow = 4 * frameDecimated;
    static constexpr std::size_t blockFrames = 5; ///< of one entry of m_blocks
    static constexpr float unknown = 1;           ///< no level in decibels is above 0

    void filter(std::span<const float> frame);
    [[nodiscard]] bool hasPitch() const;
    [[nodiscard]] float threshold(const Circumstances& circumstances);
    [[nodiscard]] bool begins(const Circumstances& circumstances) const;
    void followFloor(bool isPlaying);

    // The filters: a high-pass at 100 Hz, and a low-pass for the pitch.
    std::array<float, 2> m_highPassInput{};
    std::array<float, 2> m_highPassOutput{};
    float m_lowPass = 0;
    std::array<float, pitchWindow> m_pitch{}; ///< the last 40 ms, low-passed and decimated

    float m_level = unknown;       ///< all levels in decibels of full scale
    float m_smoothLevel = unknown; ///< over some 30 ms
    float m_noiseFloor = unknown;
    float m_peak = -100;
    float m_echoGain = 0; ///< of the microphone over what is played, where the echo is heard
    /// The mean levels of the last 800 ms in blocks of 50 ms, newest at m_block.
    std::array<float, 16> m_blocks{};
    std::size_t m_block = 0;
    std::size_t m_frameOfBlock = 0;
    std::size_t m_blocksKnown = 0;
    float m_blockSum = 0;

    // A bit for each of the last frames, the newest lowest.
    std::uint32_t m_loud = 0;   ///< stands out
    std::uint32_t m_voiced = 0; ///< and has a pitch
    int m_silentFrames = hangOverFrames;
};

} // namespace loom
