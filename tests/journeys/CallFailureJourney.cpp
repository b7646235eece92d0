#include "kit/CallingJourney.h"
#include "support/FakeClock.h"

namespace loom
{

namespace
{

constexpr auto cannotStart = "Mira can't pick up right now. Try again in a moment.";
constexpr auto busy = "Mira is on another call. Try again in a minute.";
constexpr auto hiccup = "The line hiccuped. Say that again?";
constexpr auto dropped = "The line dropped. Call again to keep talking.";
constexpr auto noMicrophone = "Couldn't start the microphone. Check that one is connected, then call again.";
constexpr auto microphoneOff =
    "Microphone access is off. Turn it on in System Settings › Privacy & Security › Microphone, then call again.";

const QString again = QStringLiteral("callAgain");
const QString coat = QStringLiteral("Show me a coat.");

/// What a shopper sees of calls that do not come about, or end too early. Time stands still; the microphone hears
/// silence all the time.
class CallFailureJourney : public CallingJourney
{
protected:
    /// As long as silence.
    static std::vector<float> hum()
    {
        std::vector<float> samples(960);
        for (std::size_t at = 0; at < samples.size(); ++at)
            samples[at] = at / 60 % 2 == 0 ? 0.3F : -0.3F;
        return samples;
    }
    void SetUp() override
    {
        CallingJourney::SetUp();
        store.setVoice({{QStringLiteral("ring"), 0},
                        {QStringLiteral("think"), 0},
                        {QStringLiteral("greets"), false},
                        {QStringLiteral("speech"), QStringLiteral("tones")}});
        m_flow.callOnTimeout(&m_flow, [this] {
            if (shop && shop->voiceAudio().isOpen())
                shop->voiceAudio().step(room);
        });
        m_flow.start(std::chrono::milliseconds(20));
    }

    void openChat()
    {
        start({}, {.clock = &clock});
        openDock();
    }
    void setAnswer(const char* answer) { store.setVoice({{QStringLiteral("answer"), QString::fromLatin1(answer)}}); }
    void end(const char* how)
    {
        store.stepIn(QStringLiteral("end"), {{QStringLiteral("how"), QString::fromLatin1(how)}});
    }

