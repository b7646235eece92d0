#include "MiraVoiceFixture.h"

#include <QJsonDocument>
#include <QThreadPool>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

class MiraVoiceSessionTest : public MiraVoiceFixture
{
protected:
    [[nodiscard]] std::string transcript() const
    {
        QStringList lines;
        for (const MiraVoiceTurn& turn : call->transcript()->turns())
            lines.append((turn.role == MiraVoiceTurn::Role::User ? QStringLiteral("> ") : QString()) + turn.text +
                         (turn.isFinal ? QString() : QStringLiteral("…")));
        return lines.join(QStringLiteral(" | ")).toStdString();
    }
    [[nodiscard]] std::string shelf()
    {
        QStringList handles;
        for (const QVariant& card : call->products())
            handles.append(card.value<MiraCard>().handle);
        return handles.join(u' ').toStdString();
    }
    [[nodiscard]] std::string window() const
    {
        return QStringLiteral("%1%2%3")
            .arg(call->isWindowShown() ? QStringLiteral("window") : QStringLiteral("none"),
                 call->closingReturnsToChat() ? QStringLiteral(", docks") : QString(),
                 call->isActive() ? QString() : QStringLiteral(", over"))
            .toStdString();
    }
    /// She adds this variant, and the cart answers so.
    void addition(VoiceCall& line, const Answer& cart, const char* title = "")
    {
        answer("CartLinesAdd", cart);
        const std::size_t before = sent();
        QJsonObject event = MiraVoiceFixture::event("cart", "variantId", 41);
        event.insert(QStringLiteral("title"), QLatin1String(title));
        line.say(event);
        settle(before + 1);
    }
};

const Goods dress{"two", "gid://shopify/ProductVariant/41", 1};
const Goods coat{"one", "gid://shopify/ProductVariant/7", 1};

} // namespace

TEST_F(MiraVoiceSessionTest, NothingOfTheMicrophoneLeavesBeforeSheIsOnTheLineAndSpeechDoesAfterwards)
{
    EXPECT_TRUE(devices.openings.empty());
    preferences.set(preferences::voiceMicrophone, QStringLiteral("usb"));
    VoiceCall& line = dial();
    EXPECT_EQ(line.path(), QStringLiteral("/api/support/widget/voice/rt"));
    EXPECT_EQ(line.frames().front().value(QStringLiteral("visitorId")).toString(), QStringLiteral("v-1"));
    EXPECT_EQ(devices.openings.back(), (VoiceAudio::Choice{.microphone = QStringLiteral("usb"), .speaker = {}}));
    EXPECT_EQ(call->phase(), MiraVoicePhase::Connecting);
    EXPECT_TRUE(call->isMicrophoneOpen());
    EXPECT_FALSE(call->isListening());
    EXPECT_TRUE(key.isBound());

    int steps = 0;
    hear(true, [&] { return ++steps == 100; });
    line.say("ready");
    until([this] { return call->isConnected(); });
    EXPECT_EQ(line.frames().size(), 1U);
    EXPECT_EQ(call->durationText(), QStringLiteral("00:00"));
    hear(true, [&] { return line.frames("audio").size() > 3; });
    time.advance(60ms);
    EXPECT_GT(call->microphoneLevel(), 0.2);
    time.advance(61min + 5s);
    EXPECT_EQ(call->durationText(), QStringLiteral("1:01:05"));

    call->hangUp();
    line.waitUntilClosed();
    EXPECT_EQ(line.closed(), QWebSocketProtocol::CloseCodeNormal);
    EXPECT_EQ(line.frames().back(), QJsonObject({{QStringLiteral("type"), QStringLiteral("hangup")}}));
    EXPECT_FALSE(devices.isOpen());
    EXPECT_FALSE(key.isBound());
    EXPECT_EQ(call->microphoneLevel(), 0);
    EXPECT_EQ(call->durationText(), QStringLiteral("1:01:05"));
    EXPECT_EQ(call->failure(), QString());
}

