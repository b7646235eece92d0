#include "stylist/voice/SpeechQueue.h"

#include "Sounds.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

using namespace loom;

namespace
{

constexpr std::size_t frame = voiceFormat::frameSamples;

/// A line that delivers chunks at times, and a loudspeaker that takes a frame every ten milliseconds.
class Evening
{
public:
    /// After so many milliseconds from now.
    void deliver(int after, std::vector<float> samples) { m_deliveries.emplace(m_now + after, std::move(samples)); }

    /// Lets so much time go by. Answers with what was played of it, silence included.
    Sounds::Samples listen(int milliseconds)
    {
        Sounds::Samples heard;
        for (const int until = m_now + milliseconds; m_now < until; m_now += 10) {
            while (!m_deliveries.empty() && m_deliveries.begin()->first <= m_now)
                queue.add(m_deliveries.extract(m_deliveries.begin()).mapped());
            queue.pass(frame);
            std::vector<float> played(frame);
            const bool isPlaying = queue.read(played);
            isSilent.push_back(!isPlaying);
            heard.insert(heard.end(), played.begin(), played.end());
        }
        return heard;
    }
    /// How many times speech broke off in the middle of what was played since the last call.
    int gaps()
    {
        int count = 0;
        for (std::size_t i = 1; i < isSilent.size(); ++i)
            count += isSilent[i] && !isSilent[i - 1] ? 1 : 0;
        isSilent.clear();
        return count;
    }

    SpeechQueue queue;
    std::vector<bool> isSilent;

private:
    int m_now = 0;
    std::multimap<int, std::vector<float>> m_deliveries;
};

std::vector<float> chunk(int milliseconds = 40)
{
    return std::vector<float>(static_cast<std::size_t>(milliseconds) * voiceFormat::sampleRate / 1000, 0.5F);
}

std::size_t heardSamples(const Sounds::Samples& heard)
{
    return static_cast<std::size_t>(std::ranges::count_if(heard, [](float sample) { return sample > 0.3F; }));
}

/// Two seconds of speech over a line whose every fifth chunk is `late` milliseconds late, and takes the next with it.
int gapsOfUtterance(Evening& evening, int late)
{
    evening.gaps();
    int free = 0;
    for (int i = 0; i < 50; ++i) {
        free = std::max(free, i * 40 + (i % 5 == 4 ? late : 0));
        evening.deliver(free, chunk());
    }
    evening.listen(3000);
    evening.queue.end();
    evening.listen(1500);
    return evening.gaps() - 1; // its end is none
}

} // namespace

TEST(SpeechQueueTest, LearnsFromAnUnevenLineAndForgetsItAgain)
{
    Evening evening;
    EXPECT_EQ(gapsOfUtterance(evening, 0), 0);
    const std::size_t onGoodLine = evening.queue.preRoll();
    EXPECT_GE(gapsOfUtterance(evening, 250), 1);
    EXPECT_EQ(gapsOfUtterance(evening, 250), 0) << "the second time it is prepared";
    EXPECT_GT(evening.queue.preRoll(), onGoodLine);
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(gapsOfUtterance(evening, 0), 0);
    EXPECT_LE(evening.queue.preRoll(), onGoodLine);
}

TEST(SpeechQueueTest, EveryUtteranceBeginsAnewSoThatNoDelayIsCarriedOver)
{
    Evening evening;
    for (int utterance = 0; utterance < 20; ++utterance) {
        for (int i = 0; i < 25; ++i) // a second, the half of it arriving late
            evening.deliver(i * 40 + (i > 10 ? 300 : 0), chunk());
        evening.listen(10);
        std::size_t waited = 0;
        while (heardSamples(evening.listen(10)) == 0)
            waited += frame;
        EXPECT_LE(waited, SpeechQueue::mostPreRoll);
        evening.listen(2500);
        evening.queue.end();
        EXPECT_TRUE(evening.queue.isIdle());
    }
}

TEST(SpeechQueueTest, PlaysAllThatWasGivenHoweverLittleItIs)
{
    Evening evening;
    evening.deliver(0, chunk(23));
    evening.listen(10);
    evening.queue.end();
    EXPECT_NEAR(static_cast<double>(heardSamples(evening.listen(30))), 23 * 24, 150) << "at once: nothing more comes";
    EXPECT_TRUE(evening.queue.isIdle());

    evening.deliver(0, chunk(23));
    EXPECT_NEAR(static_cast<double>(heardSamples(evening.listen(300))), 23 * 24, 150) << "and without being told";
    EXPECT_FALSE(evening.queue.isIdle());
    evening.listen(700);
    EXPECT_TRUE(evening.queue.isIdle()) << "an utterance of which nothing comes any more is over";
}

TEST(SpeechQueueTest, ALineThatComesWhileTheOneBeforeIsPlayedIsNotOverWhereItIsLate)
{
    Evening evening;
    evening.deliver(0, chunk(300));
    evening.listen(20);
    evening.queue.end();
    evening.deliver(0, chunk(100));
    evening.deliver(600, chunk(300));
    evening.listen(550);
    EXPECT_FALSE(evening.queue.isIdle());
    evening.listen(500);
    evening.queue.end();
    evening.listen(500);
    EXPECT_TRUE(evening.queue.isIdle());
}

TEST(SpeechQueueTest, NothingClicksWhereSpeechBeginsOrBreaksOff)
{
    Evening evening;
    evening.deliver(0, chunk(200));
    evening.deliver(600, chunk(200));
    evening.listen(20);
    const Sounds::Samples heard = evening.listen(1500);
    float step = 0;
    for (std::size_t i = 1; i < heard.size(); ++i)
        step = std::max(step, std::abs(heard[i] - heard[i - 1]));
    EXPECT_GT(heardSamples(heard), 0);
    EXPECT_LT(step, 0.02F);
}

TEST(SpeechQueueTest, WhatIsClearedIsNeverHeardAndWhatFollowsIs)
{
    Evening evening;
    evening.deliver(0, chunk(2000));
    evening.listen(500);
    evening.queue.clear();
    EXPECT_TRUE(evening.queue.isIdle());
    EXPECT_EQ(heardSamples(evening.listen(500)), 0);
    evening.deliver(0, chunk(300));
    EXPECT_NEAR(static_cast<double>(heardSamples(evening.listen(1000))), 300 * 24, 150);
}

TEST(SpeechQueueTest, AServiceThatNeverStopsIsNotKeptWithoutEnd)
{
    SpeechQueue queue;
    for (int i = 0; i < 10; ++i)
        queue.add(std::vector<float>(std::size_t{60} * voiceFormat::sampleRate, 0.5F));
    queue.end();
    queue.pass(frame);
    std::vector<float> played(frame);
    std::size_t seconds = 0;
    while (queue.read(played))
        seconds += frame;
    EXPECT_LE(seconds, SpeechQueue::mostWaiting);
}
