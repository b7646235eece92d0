#pragma once

#include "stylist/voice/MiraVoiceFormat.h"

#include <functional>
#include <span>
#include <vector>

namespace loom
{

/// Cuts what the microphone hears into the chunks of the line: while somebody speaks, and what came just before, so
/// that no word loses its beginning. One thread at a time.
class SpeechChunks
{
public:
    using Sender = std::function<void(std::vector<float> samples)>;

    /// Of the time before speech was noticed so much is sent.
    static constexpr std::size_t preRoll = 5 * voiceFormat::chunkSamples;

    SpeechChunks() { m_kept.reserve(preRoll + voiceFormat::chunkSamples); }

    void add(std::span<const float> frame, bool isSpeech, const Sender& send)
    {
        m_kept.insert(m_kept.end(), frame.begin(), frame.end());
        if (!isSpeech) {
            if (m_kept.size() > preRoll)
                forgetFirst(m_kept.size() - preRoll);
            return;
        }
        while (m_kept.size() >= voiceFormat::chunkSamples) {
            send(std::vector<float>(m_kept.begin(), m_kept.begin() + voiceFormat::chunkSamples));
            forgetFirst(voiceFormat::chunkSamples);
        }
    }
    void clear() { m_kept.clear(); }

private:
    void forgetFirst(std::size_t count)
    {
        m_kept.erase(m_kept.begin(), m_kept.begin() + static_cast<std::ptrdiff_t>(count));
    }

    std::vector<float> m_kept;
};

} // namespace loom
