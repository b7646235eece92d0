#include "stylist/voice/MiraVoiceAudio.h"

#include "Sounds.h"
#include "support/FakeVoiceAudio.h"
#include "support/Running.h"

#include <QTimer>

#include <gtest/gtest.h>

using namespace loom;

namespace
{

class MiraVoiceAudioTest : public testing::Test
{
protected:
    MiraVoiceAudioTest()
    {
        const auto tell = [this](const char* what) {
            return [this, what] {
                told.emplace_back(what);
            };
        };
        QObject::connect(audio.get(), &MiraVoiceAudio::playbackBegan, tell("Mira speaks"));
        QObject::connect(audio.get(), &MiraVoiceAudio::playbackEnded, tell("Mira ends"));
        QObject::connect(audio.get(), &MiraVoiceAudio::speechEnded, tell("pauses"));
        QObject::connect(audio.get(), &MiraVoiceAudio::failed, tell("fails"));
        QObject::connect(audio.get(), &MiraVoiceAudio::speechBegan,
                         [this](bool isInterruption) { told.emplace_back(isInterruption ? "interrupts" : "speaks"); });
    }

    std::optional<VoiceFailure> start() { return run(audio->start({}, {})); }

    /// Lets time go by, a hundredth of a second at once, until it is so; somebody speaks meanwhile, or nobody.
    void live(const std::function<bool()>& isMet, const std::string& what, bool isSpeaking = false)
    {
        const Sounds::Samples voice = Sounds::tone(0.01, 200, isSpeaking ? 0.2 : 0.0, 48000);
        QTimer time;
        QObject::connect(&time, &QTimer::timeout, &time, [&] { devices.step(voice); });
        time.start(0);
        waitUntil(isMet, what);
    }
    void liveUntil(const std::string& what, bool isSpeaking = false)
    {
        live([&] { return !told.empty() && told.back() == what; }, what, isSpeaking);
    }

    FakeVoiceAudio devices;
    std::atomic<int> sent = 0;
    int made = 0;
    bool canCancel = true;
    std::vector<std::string> told;
    std::unique_ptr<MiraVoiceAudio> audio = std::make_unique<MiraVoiceAudio>(
        devices, [this](const std::vector<float>&) { ++sent; },
        [this]() -> std::unique_ptr<EchoCanceller> {
            ++made;
            return canCancel ? EchoCanceller::make() : nullptr;
        });
};

} // namespace

TEST_F(MiraVoiceAudioTest, SaysWhyItCannotStart)
{
    devices.grantsAccess = false;
    EXPECT_EQ(start(), VoiceFailure::AccessRefused);
    EXPECT_TRUE(devices.openings.empty());
    devices.grantsAccess = true;
    const auto streams = std::exchange(devices.streams, std::nullopt);
    EXPECT_EQ(start(), VoiceFailure::NoMicrophone);
    EXPECT_FALSE(audio->isRunning());
    devices.streams = streams;
    EXPECT_EQ(start(), std::nullopt);
    EXPECT_TRUE(audio->isRunning());
}

TEST_F(MiraVoiceAudioTest, TakesTheEchoOutUnlessTheDesktopDoesAndGoesOnWithout)
{
    EXPECT_EQ(start(), std::nullopt);
    EXPECT_TRUE(audio->cancelsEcho());
    EXPECT_EQ(made, 1);

    canCancel = false;
    EXPECT_EQ(start(), std::nullopt);
    EXPECT_TRUE(audio->isRunning());
    EXPECT_FALSE(audio->cancelsEcho());
    EXPECT_EQ(made, 2);

    devices.streams->cancelsEcho = true;
    EXPECT_EQ(start(), std::nullopt);
    EXPECT_TRUE(audio->cancelsEcho());
    EXPECT_EQ(made, 2);

    VoiceStreams other = *devices.streams;
    other.cancelsEcho = false;
    canCancel = true;
    devices.change(other);
    EXPECT_TRUE(audio->cancelsEcho());
    EXPECT_EQ(made, 3);
}

TEST_F(MiraVoiceAudioTest, FollowsACallThroughItsTurns)
{
    EXPECT_EQ(start(), std::nullopt);
    audio->setSending(true);
    audio->play(Sounds::voice(0.3, -20, 200));
    EXPECT_TRUE(audio->isPlaying());
    audio->endOfSpeech();
    liveUntil("Mira speaks");
    liveUntil("Mira ends");
    EXPECT_FALSE(audio->isPlaying());

    live([] { return true; }, "a quiet moment");
    liveUntil("speaks", true);
    live([&] { return sent > 5; }, "chunks", true);
    EXPECT_GT(audio->microphoneLevel(), 0.5);
    liveUntil("pauses");

    audio->play(Sounds::voice(20, -20, 200));
    liveUntil("Mira speaks");
    audio->interrupt();
    EXPECT_FALSE(audio->isPlaying());
    live([&] { return devices.drops == 1; }, "silence");
    drainEvents();
    EXPECT_EQ(told.back(), "Mira speaks") << "what is thrown away has no end";

    VoiceStreams other = *devices.streams;
    other.captureRate = other.renderRate = 44100;
    devices.change(other);
    audio->play(Sounds::voice(0.2, -20, 200));
    audio->endOfSpeech();
    liveUntil("Mira ends");
    EXPECT_TRUE(audio->isRunning());

    devices.fail(VoiceFailure::NoMicrophone);
    EXPECT_EQ(told.back(), "fails");
    EXPECT_FALSE(audio->isRunning());
}

TEST_F(MiraVoiceAudioTest, CanBeStoppedOrDestroyedWhateverItDoes)
{
    // While it opens, by another start, and by whoever asked for it.
    devices.holdsOpening = true;
    Running first(audio->start({}, {}));
    Running second(audio->start({}, {}));
    EXPECT_EQ(first.result(), std::nullopt);
    audio->stop();
    EXPECT_EQ(second.result(), std::nullopt);
    std::stop_source stop;
    Running third(audio->start({}, stop.get_token()));
    stop.request_stop();
    EXPECT_EQ(third.result(), std::nullopt);
    EXPECT_FALSE(audio->isRunning());
    EXPECT_FALSE(devices.isOpen());
    devices.holdsOpening = false;

    // From its own signals; what the thread has told before is told no more.
    EXPECT_EQ(start(), std::nullopt);
    QObject::connect(audio.get(), &MiraVoiceAudio::playbackBegan, audio.get(), [this] { audio->stop(); });
    audio->play(Sounds::voice(0.1, -20));
    audio->endOfSpeech();
    liveUntil("Mira speaks");
    drainEvents();
    EXPECT_EQ(told.size(), 1);
    EXPECT_FALSE(audio->isPlaying());

    EXPECT_EQ(start(), std::nullopt);
    QObject::connect(audio.get(), &MiraVoiceAudio::failed, audio.get(), [this] { audio.reset(); });
    devices.fail(VoiceFailure::NoMicrophone);
    EXPECT_EQ(audio, nullptr);

    // And while it opens.
    audio = std::make_unique<MiraVoiceAudio>(devices, [](const std::vector<float>&) {});
    devices.holdsOpening = true;
    Running fourth(audio->start({}, {}));
    audio.reset();
    EXPECT_EQ(fourth.result(), std::nullopt);
    EXPECT_FALSE(devices.isOpen());
}
