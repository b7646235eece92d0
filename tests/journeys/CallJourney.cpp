#include "base/SystemClock.h"
#include "commerce/CartStore.h"
#include "kit/CallingJourney.h"
#include "platform/PulseVoiceAudio.h"
#include "support/SoundRecorder.h"

#include <QSignalSpy>

#include <cmath>
#include <numeric>

namespace loom
{

namespace
{

const QString applicationID = QStringLiteral("com.loomstreet.Loomstreet");
constexpr float audible = 0.01F;
/// Nobody who speaks pauses for so long.
constexpr std::size_t pause = SoundServer::rate * 4 / 5;

float loudness(std::span<const float> samples)
{
    const float power = std::inner_product(samples.begin(), samples.end(), samples.begin(), 0.0F);
    return samples.empty() ? 0 : std::sqrt(power / static_cast<float>(samples.size()));
}

/// After how many seconds nothing is heard for as long as a pause takes.
std::optional<double> silenceBegan(std::span<const float> samples)
{
    std::size_t quiet = 0;
    for (std::size_t at = 0; at < samples.size(); ++at) {
        quiet = std::abs(samples[at]) < audible / 10 ? quiet + 1 : 0;
        if (quiet == pause)
            return static_cast<double>(at - pause) / SoundServer::rate;
    }
    return std::nullopt;
}

/// A call with the sound of the application itself: a voice is played into a room in which its microphone is, and its
/// loudspeaker is listened to.
class CallJourney : public CallingJourney
{
protected:
    /// The shopper says something.
    void speak(const QString& words)
    {
        const QString file = m_folder.filePath(QStringLiteral("voice.wav"));
        const auto synthesis = m_server.run(QStringLiteral("espeak-ng"),
                                            {QStringLiteral("-v"), QStringLiteral("en-us+m3"), QStringLiteral("-a"),
                                             QStringLiteral("180"), QStringLiteral("-w"), file, words});
        waitUntil([&] { return synthesis->state() == QProcess::NotRunning; }, "there is a voice");
        m_voice = m_server.playFile(file);
    }
    void awaitSpoken() const
    {
        waitUntil([this] { return m_voice->state() == QProcess::NotRunning; }, "the shopper has said it");
        EXPECT_EQ(m_voice->exitCode(), 0);
    }
    void awaitSound()
    {
        waitUntil([this] { return loudness(recorder.last(0.2)) > audible; }, "she is heard");
    }
    /// The application has a microphone open, as the desktop sees it.
    [[nodiscard]] bool listens() const
    {
        return m_server.ask({QStringLiteral("list"), QStringLiteral("source-outputs")}).contains(applicationID);
    }
    [[nodiscard]] int framesSent() { return known()[u"audio"][u"frames"].toInt(); }

private:
    QTemporaryDir m_folder;
    SoundServer m_server;
    OwnedProcess m_voice;
    SystemClock m_clock;

protected:
    PulseVoiceAudio audio{m_clock, applicationID};
    SoundRecorder recorder{m_server};
};

TEST_F(CallJourney, AShopperTalksInterruptsBuysGoesElsewhereAndHangsUp)
{
    const QString lining = QStringLiteral("It is lined with silk.");
    store.setVoice(
        {{QStringLiteral("ring"), 1500},
         {QStringLiteral("think"), 600},
         // A machine that is busy makes pauses in everything.
         {QStringLiteral("pause"), 1200},
         // All she has to say comes at once, and only this side can keep it from being heard.
         {QStringLiteral("ahead"), 60000},
         {QStringLiteral("script"), QJsonArray{QStringLiteral("Show me a coat."), QStringLiteral("Put it in my bag."),
                                               QStringLiteral("Open my wishlist."),
                                               QJsonObject{{QStringLiteral("heard"), QStringLiteral("Is it lined?")},
                                                           {QStringLiteral("says"), lining}}}}});
    start({}, {.voiceAudio = &audio});
    openDock();
    EXPECT_FALSE(listens());
    callFromChat();
    const QSignalSpy phases(phone.await(QStringLiteral("phase")), SIGNAL(textChanged(QString)));
    awaitPhase(QStringLiteral("Calling…"));
    phone.awaitText(QStringLiteral("Microphone is on"));
    EXPECT_TRUE(listens());
    awaitPhase(QStringLiteral("Speaking"));
    awaitSound();
    awaitSaid(QStringLiteral("Mira"));
    awaitPhase(QStringLiteral("Listening"));

    speak(QStringLiteral("Show me a coat."));
    awaitCaption(QStringLiteral("Show me a coat."));
    waitUntil([this] { return !phone.findAll(QStringLiteral("callProduct.")).isEmpty(); }, "she shows something");
    awaitPhase(QStringLiteral("Speaking"));
    awaitSound();
    EXPECT_TRUE(phases.contains(QVariantList{QStringLiteral("Thinking")}));

    // The longer she speaks the surer it is that what is heard is not she.
    recorder.forget();
    waitUntil([this] { return recorder.samples().size() > 4UL * SoundServer::rate; }, "she has spoken for a while");
    recorder.forget();
    speak(QStringLiteral("Wow, Mira, a real one! Put it in my bag."));
    std::optional<double> silence;
    waitUntil([&] { return (silence = silenceBegan(recorder.samples())).has_value(); }, "she falls silent");
    EXPECT_LT(*silence, 3) << "seconds, with those until the shopper began";
    waitUntil([this] { return call().toast().startsWith(QStringLiteral("Added ")); }, "it is in the bag");
    phone.awaitText(call().toast());
    const std::vector<CartLine>& bag = shop->model().cartStore().cart()->lines;
    ASSERT_EQ(bag.size(), 1U);
    EXPECT_EQ(call().toast(), QStringLiteral("Added %1 to your cart").arg(bag.front().productTitle));
    EXPECT_EQ(window.await(QStringLiteral("bag"))->property("badge"), 1);
    EXPECT_EQ(known()[u"interruptions"], 1);
    awaitSaid(QStringLiteral("is in your bag"));

    speak(QStringLiteral("Open my wishlist."));
    phone.awaitText(QStringLiteral("Opening Wishlist"));
    window.awaitPage(QStringLiteral("Wishlist"));
    awaitSaid(QStringLiteral("wishlist"));

    phone.click(QStringLiteral("mute"));
    awaitPhase(QStringLiteral("Muted"));
    const int before = framesSent();
    EXPECT_GT(before, 0);
    speak(QStringLiteral("Nobody is to hear this."));
    awaitSpoken();
    EXPECT_EQ(framesSent(), before);
    Q_EMIT shop->muteKey().pressed();
    awaitPhase(QStringLiteral("Listening"));

    phone.click(QStringLiteral("miniCall"));
    phone.hover(phone.await(QStringLiteral("mute")));
    phone.click(QStringLiteral("floatCall"));
    phone.click(QStringLiteral("floatingPicture"));
    phone.click(QStringLiteral("chat"));
    const QQuickItem* const bar = window.await(QStringLiteral("callBar"));
    EXPECT_FALSE(phone.window()->isVisible());
    speak(QStringLiteral("Is it lined?"));
    window.awaitText(lining, bar);
    sayAndAwait(QStringLiteral("I write this meanwhile"));
    EXPECT_EQ(timesShown(QStringLiteral("I write this meanwhile")), 1);
    EXPECT_TRUE(call().isConnected());

    window.click(QStringLiteral("callInWindow"));
    awaitPhase(QStringLiteral("Listening"));
    const int last = framesSent();
    speak(QStringLiteral("That is all for today, thank you very much, goodbye!"));
    waitUntil([&] { return framesSent() > last; }, "the shopper is heard");
    phone.click(QStringLiteral("end"));
    awaitPhase(QStringLiteral("Call ended"));
    waitUntil([this] { return !listens(); }, "the microphone is closed");
    awaitCaption(lining);
    EXPECT_FALSE(phone.findAll(QStringLiteral("callProduct.")).isEmpty());
    waitUntil([this] { return known()[u"state"] == QStringLiteral("over"); }, "the line is closed");
    const QJsonObject over = known();
    EXPECT_EQ(over[u"closed"],
              (QJsonObject{{QStringLiteral("code"), 1000}, {QStringLiteral("by"), QStringLiteral("application")}}));
    EXPECT_TRUE(over[u"hangup"].toBool());
    EXPECT_EQ(over[u"problems"], QJsonArray());
    EXPECT_EQ(over[u"audio"][u"framesBeforeReady"], 0);
    EXPECT_EQ(over[u"audio"][u"framesAfterHangup"], 0);
    EXPECT_EQ(over[u"audio"][u"samplesPerFrame"].toObject().keys(), QStringList(QStringLiteral("960")));
    // It can be read where the shopper has written.
    window.click(QStringLiteral("miraMenu"));
    window.click(QStringLiteral("menu.refresh"));
    awaitMessage(lining);
}

} // namespace

} // namespace loom
