#include "stylist/voice/VoiceActivityDetector.h"

#include "Sounds.h"

#include <gtest/gtest.h>

using namespace loom;

namespace
{

using Circumstances = VoiceActivityDetector::Circumstances;

/// When speech was noticed, and when it was over, in seconds.
struct Stretch {
    double began;
    double ended;
};

std::vector<Stretch> listen(std::span<const float> sound, const Circumstances& circumstances = {})
{
    VoiceActivityDetector detector;
    std::vector<Stretch> stretches;
    for (std::size_t at = 0; at + voiceFormat::frameSamples <= sound.size(); at += voiceFormat::frameSamples) {
        const bool was = detector.isSpeech();
        const bool is = detector.look(sound.subspan(at, voiceFormat::frameSamples), circumstances);
        const double now = static_cast<double>(at + voiceFormat::frameSamples) / voiceFormat::sampleRate;
        if (is && !was)
            stretches.push_back({.began = now, .ended = now});
        if (is)
            stretches.back().ended = now;
    }
    return stretches;
}

struct Scene {
    const char* name;
    Sounds::Samples sound;
    Circumstances circumstances{};
};

Sounds::Samples in(Sounds::Samples room, const Sounds::Samples& sound, double at = 1)
{
    Sounds::mix(room, sound, at);
    return room;
}

} // namespace

TEST(VoiceActivityDetectorTest, NoticesAVoiceWithinSixtyMillisecondsAndLetsItGoAfterTheHangOver)
{
    const Scene scenes[] = {
        {"a quiet room", in(Sounds::hiss(6, -75), Sounds::voice(2.65, -22))},
        {"a room that hisses", in(Sounds::hiss(6, -50), Sounds::voice(2.65, -22))},
        {"a distant voice", in(Sounds::hiss(6, -65), Sounds::voice(2.65, -40))},
        {"a high voice", in(Sounds::hiss(6, -60), Sounds::voice(2.65, -25, 230))},
        {"a humming room", in(Sounds::hum(6, -35), Sounds::voice(2.65, -22))},
        {"a room that hears its own loudspeaker, freed from it",
         in(Sounds::hiss(6, -65), Sounds::voice(2.65, -22)),
         {.isPlaying = true, .isEchoFree = true, .playedLevel = 0.05F}},
        {"a microphone with an offset", in(Sounds::Samples(std::size_t{144000}, 0.2F), Sounds::voice(2.65, -22))},
    };
    for (const Scene& scene : scenes) {
        const std::vector<Stretch> heard = listen(scene.sound, scene.circumstances);
        ASSERT_EQ(heard.size(), 1) << scene.name;
        EXPECT_GE(heard.front().began, 1.02) << scene.name;
        EXPECT_LE(heard.front().began, 1.08) << scene.name;
        EXPECT_NEAR(heard.front().ended, 3.65 + 0.6, 0.1) << scene.name;
    }
}

TEST(VoiceActivityDetectorTest, HearsNoVoiceInWhatIsNone)
{
    const Circumstances echo{.isPlaying = true, .isEchoFree = false, .playedLevel = 0.1F};
    const Scene scenes[] = {
        {"nothing at all", Sounds::silence(3)},
        {"a room", Sounds::hiss(5, -60)},
        {"a loud room, from the first moment", Sounds::hiss(5, -30)},
        {"somebody types", in(Sounds::hiss(8, -70), Sounds::keys(6, -30))},
        {"somebody types loudly", in(Sounds::hiss(8, -70), Sounds::keys(6, -20))},
        {"somebody types while Mira speaks",
         in(Sounds::hiss(8, -70), Sounds::keys(6, -30)),
         {.isPlaying = true, .isEchoFree = true, .playedLevel = 0.1F}},
        {"the mains", Sounds::hum(5, -30)},
        {"a fan is switched on", in(Sounds::hiss(6, -70), Sounds::hiss(4, -40, 2))},
        {"what a canceller left",
         in(Sounds::hiss(6, -65), Sounds::voice(4, -52, 200)),
         {.isPlaying = true, .isEchoFree = true, .playedLevel = 0.1F}},
        {"a loudspeaker that nobody takes out", in(Sounds::hiss(6, -65), Sounds::voice(4, -26, 200)), echo},
    };
    for (const Scene& scene : scenes)
        EXPECT_TRUE(listen(scene.sound, scene.circumstances).empty()) << scene.name;
}

TEST(VoiceActivityDetectorTest, TakesASteadyToneForTheRoomBeforeASecondIsOver)
{
    const std::vector<Stretch> heard = listen(in(Sounds::hiss(6, -70), Sounds::hum(5, -30, 140)));
    ASSERT_LE(heard.size(), 1);
    if (!heard.empty())
        EXPECT_LT(heard.front().ended, 2.0);
}

TEST(VoiceActivityDetectorTest, TypingDoesNotKeepSpeechGoing)
{
    Sounds::Samples sound = in(Sounds::hiss(10, -70), Sounds::voice(2, -22));
    Sounds::mix(sound, Sounds::keys(8, -32), 2);
    const std::vector<Stretch> heard = listen(sound);
    ASSERT_EQ(heard.size(), 1);
    EXPECT_LT(heard.front().ended, 4);
}

TEST(VoiceActivityDetectorTest, TheFloorFallsAtOnceAndRisesSlowly)
{
    VoiceActivityDetector detector;
    const auto hear = [&](const Sounds::Samples& sound) {
        for (std::size_t at = 0; at + voiceFormat::frameSamples <= sound.size(); at += voiceFormat::frameSamples)
            detector.look(std::span(sound).subspan(at, voiceFormat::frameSamples), {});
        return 20 * std::log10(detector.noiseFloor());
    };
    hear(Sounds::hiss(2, -50));
    EXPECT_NEAR(hear(Sounds::hiss(0.3, -70)), -70, 3);
    EXPECT_LT(hear(Sounds::voice(2.65, -22)), -60);
    EXPECT_NEAR(hear(Sounds::hiss(2, -50)), -50, 3);
}
