#include "stylist/voice/MiraVoiceEngine.h"

#include "VoiceScene.h"

#include <gtest/gtest.h>

#include <cmath>

#if __has_feature(address_sanitizer)
#include <sanitizer/allocator_interface.h>
#endif

using namespace loom;

TEST(MiraVoiceEngineTest, AnInterruptionSilencesMiraWithinATenthOfASecondAndHerEchoDoesNot)
{
    const VoiceScene::Devices rooms[] = {
        {},
        {.fragment = 0.02, .speakerDelay = 0.04},
        {.fragment = 0.01, .speakerDelay = 0.15},
        {.fragment = 0.01, .speakerDelay = 0.06, .speakerDelayError = -0.04},
        {.fragment = 0.01, .speakerDelay = 0.02, .captureRate = 44100, .renderRate = 44100},
        {.fragment = 0.02, .speakerDelay = 0.03, .captureRate = 16000},
    };
    for (std::size_t i = 0; i < std::size(rooms); ++i) {
        VoiceScene scene(rooms[i]);
        scene.wait(0.5);
        scene.engine.play(Sounds::voice(6, -18, 200));
        scene.wait(3.5);
        EXPECT_THAT(scene.told(), testing::ElementsAre("Mira speaks")) << "room " << i;
        const double before = scene.now;
        EXPECT_GE(scene.lastHeard, before - 0.5);

        scene.live(Sounds::voice(1.5, -24, 115, 3));
        EXPECT_THAT(scene.told(), testing::ElementsAre("Mira speaks", "interrupts")) << "room " << i;
        EXPECT_LE(scene.events.back().first - before, 0.1) << "room " << i;
        EXPECT_LE(scene.lastHeard - before, 0.1) << "room " << i;
        EXPECT_EQ(scene.audio.drops, 1);
        scene.wait(1.5);
        EXPECT_THAT(scene.told(), testing::ElementsAre("Mira speaks", "interrupts", "pauses")) << "room " << i;

        // What still comes of her turn is thrown away until the main thread knows.
        scene.engine.play(Sounds::voice(1, -18, 200));
        scene.wait(0.5);
        EXPECT_LE(scene.lastHeard - before, 0.1);
        scene.engine.acceptSpeech();
        scene.engine.play(Sounds::voice(1, -18, 200));
        scene.wait(0.5);
        EXPECT_EQ(scene.told().back(), "Mira speaks") << "room " << i;
    }
}

TEST(MiraVoiceEngineTest, FindsOutThatTheSoundServerIsWrongAboutItsDelays)
{
    for (const double error : {-0.15, 0.1}) {
        VoiceScene scene({.speakerDelay = 0.2, .speakerDelayError = error});
        scene.wait(0.5);
        scene.engine.play(Sounds::voice(12, -18, 200));
        scene.wait(8);
        EXPECT_THAT(scene.told(), testing::ElementsAre("Mira speaks")) << error;
        const double before = scene.now;
        scene.live(Sounds::voice(1, -24, 115, 3));
        EXPECT_THAT(scene.told(), testing::ElementsAre("Mira speaks", "interrupts")) << error;
        EXPECT_LE(scene.lastHeard - before, 0.1) << error;
    }
}

TEST(MiraVoiceEngineTest, SendsWhatIsSpokenWithTheMomentBeforeItAndNothingElse)
{
    VoiceScene scene({.captureRate = 24000, .renderRate = 24000, .loudness = 0}, nullptr);
    scene.wait(1);
    scene.live(Sounds::voice(2, -22));
    scene.wait(2);
    EXPECT_THAT(scene.told(), testing::ElementsAre("speaks", "pauses"));

    // One stretch of what was captured, from before the voice into its hang-over.
    Sounds::Samples sent;
    for (const std::vector<float>& chunk : scene.sent) {
        EXPECT_EQ(chunk.size(), voiceFormat::chunkSamples);
        sent.insert(sent.end(), chunk.begin(), chunk.end());
    }
    const auto where = std::ranges::search(scene.captured, sent);
    ASSERT_FALSE(where.empty());
    const double begin = static_cast<double>(where.begin() - scene.captured.begin()) / voiceFormat::sampleRate;
    EXPECT_GE(begin, 0.8);
    EXPECT_LE(begin, 0.95);
    EXPECT_NEAR(begin + static_cast<double>(sent.size()) / voiceFormat::sampleRate, 3.5, 0.25);
}