TEST_F(MiraVoiceSessionTest, TheTurnsOfACallAreHeardShownAndInterrupted)
{
    VoiceCall& line = connect();
    line.say(event("session", "guideName", QStringLiteral("Ada \u202e")));
    line.say(words("asr", "A dress", false));
    line.say(words("asr", "A dress for tonight"));
    until([this] { return call->phase() == MiraVoicePhase::Thinking; });
    EXPECT_EQ(call->guideName(), QStringLiteral("Ada"));
    EXPECT_EQ(call->thinkingSince(), time.now());

    line.say(words("chat_partial", "Of"));
    line.say(speech(5));
    hear(false, [this] { return call->phase() == MiraVoicePhase::Speaking; });
    EXPECT_EQ(transcript(), "> A dress for tonight | Of…");
    hear(false, [this] { return std::ranges::any_of(devices.render(480), [](float sample) { return sample != 0; }); });
    time.advance(1s);
    hear(true, [this] { return call->phase() == MiraVoicePhase::Listening; });
    EXPECT_GT(devices.drops, 0);

    // What is still on its way of that answer is not played; the next one is.
    line.say(speech(0.5));
    line.say(words("chat", "Of course."));
    until([this] { return call->transcript()->turns().back().isFinal; });
    hear(false, [this] { return call->lastSpokenAt() == time.now(); });
    EXPECT_EQ(call->phase(), MiraVoicePhase::Listening);
    line.say(words("asr", "Rather a coat"));
    line.say(speech(0.3));
    line.say(words("chat", "A coat, then."));
    hear(false, [this] { return call->phase() == MiraVoicePhase::Speaking; });
    hear(false, [this] { return call->phase() == MiraVoicePhase::Listening; });
    line.say(words("chat_partial", "Anything"));
    until([this] { return call->transcript()->count() == 5; });

    call->hangUp();
    EXPECT_EQ(transcript(), "> A dress for tonight | Of course. | > Rather a coat | A coat, then. | Anything");
    call->dismiss();
    EXPECT_EQ(transcript(), "");
}

TEST_F(MiraVoiceSessionTest, EveryFailureHasItsSentenceAndEndsWhatItHasTo)
{
    const QString cannotStart = QStringLiteral("Mira can't pick up right now. Try again in a moment.");
    const QString busy = QStringLiteral("Mira is on another call. Try again in a minute.");
    const QString hiccup = QStringLiteral("The line hiccuped. Say that again?");
    const QString dropped = QStringLiteral("The line dropped. Call again to keep talking.");
    const QString isOff = QStringLiteral("Microphone access is off. Turn it on in System Settings › Privacy & Security "
                                         "› Microphone, then call again.");
    const QString isMissing =
        QStringLiteral("Couldn't start the microphone. Check that one is connected, then call again.");
    struct Row {
        const char* what;
        std::function<void()> happens;
        QString failure;
        bool isAnswered = true;
    };
    const auto said = [](VoiceCall& line, const char* code) {
        line.say(event("error", "code", QLatin1String(code)));
    };
    const std::vector<Row> rows{
        {"access is refused",
         [&] {
             devices.grantsAccess = false;
             call->call(false);
             devices.grantsAccess = true;
         },
         isOff, false},
        {"there is no microphone",
         [&] {
             const auto streams = std::exchange(devices.streams, {});
             call->call(false);
             devices.streams = streams;
         },
         isMissing, false},
        {"an error instead of an answer", [&] { said(dial(), "internal"); }, cannotStart, false},
        {"she is busy", [&] { said(dial(), "busy"); }, busy, false},
        {"nobody answers",
         [&] {
             dial();
             time.advance(20s - 1ms);
             EXPECT_EQ(call->phase(), MiraVoicePhase::Connecting);
             time.advance(1ms);
         },
         cannotStart, false},
        {"closed instead of an answer", [&] { dial().close(); }, cannotStart, false},
        {"ended instead of an answer", [&] { dial().say("ended"); }, cannotStart, false},
        {"the line drops", [&] { connect().drop(); }, dropped},
        {"the service goes away", [&] { connect().close(QWebSocketProtocol::CloseCodeGoingAway); }, dropped},
        {"she becomes busy", [&] { said(connect(), "busy"); }, busy},
        {"the microphone is pulled out",
         [&] {
             connect();
             devices.fail(VoiceFailure::NoMicrophone);
         },
         isMissing},
        {"access is withdrawn",
         [&] {
             connect();
             devices.fail(VoiceFailure::AccessRefused);
         },
         isOff},
        {"the service ends it, twice",
         [&] {
             VoiceCall& line = connect();
             line.say("ended");
             line.say("ended");
         },
         {}},
        {"the service closes it", [&] { connect().close(); }, {}},
        {"a hiccup, and the shopper hangs up",
         [&] {
             VoiceCall& line = connect();
             line.say(words("asr", "Hm"));
             said(line, "asr_failed");
             until([&] { return call->toast() == hiccup; });
             EXPECT_EQ(call->phase(), MiraVoicePhase::Listening);
             EXPECT_FALSE(call->isToastGood());
             call->hangUp();
         },
         {}},
    };
    const auto ended = emissions(*call, &MiraVoiceSession::callEnded);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const int before = *ended;
        row.happens();
        until([this] { return !call->isActive(); });
        EXPECT_EQ(call->failure(), row.failure);
        EXPECT_EQ(call->canCallAgain(), !row.failure.isEmpty());
        EXPECT_EQ(*ended - before, row.isAnswered ? 1 : 0);
        EXPECT_FALSE(devices.isOpen());
        EXPECT_FALSE(key.isBound());
        EXPECT_EQ(call->endedAt(), time.now());
        EXPECT_EQ(time.sleepers(), call->toast().isEmpty() ? 0 : 1);
    }
}

