#include "platform/PulseVoiceAudio.h"
#include "base/SystemClock.h"
#include "support/FakeClock.h"
#include "support/SoundRecorder.h"

#include <QTimer>

#include <atomic>
#include <mutex>

namespace
{

using namespace loom;

constexpr double low = 440;   // played into the room
constexpr double high = 1500; // rendered by the flow
constexpr double middle = 880;
constexpr double audible = 0.1;

/// Keeps what it hears, and renders a tone.
class ToneFlow final : public VoiceFlow
{
public:
    void captured(std::span<const float> samples) override
    {
        const std::scoped_lock lock(m_mutex);
        m_heard.insert(m_heard.end(), samples.begin(), samples.end());
        m_longest = std::max(m_longest, samples.size());
    }
    void render(std::span<float> samples, double delay) override
    {
        const std::scoped_lock lock(m_mutex);
        for (float& sample : samples)
            sample = m_tone[m_rendered++ % m_tone.size()];
        m_shortestDelay = std::min(m_shortestDelay, delay);
    }

    [[nodiscard]] double level(double frequency) const
    {
        const std::scoped_lock lock(m_mutex);
        const std::span<const float> all = m_heard;
        return toneLevel(all.last(std::min<std::size_t>(all.size(), SoundServer::rate / 5)), frequency);
    }
    void forget()
    {
        const std::scoped_lock lock(m_mutex);
        m_heard.clear();
    }
    [[nodiscard]] std::size_t heard() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_heard.size();
    }
    [[nodiscard]] std::size_t longest() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_longest;
    }
    [[nodiscard]] std::size_t rendered() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_rendered;
    }
    void forgetDelay()
    {
        const std::scoped_lock lock(m_mutex);
        m_shortestDelay = 1;
    }
    [[nodiscard]] double shortestDelay() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_shortestDelay;
    }

private:
    mutable std::mutex m_mutex;
    std::vector<float> m_heard;
    std::vector<float> m_tone = tone(high, 1);
    std::size_t m_rendered = 0;
    std::size_t m_longest = 0;
    double m_shortestDelay = 1;
};

/// Sound does not wake an event loop.
void waitForSound(const std::function<bool()>& isSo, const char* what)
{
    QTimer turn;
    turn.start(std::chrono::milliseconds(10));
    waitUntil(isSo, what);
}

class PulseVoiceAudioTest : public testing::Test
{
protected:
    PulseVoiceAudioTest()
    {
        QObject::connect(&audio, &VoiceAudio::streamsChanged, &audio,
                         [this](const VoiceStreams& streams) { changes.push_back(streams); });
        QObject::connect(&audio, &VoiceAudio::failed, &audio,
                         [this](VoiceFailure failure) { failures.push_back(failure); });
    }
    VoiceAudio::Opened open(const VoiceAudio::Choice& choice = {}) { return run(audio.open(choice, flow, {})); }
    void waitToHear(double frequency)
    {
        waitForSound([&] { return flow.level(frequency) > audible; }, "the microphone hears the room");
    }
    static void waitToPlay(SoundRecorder& recorder)
    {
        waitForSound([&] { return toneLevel(recorder.last(0.2), high) > audible; }, "the loudspeaker plays");
    }
    [[nodiscard]] static QStringList names(const std::vector<VoiceDevice>& devices)
    {
        QStringList names;
        for (const VoiceDevice& device : devices)
            names.append(device.id + (device.cancelsEcho ? QStringLiteral(" without echo") : QString()));
        return names;
    }

    SoundServer server;
    SystemClock clock;
    ToneFlow flow;
    PulseVoiceAudio audio{clock, QStringLiteral("com.loomstreet.Loomstreet")};
    std::vector<VoiceStreams> changes;
    std::vector<VoiceFailure> failures;
};

