#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace loom
{

/// Sounds to listen to, in the format of a call. The same every time.
struct Sounds {
    using Samples = std::vector<float>;

    static Samples silence(double seconds);
    /// Hisses at so many decibels of full scale.
    static Samples hiss(double seconds, double decibels, std::uint32_t seed = 1);
    /// The mains, with overtones.
    static Samples hum(double seconds, double decibels, double frequency = 50);
    /// Somebody types fast.
    static Samples keys(double seconds, double decibels);
    /// Speaks: syllables with overtones and changing vowels, words with gaps; begins at once.
    static Samples voice(double seconds, double decibels, double pitch = 115, std::uint32_t seed = 1);
    static Samples tone(double seconds, double frequency, double amplitude, int sampleRate);

    /// Adds `other`, beginning at so many seconds; what reaches beyond the end is left out.
    static void mix(Samples& samples, std::span<const float> other, double at = 0);
    /// The level of a part, in decibels of full scale.
    static double decibels(std::span<const float> samples);
};

/// A room between a loudspeaker and a microphone: sparse reflections that die away.
class Room
{
public:
    /// The sound arrives after `delay` seconds and `gain` times as loud, and rings for `reverberation` seconds.
    Room(double delay, double reverberation, double gain, int sampleRate = 24000);

    /// What the microphone hears of what the loudspeaker says.
    [[nodiscard]] Sounds::Samples hear(std::span<const float> said);

private:
    struct Reflection {
        std::size_t delay;
        float gain;
    };

    std::vector<Reflection> m_reflections;
    std::vector<float> m_past; ///< a ring
    std::size_t m_now = 0;
};

} // namespace loom
