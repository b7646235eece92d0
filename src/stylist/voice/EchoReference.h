#pragma once

#include "stylist/voice/MiraVoiceFormat.h"

#include <cstdint>
#include <span>
#include <vector>

namespace loom
{

/// What the loudspeaker plays, laid beside what the microphone hears at the same time: a canceller gets the two in
/// step, whatever the buffers of the devices do. What the sound server says about its delays trembles, so that what was
/// laid once is moved only where it is plainly wrong. Positions in samples of the call. One thread at a time.
class EchoReference
{
public:
    /// What is played is shown so much before the microphone may hear it: an echo must not come before its sound.
    static constexpr std::chrono::milliseconds lead{30};

    EchoReference();

    /// The streams begin anew.
    void reset();
    /// What was played next.
    void add(std::span<const float> samples);
    /// How many were played.
    [[nodiscard]] std::int64_t end() const { return m_end; }
    /// What is in the air when the microphone hears sample n is sample n + `offset` of what is played. To be told
    /// once for every frame.
    void align(double offset);
    /// What to hold against the frame that begins at `position` of what is heard; answers with its place.
    std::int64_t read(std::int64_t position, std::span<float> frame);
    /// The sound server is wrong: what is played so many samples later belongs to what is heard.
    void correct(int samples);

private:
    [[nodiscard]] bool isQuiet() const;

    std::vector<float> m_samples; ///< the last two seconds, as a ring
    std::int64_t m_end = 0;
    std::int64_t m_quietSince = 0;
    double m_lead = 0; ///< with the corrections
    double m_offset = 0;
    double m_error = 0; ///< of m_offset, smoothed
    bool m_isAligned = false;
};

} // namespace loom
