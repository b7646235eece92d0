#include "stylist/voice/VoiceActivityDetector.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numeric>
#include <utility>

namespace loom
{

namespace
{

// Levels in decibels of full scale, ratios in decibels.
constexpr float quietest = -90;
constexpr float leastSpeech = -55;      ///< below it even a silent room hears no speech
constexpr float mostFloorAtFirst = -45; ///< a call may begin in the middle of a word
constexpr float standsOut = 9;
constexpr float standsOutOfEcho = 12;  ///< while Mira speaks
constexpr float echoLeft = -24;        ///< what a canceller may leave of what is played
constexpr float echoLeftOfHeard = -20; ///< and of what the microphone hears, where that is loud
constexpr float standsOutOfHeardEcho = 8;

// A key or a knock falls faster than a voice: it leaves what the peak, itself falling by so much a frame, lets through.
constexpr float peakFall = 1.5F;
constexpr float belowPeak = 14;

/// Of the last so many frames so many have to be loud, and so many voiced, for speech to begin.
struct Onset {
    int frames;
    int loud;
    int voiced;
};
constexpr Onset quietOnset{.frames = 6, .loud = 5, .voiced = 3};
constexpr Onset playingOnset{.frames = 6, .loud = 6, .voiced = 4};
constexpr Onset echoOnset{.frames = 12, .loud = 11, .voiced = 9};

constexpr float pitched = 0.55F; ///< correlation of a voice with itself a period earlier
// Periods in samples of 6 kHz: 400 to 70 Hz.
constexpr std::size_t shortestPeriod = 15;
constexpr std::size_t longestPeriod = 86;

/// What varies less than this over 800 ms is the room, however loud.
constexpr float steadyRange = 4;

float decibels(float power)
{
    return std::max(quietest, 10 * std::log10(power + 1e-12F));
}

float amplitude(float decibels)
{
    return std::pow(10.0F, decibels / 20);
}

int countLast(std::uint32_t bits, int frames)
{
    return std::popcount(bits & ((1U << frames) - 1));
}

} // namespace

bool VoiceActivityDetector::look(std::span<const float> frame, const Circumstances& circumstances)
{
    filter(frame);
    m_peak = std::max(m_level, m_peak - peakFall);
    const bool isLoud = m_level > threshold(circumstances) && m_level > m_peak - belowPeak;
    m_loud = m_loud << 1 | (isLoud ? 1U : 0U);
    m_voiced = m_voiced << 1 | (isLoud && hasPitch() ? 1U : 0U);
    // Keys and knocks are over before five frames of six are loud.
    const bool continues = isSpeech() && countLast(m_loud, 6) >= 5;
    if (continues || begins(circumstances))
        m_silentFrames = 0;
    else
        m_silentFrames = std::min(m_silentFrames + 1, hangOverFrames);
    followFloor(circumstances.isPlaying);
    return isSpeech();
}

float VoiceActivityDetector::level() const
{
    return m_level == unknown ? 0 : amplitude(m_level);
}

float VoiceActivityDetector::noiseFloor() const
{
    return m_noiseFloor == unknown ? 0 : amplitude(m_noiseFloor);
}

void VoiceActivityDetector::filter(std::span<const float> frame)
{
    // Butterworth, second order, 100 Hz at 24 kHz.
    constexpr float outer = 0.981658F;
    constexpr float inner = -1.963317F;
    constexpr float feedback1 = -1.962980F;
    constexpr float feedback2 = 0.963653F;
    constexpr float lowPassStep = 0.33F; // some 1.5 kHz

    std::shift_left(m_pitch.begin(), m_pitch.end(), frameDecimated);
    float* decimated = m_pitch.data() + pitchWindow - frameDecimated;
    float power = 0;
    float sum = 0;
    for (std::size_t i = 0; i < frame.size(); ++i) {
        const float input = frame[i];
        const float passed = outer * (input + m_highPassInput[1]) + inner * m_highPassInput[0] -
                             feedback1 * m_highPassOutput[0] - feedback2 * m_highPassOutput[1];
        m_highPassInput = {input, m_highPassInput[0]};
        m_highPassOutput = {passed, m_highPassOutput[0]};
        power += passed * passed;
        m_lowPass += lowPassStep * (passed - m_lowPass);
        sum += m_lowPass;
        if (i % decimation == decimation - 1)
            *decimated++ = std::exchange(sum, 0.0F) / decimation;
    }
    m_level = decibels(power / static_cast<float>(frame.size()));
    m_smoothLevel = m_smoothLevel == unknown ? m_level : m_smoothLevel + 0.4F * (m_level - m_smoothLevel);
}

bool VoiceActivityDetector::hasPitch() const
{
    const auto now = std::span(m_pitch).subspan(longestPeriod);
    const float energy = std::inner_product(now.begin(), now.end(), now.begin(), 1e-9F);
    for (std::size_t period = shortestPeriod; period <= longestPeriod; ++period) {
        const float* const earlier = now.data() - period;
        float product = 0;
        float earlierEnergy = 1e-9F;
        for (std::size_t i = 0; i < now.size(); ++i) {
            product += now[i] * earlier[i];
            earlierEnergy += earlier[i] * earlier[i];
        }
        if (product > 0 && product * product > pitched * pitched * energy * earlierEnergy)
            return true;
    }
    return false;
}

float VoiceActivityDetector::threshold(const Circumstances& circumstances)
{
    const float floor = m_noiseFloor == unknown ? std::min(m_level, mostFloorAtFirst) : m_noiseFloor;
    if (!circumstances.isPlaying)
        return std::max(leastSpeech, floor + standsOut);
    const float played = decibels(circumstances.playedLevel * circumstances.playedLevel);
    const float aboveFloor = std::max(leastSpeech, floor + standsOutOfEcho);
    if (circumstances.isEchoFree)
        return std::max({aboveFloor, played + echoLeft,
                         decibels(circumstances.heardLevel * circumstances.heardLevel) + echoLeftOfHeard});
    // How loud the loudspeaker comes back is learnt: faster where it is louder than thought than
    // where it is not.
    const float gain = m_level - played;
    m_echoGain += gain > m_echoGain ? 0.03F * (gain - m_echoGain) : -0.03F;
    m_echoGain = std::clamp(m_echoGain, -30.0F, 20.0F);
    return std::max(aboveFloor, played + m_echoGain + standsOutOfHeardEcho);
}

bool VoiceActivityDetector::begins(const Circumstances& circumstances) const
{
    const Onset& onset = !circumstances.isPlaying ? quietOnset : circumstances.isEchoFree ? playingOnset : echoOnset;
    return countLast(m_loud, onset.frames) >= onset.loud && countLast(m_voiced, onset.frames) >= onset.voiced;
}

void VoiceActivityDetector::followFloor(bool isPlaying)
{
    if (m_noiseFloor == unknown)
        m_noiseFloor = std::min(m_level, mostFloorAtFirst);

    // What is left of an echo tells nothing about the room.
    if (m_smoothLevel < m_noiseFloor)
        m_noiseFloor += (isPlaying ? 0.02F : 0.2F) * (m_smoothLevel - m_noiseFloor);
    else if (!isPlaying)
        m_noiseFloor += std::min(isSpeech() ? 0.01F : 0.05F, m_smoothLevel - m_noiseFloor);

    m_blockSum += m_level;
    if (++m_frameOfBlock < blockFrames)
        return;
    m_block = (m_block + 1) % m_blocks.size();
    m_blocks[m_block] = std::exchange(m_blockSum, 0.0F) / blockFrames;
    m_frameOfBlock = 0;
    m_blocksKnown = std::min(m_blocksKnown + 1, m_blocks.size());
    const auto [lowest, highest] = std::ranges::minmax(m_blocks);
    // Somebody switched on a fan: no voice is that even.
    if (m_blocksKnown == m_blocks.size() && highest - lowest < steadyRange && m_noiseFloor < lowest) {
        m_noiseFloor = lowest;
        m_loud = m_voiced = 0;
        m_silentFrames = hangOverFrames;
    }
}

} // namespace loom
