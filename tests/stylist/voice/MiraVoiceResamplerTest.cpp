#include "stylist/voice/MiraVoiceResampler.h"

#include "Sounds.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace loom;

TEST(MiraVoiceResamplerTest, AToneStaysTheSameToneWhateverPiecesItComesIn)
{
    struct Case {
        int from;
        int to;
        std::size_t piece;
    };
    for (const auto& [from, to, piece] :
         {Case{48000, 24000, 480}, Case{44100, 24000, 441}, Case{24000, 48000, 240}, Case{24000, 44100, 7},
          Case{16000, 24000, 1}, Case{24000, 24000, 100}, Case{96000, 24000, 20000}}) {
        constexpr double frequency = 1000;
        const Sounds::Samples tone = Sounds::tone(1, frequency, 0.5, from);
        MiraVoiceResampler resampler(from, to);
        std::vector<float> converted;
        for (std::size_t at = 0; at < tone.size(); at += piece) {
            const auto part = resampler.convert(std::span(tone).subspan(at, std::min(piece, tone.size() - at)));
            converted.insert(converted.end(), part.begin(), part.end());
        }
        EXPECT_NEAR(static_cast<double>(converted.size()), to, 3) << from << " to " << to;

        // What is left of it when the tone is taken away again, where the delay says it is.
        const double late = static_cast<double>(resampler.delay()) / to;
        EXPECT_LT(late, 0.003) << from << " to " << to;
        double left = 0;
        for (std::size_t i = static_cast<std::size_t>(to / 10); i < static_cast<std::size_t>(to) - 200; ++i) {
            const double time = static_cast<double>(i) / to - late;
            left = std::max(left, std::abs(converted[i] - 0.5 * std::sin(2 * M_PI * frequency * time)));
        }
        // The delay is told in whole samples: a third of one at most is missing.
        EXPECT_LT(left, 0.5 * 2 * M_PI * frequency / to) << from << " to " << to;
    }
}

TEST(MiraVoiceResamplerTest, WhatTheCallCannotCarryIsGoneInsteadOfFoldedBack)
{
    MiraVoiceResampler resampler(48000, 24000);
    const Sounds::Samples whistle = Sounds::tone(1, 15000, 0.5, 48000);
    const auto converted = resampler.convert(whistle);
    EXPECT_LT(Sounds::decibels(converted.subspan(1000)), -80);
}

TEST(MiraVoiceResamplerTest, ForgetsWhatCameBefore)
{
    MiraVoiceResampler resampler(24000, 48000);
    static_cast<void>(resampler.convert(Sounds::tone(0.1, 500, 0.9, 24000)));
    resampler.reset();
    const auto converted = resampler.convert(Sounds::silence(0.1));
    EXPECT_LT(Sounds::decibels(converted), -120);
}