TEST_F(MiraVoiceSessionTest, SheAddsToTheCartAndSaysWhatBecameOfIt)
{
    show({coat});
    VoiceCall& line = connect();
    struct Row {
        Answer answer;
        const char* title;
        QString toast;
        bool isGood;
    };
    const QString failed = QStringLiteral("Couldn't add it. Try from the product page.");
    for (const Row& row : {
             Row{changedTo(cartJson({coat, dress})), "Silk slip", QStringLiteral("Added Silk slip to your cart"), true},
             Row{changedTo(cartJson({coat, {"two", dress.variant, 2}})), "",
                 QStringLiteral("Added Silk dress to your cart"), true},
             Row{changedTo(cartJson({coat, {"two", dress.variant, 2}})), "Silk slip", failed, false},
             Row{Answer::json({}, 500), "Silk slip", failed, false},
         }) {
        addition(line, row.answer, row.title);
        until([&] { return call->toast() == row.toast; });
        EXPECT_EQ(call->isToastGood(), row.isGood);
        time.advance(4s);
        EXPECT_EQ(call->toast(), QString());
    }
    const std::size_t before = sent();
    line.say(event("cart", "variantId", QStringLiteral("gid://shopify/Product/41")));
    until([&] { return call->toast() == failed; });
    EXPECT_EQ(sent(), before);
}

TEST_F(MiraVoiceSessionTest, NothingOfACallThatIsOverActsOnTheNext)
{
    show({coat});
    // A piece that is added while the shopper hangs up is in the cart, and the next call does not tell of it.
    VoiceCall& first = connect();
    answer("CartLinesAdd", changedTo(cartJson({coat, dress})).pauseAfter(0));
    const std::size_t before = sent();
    first.say(event("cart", "variantId", 41));
    server.waitForRequests(before + 1);
    call->hangUp();
    VoiceCall& second = connect();
    server.proceed();
    settle(before + 1);
    EXPECT_EQ(shown(), "one:1 two:1");
    EXPECT_EQ(call->toast(), QString());

    // What the first line still says is nobody's.
    second.say(words("asr", "Hello"));
    until([this] { return call->transcript()->count() == 1; });
    call->hangUp();
    second.say("ended");

    // The microphone is open only after the shopper thought better of it, and called again.
    devices.holdsOpening = true;
    call->call(false);
    call->hangUp();
    drainEvents();
    EXPECT_FALSE(devices.isOpen());
    EXPECT_EQ(call->failure(), QString());
    devices.holdsOpening = false;
    VoiceCall& third = connect();
    EXPECT_EQ(service.calls().size(), 3U);
    EXPECT_EQ(transcript(), "");
    time.advance(20s); // the first calls' time to be answered
    EXPECT_TRUE(call->isConnected());
    third.say(words("asr", "Good-bye"));
    until([this] { return call->transcript()->count() == 1; });
    call.reset(); // the application ends in the middle of a call
    third.waitUntilClosed();
    EXPECT_EQ(third.closed(), QWebSocketProtocol::CloseCodeNormal);
    EXPECT_FALSE(key.isBound());
}