TEST(MiraVoiceEngineTest, NothingIsSentWhileTheLineIsNotOpenOrTheMicrophoneIsMuted)
{
    VoiceScene scene({.loudness = 0}, nullptr);
    scene.engine.setSending(false);
    scene.live(Sounds::voice(1, -22));
    EXPECT_TRUE(scene.events.empty());
    EXPECT_GT(scene.engine.microphoneLevel(), 0.3);
    scene.engine.setSending(true);
    scene.live(Sounds::voice(1, -22));
    EXPECT_THAT(scene.told(), testing::ElementsAre("speaks"));
    const std::size_t sent = scene.sent.size();
    EXPECT_LE(sent, 25) << "nothing of what was said before";

    scene.engine.setMuted(true);
    EXPECT_EQ(scene.engine.microphoneLevel(), 0);
    scene.live(Sounds::voice(2, -22));
    EXPECT_THAT(scene.told(), testing::ElementsAre("speaks", "pauses"));
    EXPECT_EQ(scene.sent.size(), sent);
    EXPECT_EQ(scene.engine.microphoneLevel(), 0);

    scene.engine.setMuted(false);
    scene.wait(1);
    EXPECT_EQ(scene.sent.size(), sent) << "nor what was said while it was muted";
}

TEST(MiraVoiceEngineTest, TellsOfTheEndWhenTheLastOfItIsHeard)
{
    for (const int renderRate : {48000, 0}) { // without a loudspeaker her speech takes its time all the same
        VoiceScene scene({.speakerDelay = 0.2, .loudness = 0});
        if (renderRate == 0) {
            scene.audio.streams->renderRate = 0;
            scene.engine.setStreams(*scene.audio.streams, nullptr);
            scene.audio.streams->renderRate = 48000;
        }
        scene.engine.play(std::vector<float>(24000, 0.3F));
        scene.engine.play(std::vector<float>(240, 0.3F));
        scene.engine.endOfSpeech();
        scene.wait(2);
        ASSERT_THAT(scene.told(), testing::ElementsAre("Mira speaks", "Mira ends 2"));
        if (renderRate != 0) {
            EXPECT_GE(scene.events.back().first, scene.lastHeard - 0.02);
            EXPECT_LE(scene.events.back().first, scene.lastHeard + 0.05);
        } else {
            EXPECT_NEAR(scene.events.back().first, 1.05, 0.1);
        }
    }
}

TEST(MiraVoiceEngineTest, GoesOnWithOtherStreamsWhereverItStands)
{
    VoiceScene scene({.loudness = 0}, nullptr);
    scene.engine.play(Sounds::voice(3, -18, 200));
    scene.live(Sounds::voice(0.1, -22));
    scene.audio.streams->captureRate = 16000; // the fake goes on at the old rates: only that nothing breaks counts
    for (const VoiceStreams& streams :
         {VoiceStreams{.captureRate = 16000, .renderRate = 44100}, VoiceStreams{.captureRate = 8000, .renderRate = 0},
          VoiceStreams{.captureRate = 0, .renderRate = 192000, .captureLatency = NAN},
          VoiceStreams{.captureRate = 16000, .renderRate = 48000, .cancelsEcho = true}}) {
        scene.engine.setStreams(streams, nullptr);
        scene.wait(0.4);
    }
    scene.wait(4);
    EXPECT_EQ(scene.told().back(), "Mira ends 1");
    EXPECT_EQ(scene.engine.playedLevel() > 0.5, false);
}

TEST(MiraVoiceEngineTest, NoticesAMicrophoneThatHasFallenSilent)
{
    VoiceScene scene({});
    scene.wait(0.1);
    for (int i = 0; i < 1100; ++i) {
        static_cast<void>(scene.audio.render(480));
        scene.engine.step();
    }
    EXPECT_THAT(scene.told(), testing::ElementsAre("silence")) << "once";
}

TEST(MiraVoiceEngineTest, SamplesThatAreNoNumbersDoNotPoisonTheCall)
{
    VoiceScene scene({});
    scene.audio.capture(std::vector<float>(4800, NAN));
    scene.audio.capture(std::vector<float>(4800, INFINITY));
    scene.engine.step();
    scene.wait(1);
    scene.live(Sounds::voice(1, -22));
    EXPECT_EQ(scene.told().back(), "speaks");
    ASSERT_FALSE(scene.sent.empty());
    EXPECT_TRUE(std::isfinite(scene.sent.back().back()));
}

#if __has_feature(address_sanitizer)

namespace
{
thread_local int allocations = 0;
} // namespace

TEST(MiraVoiceEngineTest, TheSoundServersThreadAllocatesNothing)
{
    VoiceScene scene({.loudness = 0});
    scene.engine.play(Sounds::voice(2, -18, 200));
    scene.wait(1);
    std::vector<float> samples(960, 0.1F);
    ASSERT_NE(__sanitizer_install_malloc_and_free_hooks([](const volatile void*, std::size_t) { ++allocations; },
                                                        [](const volatile void*) { ++allocations; }),
              0);
    allocations = 0;
    delete std::make_unique<int>(1).release(); // NOLINT(cppcoreguidelines-owning-memory)
    const int noticed = allocations;
    allocations = 0;
    for (int i = 0; i < 200; ++i) { // without a step: the rings run over and run dry
        scene.engine.captured(samples);
        scene.engine.render(samples, 0.02);
    }
    EXPECT_EQ(allocations, 0);
    EXPECT_EQ(noticed, 2);
}

#endif
