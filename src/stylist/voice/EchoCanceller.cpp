#include "stylist/voice/EchoCanceller.h"

// Not written for our warnings.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Weverything"
#include <webrtc/common.h>
#include <webrtc/modules/audio_processing/include/audio_processing.h>
#pragma clang diagnostic pop

#include <algorithm>

namespace loom
{

namespace
{

/// The canceller of WebRTC, which works at a rate of its own and converts.
class WebRtcEchoCanceller final : public EchoCanceller
{
public:
    explicit WebRtcEchoCanceller(std::unique_ptr<webrtc::AudioProcessing> processing)
        : m_processing(std::move(processing))
    {
    }

    void played(std::span<const float> frame) override
    {
        const float* const channel = frame.data();
        float* const unused = m_unused.data();
        m_processing->ProcessReverseStream(&channel, m_format, m_format, &unused);
    }

    void heard(std::span<float> frame, int delay) override
    {
        m_processing->set_stream_delay_ms(std::clamp(delay, 0, mostDelay));
        float* const channel = frame.data();
        m_processing->ProcessStream(&channel, m_format, m_format, &channel);
    }

private:
    static constexpr int mostDelay = 500; ///< milliseconds, by the library

    std::unique_ptr<webrtc::AudioProcessing> m_processing;
    webrtc::StreamConfig m_format{voiceFormat::sampleRate, 1};
    std::array<float, voiceFormat::frameSamples> m_unused{};
};

} // namespace

std::unique_ptr<EchoCanceller> EchoCanceller::make()
{
    webrtc::Config config;
    // What a sound server says about its delays is a guess, and Bluetooth adds what nobody knows.
    config.Set<webrtc::ExtendedFilter>(new webrtc::ExtendedFilter(true));
    config.Set<webrtc::DelayAgnostic>(new webrtc::DelayAgnostic(true));
    std::unique_ptr<webrtc::AudioProcessing> processing(webrtc::AudioProcessing::Create(config));
    if (!processing)
        return nullptr;
    webrtc::EchoCancellation* const cancellation = processing->echo_cancellation();
    const webrtc::StreamConfig format(voiceFormat::sampleRate, 1);
    using Error = webrtc::AudioProcessing::Error;
    // The stronger levels swallow whoever speaks at the same time. The library's high-pass filter stays off: it turns
    // the phases of a voice, and rumble is no echo.
    const bool canStart =
        cancellation->set_suppression_level(webrtc::EchoCancellation::kLowSuppression) == Error::kNoError &&
        cancellation->enable_drift_compensation(false) == Error::kNoError &&
        cancellation->Enable(true) == Error::kNoError &&
        processing->Initialize({{format, format, format, format}}) == Error::kNoError;
    return canStart ? std::make_unique<WebRtcEchoCanceller>(std::move(processing)) : nullptr;
}

} // namespace loom
