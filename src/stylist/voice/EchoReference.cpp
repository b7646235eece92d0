#include "stylist/voice/EchoReference.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace loom
{

namespace
{

constexpr int ofMilliseconds(int milliseconds)
{
    return milliseconds * voiceFormat::sampleRate / 1000;
}

// While nothing is to be heard a correction costs nothing; otherwise the canceller has to learn the room again.
constexpr double plainlyWrong = ofMilliseconds(40);
constexpr double wrongWhileQuiet = ofMilliseconds(10);
constexpr std::int64_t quietTime = ofMilliseconds(300);
constexpr float quiet = 0.0003F;
constexpr double leastLead = ofMilliseconds(-20);
constexpr double smoothing = 0.05; ///< a frame: a fifth of a second

} // namespace

EchoReference::EchoReference()
    : m_samples(static_cast<std::size_t>(2 * voiceFormat::sampleRate))
{
    reset();
}

void EchoReference::reset()
{
    std::ranges::fill(m_samples, 0.0F);
    m_end = m_quietSince = 0;
    m_lead = static_cast<double>(ofMilliseconds(lead.count()));
    m_offset = m_error = 0;
    m_isAligned = false;
}

void EchoReference::add(std::span<const float> samples)
{
    const auto size = static_cast<std::int64_t>(m_samples.size());
    for (const float sample : samples) {
        m_samples[static_cast<std::size_t>(m_end % size)] = sample;
        ++m_end;
        if (std::abs(sample) > quiet)
            m_quietSince = m_end;
    }
}

void EchoReference::align(double offset)
{
    const double wanted = offset + m_lead;
    if (!m_isAligned) {
        m_offset = wanted;
        m_isAligned = true;
        return;
    }
    m_error += smoothing * (wanted - m_offset - m_error);
    if (std::abs(m_error) > (isQuiet() ? wrongWhileQuiet : plainlyWrong))
        m_offset += std::exchange(m_error, 0.0);
}

std::int64_t EchoReference::read(std::int64_t position, std::span<float> frame)
{
    const auto length = static_cast<std::int64_t>(frame.size());
    std::int64_t begin = position + std::llround(m_offset);
    if (const std::int64_t missing = begin + length - m_end; missing > 0) {
        // The devices are faster than the lead, or the loudspeaker has stopped.
        const double earlier = std::clamp(static_cast<double>(missing), 0.0, std::max(0.0, m_lead - leastLead));
        m_lead -= earlier;
        m_offset -= earlier;
        begin -= missing;
    }
    const auto size = static_cast<std::int64_t>(m_samples.size());
    for (std::int64_t i = 0; i < length; ++i) {
        const std::int64_t at = begin + i;
        const bool isKept = at >= 0 && at >= m_end - size;
        frame[static_cast<std::size_t>(i)] = isKept ? m_samples[static_cast<std::size_t>(at % size)] : 0;
    }
    return begin;
}

void EchoReference::correct(int samples)
{
    m_lead += samples;
    m_offset += samples;
    m_error = 0;
}

bool EchoReference::isQuiet() const
{
    return m_end - m_quietSince > quietTime;
}

} // namespace loom