TEST_F(MiraVoiceSessionTest, SheTakesTheShopperToPagesOfTheApplicationAndNowhereElse)
{
    VoiceCall& line = connect();
    line.say({{QStringLiteral("type"), QStringLiteral("nav")},
              {QStringLiteral("kind"), QStringLiteral("page")},
              {QStringLiteral("path"), QStringLiteral("https://evil.example/products/silk")}});
    line.say(event("nav", "kind", QStringLiteral("wishlist")));
    until([this] { return !opened.empty(); });
    EXPECT_EQ(std::get<SidebarItem>(opened.front().place), SidebarItem::Wishlist);
    EXPECT_EQ(call->toast(), QStringLiteral("Opening Wishlist"));
    time.advance(3s);
    line.say({{QStringLiteral("type"), QStringLiteral("nav")},
              {QStringLiteral("kind"), QStringLiteral("product")},
              {QStringLiteral("handle"), QStringLiteral("silk")}});
    until([this] { return opened.size() == 2; });
    time.advance(3s); // the newer one has its own time
    EXPECT_EQ(call->toast(), QStringLiteral("Taking you there…"));
    EXPECT_TRUE(call->isToastGood());
}

TEST_F(MiraVoiceSessionTest, WhatSheShowsIsLiveWithTheLatestFirst)
{
    const auto shows = [](const QStringList& handles) {
        QJsonArray products;
        for (const QString& handle : handles)
            products.append(QJsonObject{{QStringLiteral("handle"), handle},
                                        {QStringLiteral("title"), handle},
                                        {QStringLiteral("price"), QStringLiteral("20.00")}});
        return event("products", "products", products);
    };
    VoiceCall& line = connect();
    line.say(shows({QStringLiteral("silk"), QStringLiteral("linen")}));
    until([this] { return call->products().size() == 2; });
    line.say(shows({QStringLiteral("wool"), QStringLiteral("silk")}));
    until([this] { return call->products().size() == 3; });
    EXPECT_EQ(shelf(), "wool silk linen");
    answer("ProductsByHandles", QJsonObject{{QStringLiteral("p0"), cardJson(QStringLiteral("silk"))},
                                            {QStringLiteral("p1"), QJsonValue::Null},
                                            {QStringLiteral("p2"), cardJson(QStringLiteral("wool"))}});
    time.advance(20ms);
    until([this] { return call->products().size() == 2; });
    EXPECT_EQ(shelf(), "wool silk");
    EXPECT_TRUE(call->products().front().value<MiraCard>().isLive);
    QStringList many;
    for (int i = 0; i < 30; ++i)
        many.append(QStringLiteral("coat-%1").arg(i));
    line.say(shows(many.mid(0, 20)));
    line.say(shows(many.mid(20)));
    until([this] { return call->products().size() == 24; });
    EXPECT_TRUE(QString::fromStdString(shelf()).startsWith(QStringLiteral("coat-20 ")));
    EXPECT_TRUE(QString::fromStdString(shelf()).endsWith(QStringLiteral(" coat-13")));
}

TEST_F(MiraVoiceSessionTest, MutingIsForTheCallAndReachableFromEverywhere)
{
    call->setMuted(true);
    EXPECT_FALSE(call->isMuted());
    VoiceCall& line = dial();
    Q_EMIT key.pressed();
    EXPECT_TRUE(call->isMuted());
    EXPECT_EQ(call->muteKeyText(), QStringLiteral("Ctrl+Alt+M"));
    line.say("ready");
    until([this] { return call->isConnected(); });
    EXPECT_FALSE(call->isListening());
    int steps = 0;
    hear(true, [&] { return ++steps == 100; });
    EXPECT_TRUE(line.frames("audio").empty());
    call->toggleMute();
    hear(true, [&] { return !line.frames("audio").empty(); });
    call->setMuted(true);
    call->hangUp();
    Q_EMIT key.pressed();
    EXPECT_EQ(call->muteKeyText(), QString());
    VoiceCall& next = connect();
    EXPECT_FALSE(call->isMuted());
    hear(true, [&] { return !next.frames("audio").empty(); });
}