TEST_F(PulseVoiceAudioTest, TheRoomIsHeardAndWhatIsRenderedIsPlayedUntilItIsClosed)
{
    const auto sound = server.play(tone(low, 60));
    SoundRecorder recorder(server);
    EXPECT_TRUE(run(audio.requestAccess({})));
    const VoiceAudio::Opened opened = open();
    EXPECT_EQ(flow.heard() + flow.rendered(), 0U); // whoever opened it has to learn the rates first
    ASSERT_TRUE(opened.streams);
    EXPECT_EQ(opened.streams->captureRate, SoundServer::rate);
    EXPECT_EQ(opened.streams->renderRate, SoundServer::rate);
    EXPECT_FALSE(opened.streams->cancelsEcho);
    EXPECT_LT(opened.streams->captureLatency, 0.2);
    waitToHear(low);
    waitToPlay(recorder);
    EXPECT_LT(flow.level(high), audible);
    const auto shortestDelayAfter = [&](const std::function<void()>& action) {
        flow.forgetDelay();
        action();
        const std::size_t before = flow.rendered();
        waitForSound([&] { return flow.rendered() > before + SoundServer::rate / 15; }, "it plays on");
        return flow.shortestDelay();
    };
    EXPECT_LT(shortestDelayAfter([] {}), 0.2);
    EXPECT_LT(flow.longest(), SoundServer::rate / 20); // little at a time
    EXPECT_TRUE(server.ask({QStringLiteral("list"), QStringLiteral("source-outputs")})
                    .contains(QStringLiteral("application.id = \"com.loomstreet.Loomstreet\"")));
    EXPECT_LT(shortestDelayAfter([&] { audio.dropRendered(); }), 0.003); // what comes next is heard at once
    audio.close();
    const std::size_t heard = flow.heard();
    const std::size_t rendered = flow.rendered();
    waitForSound([&] { return toneLevel(recorder.last(0.1), high) < audible / 100; }, "it is silent");
    EXPECT_EQ(flow.heard(), heard);
    EXPECT_EQ(flow.rendered(), rendered);
    EXPECT_EQ(server.ask({QStringLiteral("list"), QStringLiteral("short"), QStringLiteral("sink-inputs")})
                  .split(QLatin1Char('\n'))
                  .size(),
              1); // that which plays into the room

    const auto measured = open({.wantsSpeaker = false});
    ASSERT_TRUE(measured.streams);
    EXPECT_EQ(measured.streams->renderRate, 0);
    waitForSound([&] { return flow.heard() > heard; }, "it is heard again");
    EXPECT_EQ(flow.rendered(), rendered);
    EXPECT_TRUE(failures.empty());
}

TEST_F(PulseVoiceAudioTest, NothingListensOnWhenItIsClosedWhileItOpens)
{
    audio.watchDevices(true);
    ASSERT_TRUE(open().streams);
    audio.close();
    static_cast<void>(audio.open({}, flow, {}));
    audio.close(); // the server is still making the streams
    ASSERT_TRUE(open().streams);
    audio.close();
    waitForSound(
        [&] {
            return !server.ask({QStringLiteral("list"), QStringLiteral("source-outputs")})
                        .contains(QStringLiteral("com.loomstreet.Loomstreet"));
        },
        "nobody listens any more");
}

TEST_F(PulseVoiceAudioTest, DevicesAreListedAsTheyComeAndGoAndTakenByChoice)
{
    audio.watchDevices(true);
    const QString mic = QStringLiteral("mic");
    const QString other = QStringLiteral("other");
    const QString speaker = QStringLiteral("speaker");
    const QString room = QStringLiteral("room");
    waitUntil([&] { return names(audio.microphones()) == QStringList{mic}; }, "the microphone is listed");
    EXPECT_EQ(names(audio.speakers()), (QStringList{speaker, room}));
    const QString den = QStringLiteral("den");
    const int denModule = server.addSink(den);
    static_cast<void>(server.addMicrophone(other, den));
    waitUntil([&] { return names(audio.microphones()) == QStringList{mic, other}; }, "the second one is listed");
    waitUntil([&] { return names(audio.speakers()) == QStringList{speaker, room, den}; }, "the loudspeaker is, too");

    const auto sound = server.play(tone(low, 60));
    const auto otherSound = server.play(tone(middle, 60), den);
    SoundRecorder recorder(server, room);
    ASSERT_TRUE(open({.microphone = other, .speaker = room}).streams);
    waitToHear(middle);
    EXPECT_LT(flow.level(low), audible);
    waitToPlay(recorder);
    ASSERT_TRUE(open({.microphone = QStringLiteral("gone"), .speaker = QStringLiteral("gone")}).streams);
    waitToHear(low);
    audio.close();
    server.remove(denModule);
    waitUntil([&] { return names(audio.speakers()) == QStringList{speaker, room}; }, "it is gone");
    audio.watchDevices(false);
}