    const std::vector<float> silence = std::vector<float>(960); ///< for the time between two steps
    std::vector<float> room = silence;                          ///< what the microphone hears
    FakeClock clock;

private:
    QTimer m_flow;
};

TEST_F(CallFailureJourney, ACallThatDoesNotComeAboutSaysWhyAndCanBePlacedAgain)
{
    openChat();
    setAnswer("refuse");
    callFromChat();
    phone.awaitText(QString::fromLatin1(cannotStart));
    for (const auto& [answer, sentence] :
         {std::pair("error", cannotStart), std::pair("busy", busy), std::pair("ended", cannotStart),
          std::pair("drop", cannotStart), std::pair("silent", cannotStart)}) {
        SCOPED_TRACE(answer);
        setAnswer(answer);
        phone.click(again);
        if (answer == std::string_view("silent")) {
            waitUntil([this] { return known()[u"opening"].isObject(); }, "it rings");
            // What is said meanwhile is heard, and nobody is told.
            room = hum();
            waitUntil(
                [this] {
                    clock.advance(std::chrono::milliseconds(50));
                    return call().microphoneLevel() > 0;
                },
                "the microphone hears something");
            room = silence;
            clock.advance(MiraVoiceSession::answerTimeout);
        }
        phone.awaitText(QString::fromLatin1(sentence));
    }
    waitUntil([this] { return known()[u"state"] == QStringLiteral("over"); }, "the line is closed");
    EXPECT_EQ(known()[u"audio"][u"frames"], 0);

    const QJsonValue last = known()[u"id"];
    FakeVoiceAudio& audio = shop->voiceAudio();
    const auto streams = std::exchange(audio.streams, std::nullopt);
    for (const auto& [isGranted, failure, sentence] : {std::tuple(false, VoiceFailure::NoMicrophone, microphoneOff),
                                                       std::tuple(true, VoiceFailure::NoMicrophone, noMicrophone),
                                                       std::tuple(true, VoiceFailure::AccessRefused, microphoneOff)}) {
        audio.grantsAccess = isGranted;
        audio.failure = failure;
        phone.click(again);
        phone.awaitText(QString::fromUtf8(sentence));
    }
    EXPECT_EQ(known()[u"id"], last) << "she was called for nothing";
    audio.streams = streams;
    setAnswer("ready");
    phone.click(again);
    awaitPhase(QStringLiteral("Listening"));
    audio.fail(VoiceFailure::NoMicrophone);
    phone.awaitText(QString::fromLatin1(noMicrophone));
}

TEST_F(CallFailureJourney, ALineThatBreaksLeavesWhatWasSaidAndShown)
{
    openChat();
    callFromChat();
    awaitPhase(QStringLiteral("Listening"));
    store.stepIn(QStringLiteral("hear"), {{QStringLiteral("text"), coat}});
    awaitCaption(coat);
    const auto isShown = [this] {
        return !phone.findAll(QStringLiteral("callProduct.")).isEmpty();
    };
    waitUntil(isShown, "she shows something");
    store.stepIn(QStringLiteral("send"),
                 {{QStringLiteral("event"), QJsonObject{{QStringLiteral("type"), QStringLiteral("error")},
                                                        {QStringLiteral("code"), QStringLiteral("NOT_HEARD")}}}});
    phone.awaitText(QString::fromLatin1(hiccup));
    clock.advance(MiraVoiceSession::toastTime);
    phone.awaitNoText(QString::fromLatin1(hiccup));
    EXPECT_TRUE(call().isConnected());

    end("drop");
    phone.awaitText(QString::fromLatin1(dropped));
    awaitCaption(coat);
    EXPECT_TRUE(isShown());
    phone.click(again);
    awaitPhase(QStringLiteral("Listening"));
    phone.awaitGone(QStringLiteral("captions"));
    EXPECT_FALSE(isShown());

    // The same beside the page.
    phone.click(QStringLiteral("closeCall"));
    const QQuickItem* const bar = window.await(QStringLiteral("callBar"));
    window.awaitText(QStringLiteral("Listening"), bar);
    end("mid-frame");
    window.awaitText(QString::fromLatin1(dropped), bar);
    window.click(again);
    window.awaitText(QStringLiteral("Listening"), bar);
    end("ended-twice");
    window.awaitGone(QStringLiteral("callBar"));
    EXPECT_FALSE(phone.window()->isVisible());
}

TEST_F(CallFailureJourney, NothingThatTheLineBringsDoesHarm)
{
    openChat();
    callFromChat();
    awaitPhase(QStringLiteral("Listening"));
    for (const char* const kind :
         {"unknown", "types", "errors", "notJson", "binary", "deep", "base64", "odd", "noise", "hugeSpeech", "hugeText",
          "manyProducts", "prices", "markup", "control", "nav", "cart", "repeated"}) {
        SCOPED_TRACE(kind);
        const QString name = QString::fromLatin1(kind);
        store.stepIn(QStringLiteral("send"), {{QStringLiteral("hostile"), QJsonArray{name}}});
        store.stepIn(QStringLiteral("speak"), {{QStringLiteral("says"), name}});
        awaitCaption(name);
        phone.awaitFrame();
    }
    EXPECT_TRUE(call().isConnected());
    EXPECT_EQ(shop->openedInBrowser(), QList<QUrl>());
    EXPECT_EQ(shop->model().cart()->property("itemCount"), 0);
    phone.click(QStringLiteral("end"));
    awaitPhase(QStringLiteral("Call ended"));
}

TEST_F(CallFailureJourney, WhileTheStoreHasPausedCallsTheTelephoneSaysSo)
{
    store.setConfig({{QStringLiteral("features"), QJsonObject{{QStringLiteral("miraVoice"), false}}}});
    openChat();
    waitUntil([this] { return call().isPaused(); }, "calls are paused");
    window.click(QStringLiteral("callMira"));
    const QQuickItem* const banner = window.await(QStringLiteral("notificationBanner"));
    window.awaitText(QStringLiteral("Temporarily unavailable"), banner);
    window.awaitText(QStringLiteral("This feature is paused for now. Please try again later."), banner);
    EXPECT_FALSE(call().isActive());
    EXPECT_EQ(shop->voiceAudio().openings.size(), 0U);
    EXPECT_EQ(store.calls(), QJsonArray());
}

} // namespace

} // namespace loom