TEST_F(MiraVoiceSessionTest, AnotherDeviceIsTakenInTheMiddleOfACall)
{
    VoiceCall& line = connect();
    line.say(speech(2));
    hear(false, [this] { return call->phase() == MiraVoicePhase::Speaking; });
    preferences.set(preferences::voiceMicrophone, QStringLiteral("usb"));
    EXPECT_EQ(devices.openings.back().microphone, QStringLiteral("usb"));
    EXPECT_EQ(call->phase(), MiraVoicePhase::Listening); // what she said was lost
    hear(true, [&] { return !line.frames("audio").empty(); });

    // The sign of the open microphone comes back with it, whatever happens in between.
    bool isSignShown = true;
    QObject::connect(call.get(), &MiraVoiceSession::stateChanged, call.get(),
                     [&] { isSignShown = call->isMicrophoneOpen(); });
    devices.holdsOpening = true;
    preferences.set(preferences::voiceMicrophone, QString());
    call->toggleMute();
    EXPECT_FALSE(isSignShown);
    devices.finishOpening();
    until([this] { return call->isMicrophoneOpen(); });
    EXPECT_TRUE(isSignShown);
    devices.holdsOpening = false;

    devices.streams.reset();
    preferences.set(preferences::voiceSpeaker, QStringLiteral("hall"));
    EXPECT_FALSE(call->isActive());
    EXPECT_TRUE(call->canCallAgain());
}

TEST_F(MiraVoiceSessionTest, ADeviceThatIsChosenBeforeTheMicrophoneIsOpenIsTaken)
{
    devices.holdsOpening = true;
    call->call(false);
    preferences.set(preferences::voiceMicrophone, QStringLiteral("usb"));
    devices.finishOpening();
    VoiceCall& line = service.waitForCall(1);
    EXPECT_EQ(devices.openings.back().microphone, QStringLiteral("usb"));
    line.say("ready");
    until([this] { return call->isConnected(); });
    EXPECT_EQ(service.calls().size(), 1U);
}

TEST_F(MiraVoiceSessionTest, ACustomerWhoIsGoneLeavesNothingOfTheirCall)
{
    VoiceCall& line = connect();
    line.say(words("asr", "My size is 38"));
    until([this] { return call->transcript()->count() == 1; });
    call->forget();
    line.waitUntilClosed();
    EXPECT_EQ(line.frames().back(), QJsonObject({{QStringLiteral("type"), QStringLiteral("hangup")}}));
    EXPECT_EQ(transcript(), "");
    EXPECT_EQ(window(), "none, over");
    EXPECT_FALSE(devices.isOpen());
    EXPECT_FALSE(key.isBound());
}

TEST_F(MiraVoiceSessionTest, ItsWindowClosesIntoTheChatItCameFromAndOtherwiseHangsUp)
{
    const auto windows = emissions(*call, &MiraVoiceSession::windowRequested);
    const auto chats = emissions(*call, &MiraVoiceSession::chatRequested);
    features.off.insert(Feature::MiraVoice);
    call->call(true);
    EXPECT_EQ(window(), "none, over");
    features.off.clear();

    call->call(true);
    EXPECT_EQ(window(), "window, docks");
    call->setMode(MiraVoiceMode::Mini);
    call->closeWindow();
    EXPECT_EQ(window(), "none, docks");
    EXPECT_EQ(std::pair(*windows, *chats), std::pair(1, 1));
    call->call(false); // the one there is comes
    EXPECT_EQ(window(), "window, docks");
    EXPECT_EQ(call->mode(), MiraVoiceMode::Mini);
    EXPECT_EQ(devices.openings.size(), 1U);
    call->hangUp();
    EXPECT_EQ(window(), "window, docks, over");
    call->closeWindow();
    EXPECT_EQ(window(), "none, docks, over");

    call->call(false);
    EXPECT_EQ(window(), "window");
    EXPECT_EQ(call->mode(), MiraVoiceMode::Full);
    call->dockIntoChat();
    devices.fail(VoiceFailure::NoMicrophone);
    call->callAgain(); // where it was
    EXPECT_EQ(window(), "none, docks");
    call->hangUp();
    call->call(false);
    call->closeWindow();
    EXPECT_EQ(window(), "none, over");
    EXPECT_EQ(std::pair(*windows, *chats), std::pair(4, 2));
}
