#pragma once

#include "stylist/voice/MiraVoiceFormat.h"

#include <functional>
#include <memory>
#include <span>

namespace loom
{

/// Takes what the loudspeaker plays out of what the microphone hears. In steps of voiceFormat::frameSamples samples in
/// the format of the call; nothing is allocated after it was made. One thread at a time.
class EchoCanceller
{
public:
    EchoCanceller() = default;
    EchoCanceller(const EchoCanceller&) = delete;
    EchoCanceller& operator=(const EchoCanceller&) = delete;
    virtual ~EchoCanceller() = default;

    /// What is about to be played.
    virtual void played(std::span<const float> frame) = 0;
    /// Cleans what was heard, in place. `delay`: milliseconds between played() and the same sound in heard().
    virtual void heard(std::span<float> frame, int delay) = 0;

    /// The canceller in the process; null where it cannot start.
    [[nodiscard]] static std::unique_ptr<EchoCanceller> make();
    using Maker = std::function<std::unique_ptr<EchoCanceller>()>;
};

} // namespace loom
