#include "stylist/voice/EchoCanceller.h"

#include "Sounds.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace loom;

namespace
{

constexpr std::size_t frame = voiceFormat::frameSamples;

/// What the canceller makes of `heard` while `played` is played.
Sounds::Samples cleaned(EchoCanceller& canceller, std::span<const float> played, Sounds::Samples heard)
{
    for (std::size_t at = 0; at + frame <= heard.size(); at += frame) {
        canceller.played(played.subspan(at, frame));
        canceller.heard(std::span(heard).subspan(at, frame), 0);
    }
    return heard;
}

std::span<const float> seconds(const Sounds::Samples& samples, int from, int to)
{
    return std::span(samples).subspan(static_cast<std::size_t>(from * voiceFormat::sampleRate),
                                      static_cast<std::size_t>((to - from) * voiceFormat::sampleRate));
}

/// How much of `voice` is in `sound`, wherever within 20 ms it is: as a correlation, and how much quieter.
std::pair<double, double> resemblance(std::span<const float> voice, std::span<const float> sound)
{
    double best = 0;
    for (std::size_t lag = 0; lag < 480; ++lag) {
        double product = 0;
        double ofVoice = 1e-12;
        double ofSound = 1e-12;
        for (std::size_t i = 0; i + lag < sound.size(); ++i) {
            product += voice[i] * sound[i + lag];
            ofVoice += voice[i] * voice[i];
            ofSound += sound[i + lag] * sound[i + lag];
        }
        best = std::max(best, product / std::sqrt(ofVoice * ofSound));
    }
    return {best, Sounds::decibels(voice) - Sounds::decibels(sound)};
}

} // namespace

TEST(EchoCancellerTest, TakesTwentyDecibelsOutOfEveryRoomAfterTwoSeconds)
{
    const Sounds::Samples played = Sounds::voice(6, -20, 200);
    for (const double delay : {0.02, 0.05, 0.08}) {
        Sounds::Samples heard = Room(delay, 0.15, 0.5).hear(played);
        Sounds::mix(heard, Sounds::hiss(6, -66));
        const auto canceller = EchoCanceller::make();
        ASSERT_TRUE(canceller);
        const Sounds::Samples rest = cleaned(*canceller, played, heard);
        EXPECT_GE(Sounds::decibels(seconds(heard, 2, 6)) - Sounds::decibels(seconds(rest, 2, 6)), 20)
            << delay << " s away";
    }
}

TEST(EchoCancellerTest, LeavesTheShopperInWhileBothSpeak)
{
    const Sounds::Samples played = Sounds::voice(7, -20, 200);
    const Sounds::Samples shopper = Sounds::voice(4, -23, 115, 3);
    Sounds::Samples heard = Room(0.04, 0.15, 0.35).hear(played);
    Sounds::mix(heard, Sounds::hiss(7, -66));
    Sounds::mix(heard, shopper, 3);
    const auto canceller = EchoCanceller::make();
    ASSERT_TRUE(canceller);
    const Sounds::Samples rest = cleaned(*canceller, played, heard);
    const auto [correlation, loss] = resemblance(shopper, seconds(rest, 3, 7));
    EXPECT_GE(correlation, 0.75);
    EXPECT_LE(loss, 6);
}

TEST(EchoCancellerTest, LeavesAShopperAloneWhileNothingIsPlayed)
{
    const Sounds::Samples shopper = Sounds::voice(3, -22);
    const auto canceller = EchoCanceller::make();
    ASSERT_TRUE(canceller);
    const Sounds::Samples rest = cleaned(*canceller, Sounds::silence(3), shopper);
    const auto [correlation, loss] = resemblance(shopper, rest);
    EXPECT_GE(correlation, 0.98);
    EXPECT_NEAR(loss, 0, 0.5);
}
