#include "stylist/voice/SpeechQueue.h"

#include <algorithm>
#include <utility>

namespace loom
{

namespace
{

constexpr std::size_t ofMilliseconds(std::size_t milliseconds)
{
    return milliseconds * voiceFormat::sampleRate / 1000;
}

/// What the loudspeaker takes at once when an utterance begins.
constexpr std::size_t taken = ofMilliseconds(60);
constexpr std::size_t fade = ofMilliseconds(4);

void fadeIn(std::span<float> samples)
{
    const auto count = static_cast<float>(samples.size());
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] *= static_cast<float>(i) / count;
}

void fadeOut(std::span<float> samples)
{
    const auto count = static_cast<float>(samples.size());
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] *= 1 - static_cast<float>(i + 1) / count;
}

} // namespace

void SpeechQueue::add(std::vector<float> samples)
{
    if (samples.empty() || m_waiting + samples.size() > mostWaiting)
        return;
    m_isEnded = false; // her next line may come while the one before is still being played
    if (m_state == State::Idle) {
        m_state = State::Gathering;
        m_age = m_received = m_latest = m_gathered = 0;
    }
    if (m_age > m_received)
        m_latest = std::max(m_latest, m_age - m_received);
    m_jitter = std::max(m_jitter, m_latest);
    m_received += samples.size();
    m_waiting += samples.size();
    m_dry = 0;
    m_chunks.push_back(std::move(samples));
}

void SpeechQueue::end()
{
    m_isEnded = true;
    if (m_waiting == 0 && m_state != State::Idle)
        finish();
}

void SpeechQueue::clear()
{
    m_chunks.clear();
    m_readOfFirst = m_waiting = 0;
    m_state = State::Idle;
}

void SpeechQueue::pass(std::size_t samples)
{
    if (m_state == State::Idle)
        return;
    m_age += samples;
    if (m_waiting == 0) {
        m_dry += samples;
        if (m_dry >= longestGap)
            finish();
        return;
    }
    // With nothing more to come there is nothing to wait for.
    m_gathered += samples;
    if (m_state == State::Gathering && (m_isEnded || std::max(m_gathered, m_waiting) >= preRoll())) {
        m_state = State::Playing;
        m_beginsSoftly = true;
    }
}

bool SpeechQueue::read(std::span<float> frame)
{
    if (m_state != State::Playing || m_waiting == 0)
        return false;
    std::size_t filled = 0;
    while (filled < frame.size() && !m_chunks.empty()) {
        const std::span<const float> chunk = std::span<const float>(m_chunks.front()).subspan(m_readOfFirst);
        const auto part = chunk.first(std::min(chunk.size(), frame.size() - filled));
        std::ranges::copy(part, frame.begin() + static_cast<std::ptrdiff_t>(filled));
        filled += part.size();
        m_readOfFirst += part.size();
        if (part.size() == chunk.size()) {
            m_chunks.pop_front();
            m_readOfFirst = 0;
        }
    }
    m_waiting -= filled;
    std::ranges::fill(frame.subspan(filled), 0.0F);

    if (std::exchange(m_beginsSoftly, false))
        fadeIn(frame.first(std::min(fade, filled)));
    if (m_waiting == 0) {
        const std::size_t length = std::min(fade, filled);
        fadeOut(frame.subspan(filled - length, length));
        if (m_isEnded) {
            finish();
        } else {
            m_state = State::Gathering;
            m_gathered = m_dry = 0;
        }
    }
    return true;
}

std::size_t SpeechQueue::preRoll() const
{
    return std::clamp(m_jitter + taken, leastPreRoll, mostPreRoll);
}

void SpeechQueue::finish()
{
    // A line that has become better is believed little by little.
    m_jitter -= (m_jitter - std::min(m_jitter, m_latest)) / 4;
    m_state = State::Idle;
}

} // namespace loom
