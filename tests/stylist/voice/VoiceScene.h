#pragma once

#include "Sounds.h"
#include "stylist/voice/MiraVoiceEngine.h"
#include "support/FakeVoiceAudio.h"

#include <string>
#include <utility>

namespace loom
{

/// A shopper in a room with a loudspeaker and a microphone, and the engine of the call, in a time of their own.
class VoiceScene
{
public:
    struct Devices {
        double fragment = 0.01; ///< seconds
        double speakerDelay = 0.02;
        double speakerDelayError = 0; ///< seconds that the sound server says more, or less
        int captureRate = 48000;
        int renderRate = 48000;
        double roomDelay = 0.012;
        double loudness = 0.4; ///< of the loudspeaker in the microphone
    };

    explicit VoiceScene(const Devices& devices, std::unique_ptr<EchoCanceller> canceller = EchoCanceller::make());

    /// Lets the shopper say something, in a room that is never quite silent.
    void live(Sounds::Samples said);
    void wait(double seconds) { live(Sounds::silence(seconds)); }
    /// Seconds from a word into captured().
    [[nodiscard]] double wordsDelay() const
    {
        return static_cast<double>(m_wordsToMicrophone.delay()) / audio.streams->captureRate;
    }
    /// What the engine told, in order, without when.
    [[nodiscard]] std::vector<std::string> told() const;

    double now = 0;       ///< seconds
    double lastHeard = 0; ///< of the loudspeaker
    std::vector<std::pair<double, std::string>> events;
    std::vector<std::vector<float>> sent;
    std::vector<double> sentAt;
    Sounds::Samples captured; ///< at the rate of the microphone
    FakeVoiceAudio audio;
    MiraVoiceEngine engine;

private:
    void tell(std::string what) { events.emplace_back(now, std::move(what)); }

    double m_fragment;
    Room m_room;
    MiraVoiceResampler m_echoToMicrophone;
    MiraVoiceResampler m_wordsToMicrophone;
    Sounds::Samples m_words; ///< said, and still in the air
    Sounds::Samples m_echo;
};

} // namespace loom