TEST_F(PulseVoiceAudioTest, AFlowGoesOnOnTheDefaultDevicesAndEndsWithTheLastMicrophone)
{
    const QString den = QStringLiteral("den");
    const QString other = QStringLiteral("other");
    const QString second = QStringLiteral("second");
    static_cast<void>(server.addSink(den));
    const int otherModule = server.addMicrophone(other, den);
    const int secondModule = server.addSink(second);
    const auto sound = server.play(tone(low, 60));
    const auto otherSound = server.play(tone(middle, 60), den);
    SoundRecorder recorder(server);
    const auto opened = open({.microphone = other, .speaker = second});
    ASSERT_TRUE(opened.streams);
    waitToHear(middle);

    server.remove(otherModule);
    waitToHear(low);
    waitUntil([&] { return !changes.empty(); }, "it is told");
    EXPECT_EQ(changes.back().captureRate, opened.streams->captureRate);
    changes.clear();
    server.remove(secondModule);
    waitToPlay(recorder);
    waitUntil([&] { return !changes.empty(); }, "it is told");
    EXPECT_EQ(changes.back().renderRate, opened.streams->renderRate);

    // Pulled out and put in again.
    server.remove(server.microphoneModule());
    waitUntil([&] { return audio.microphones().empty(); }, "there is none");
    flow.forget();
    static_cast<void>(server.addMicrophone(QStringLiteral("again"), QStringLiteral("room")));
    waitToHear(low);
    EXPECT_TRUE(failures.empty());
}

TEST_F(PulseVoiceAudioTest, WithoutAMicrophoneNothingOpensAndAFlowEnds)
{
    ASSERT_TRUE(open().streams);
    server.remove(server.microphoneModule());
    waitUntil([&] { return !failures.empty(); }, "it ends");
    EXPECT_EQ(failures, std::vector{VoiceFailure::NoMicrophone});
    const auto opened = open();
    EXPECT_FALSE(opened.streams);
    EXPECT_EQ(opened.failure, VoiceFailure::NoMicrophone);
}

TEST_F(PulseVoiceAudioTest, TheDesktopsOwnEchoCancellerIsPreferredAndItsLossIsTold)
{
    const int canceller = server.load({QStringLiteral("module-echo-cancel"), QStringLiteral("source_name=clean"),
                                       QStringLiteral("sink_name=through"), QStringLiteral("source_master=mic"),
                                       QStringLiteral("sink_master=speaker")});
    SoundRecorder recorder(server);
    const auto sound = server.play(tone(low, 60));
    const auto opened = open();
    ASSERT_TRUE(opened.streams);
    EXPECT_TRUE(opened.streams->cancelsEcho);
    EXPECT_TRUE(names(audio.microphones()).contains(QStringLiteral("clean without echo")));
    waitToPlay(recorder);
    waitForSound([&] { return flow.heard() > 0; }, "something is heard");

    server.remove(canceller);
    waitUntil([&] { return !changes.empty() && !changes.back().cancelsEcho; }, "it is told");
    waitToHear(low);
    recorder.forget();
    waitToPlay(recorder);
}

TEST_F(PulseVoiceAudioTest, AServerThatDiesEndsTheFlowAndServesAgainWhenItIsBack)
{
    ASSERT_TRUE(open().streams);
    server.crash();
    waitUntil([&] { return !failures.empty(); }, "the flow ends");
    EXPECT_EQ(failures, std::vector{VoiceFailure::NoMicrophone});
    EXPECT_TRUE(audio.microphones().empty());
    EXPECT_FALSE(open().streams);
    server.start();
    const auto sound = server.play(tone(low, 60));
    ASSERT_TRUE(open().streams);
    waitToHear(low);
}

TEST_F(PulseVoiceAudioTest, NobodyWaitsForAServerThatDoesNotAnswer)
{
    FakeClock still;
    server.setFrozen(true);
    auto held = std::make_unique<PulseVoiceAudio>(still, QStringLiteral("com.loomstreet.Loomstreet"));
    Running opening(held->open({}, flow, {}));
    drainEvents();
    EXPECT_FALSE(opening.isDone());
    still.advance(PulseVoiceAudio::openingPatience);
    EXPECT_FALSE(opening.result().streams);

    std::stop_source stop;
    Running stopped(held->open({}, flow, stop.get_token()));
    Running superseded(held->open({}, flow, {}));
    EXPECT_FALSE(stopped.result().streams);
    stop.request_stop(); // of what is over
    drainEvents();
    EXPECT_FALSE(superseded.isDone());
    held.reset();
    EXPECT_FALSE(superseded.result().streams);

    ASSERT_FALSE(audio.microphones().size());
    Running again(audio.open({}, flow, stop.get_token()));
    EXPECT_FALSE(again.result().streams);
    std::stop_source other;
    Running cancelled(audio.open({}, flow, other.get_token()));
    other.request_stop();
    EXPECT_FALSE(cancelled.result().streams);
    server.setFrozen(false);
    EXPECT_TRUE(open().streams);
}

} // namespace
