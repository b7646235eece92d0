#include "stylist/voice/EchoDelay.h"

#include <algorithm>
#include <cmath>

namespace loom
{

namespace
{

constexpr float quietestPlayed = -55;
constexpr float quietestHeard = -70;
constexpr int enoughSound = 100; ///< frames of it within the window
/// Less may be chance, or the shopper.
constexpr float alike = 0.7F;
constexpr float moreAlike = 0.1F;

float decibels(float power, float least)
{
    return std::max(least, 10 * std::log10(power + 1e-12F));
}

} // namespace

void EchoDelay::played(std::span<const float> samples)
{
    for (const float sample : samples) {
        m_power += sample * sample;
        if (++m_powerSamples < voiceFormat::frameSamples)
            continue;
        m_played[static_cast<std::size_t>(m_playedFrames) % kept] =
            decibels(m_power / voiceFormat::frameSamples, quietestPlayed);
        ++m_playedFrames;
        m_power = 0;
        m_powerSamples = 0;
    }
}

int EchoDelay::heard(float level, std::int64_t shown)
{
    const auto frame = static_cast<std::int64_t>(std::floor(static_cast<double>(shown) / voiceFormat::frameSamples));
    m_heard[m_heardFrames % window] = {.level = decibels(level * level, quietestHeard), .shown = frame};
    ++m_heardFrames;
    if (m_heardFrames < window || m_heardFrames % every != 0)
        return 0;
    if (std::ranges::count_if(m_heard, [this](const Heard& one) { return levelOf(one.shown) > quietestPlayed; }) <
        enoughSound)
        return 0;

    float best = -1;
    float bestWhereCoped = -1;
    int lag = 0;
    for (int candidate = earliest; candidate <= latest; ++candidate) {
        const float now = likeness(candidate);
        if (now > best) {
            best = now;
            lag = candidate;
        }
        if (candidate <= 0 && candidate >= -latestFrame)
            bestWhereCoped = std::max(bestWhereCoped, now);
    }
    const bool isPlain = best > alike && best > bestWhereCoped + moreAlike;
    const bool isTheSame = m_hasLag && std::abs(lag - m_lastLag) <= 1;
    m_hasLag = isPlain;
    m_lastLag = lag;
    if (!isPlain || !isTheSame)
        return 0;
    m_hasLag = false;
    m_heardFrames = 0;
    return (lag + wantedFrame) * static_cast<int>(voiceFormat::frameSamples);
}

float EchoDelay::levelOf(std::int64_t frame) const
{
    const bool isKept = frame >= 0 && frame < m_playedFrames && frame >= m_playedFrames - std::ssize(m_played);
    return isKept ? m_played[static_cast<std::size_t>(frame) % kept] : quietestPlayed;
}

float EchoDelay::likeness(int lag) const
{
    float sumPlayed = 0;
    float sumHeard = 0;
    float played2 = 0;
    float heard2 = 0;
    float product = 0;
    for (const Heard& one : m_heard) {
        const float played = levelOf(one.shown + lag) - quietestPlayed;
        const float heard = one.level - quietestHeard;
        sumPlayed += played;
        sumHeard += heard;
        played2 += played * played;
        heard2 += heard * heard;
        product += played * heard;
    }
    const auto count = static_cast<float>(window);
    const float spread = (played2 - sumPlayed * sumPlayed / count) * (heard2 - sumHeard * sumHeard / count);
    return spread > 1 ? (product - sumPlayed * sumHeard / count) / std::sqrt(spread) : 0;
}

} // namespace loom
