#pragma once

#include <memory>
#include <span>
#include <vector>

struct SpeexResamplerState_;

namespace loom
{

/// Converts sound between the format of a device and that of the call, one channel each. Nothing is allocated after the
/// construction as long as no call hands over more than `mostSamples`. One stream of sound; one thread at a time.
class MiraVoiceResampler
{
public:
    /// Rates in samples a second, more than 0.
    MiraVoiceResampler(int fromRate, int toRate, std::size_t mostSamples = 4096);
    MiraVoiceResampler(const MiraVoiceResampler&) = delete;
    MiraVoiceResampler& operator=(const MiraVoiceResampler&) = delete;
    ~MiraVoiceResampler();

    /// The samples that follow; valid until the next call.
    [[nodiscard]] std::span<const float> convert(std::span<const float> samples);
    /// How much later the converted sound comes, in samples of the rate it is converted to.
    [[nodiscard]] int delay() const;
    /// Forgets what came before.
    void reset();

private:
    [[nodiscard]] std::size_t mostConverted(std::size_t samples) const;

    int m_fromRate;
    int m_toRate;
    SpeexResamplerState_* m_state = nullptr; ///< none where both rates are the same
    std::vector<float> m_converted;
};

} // namespace loom
