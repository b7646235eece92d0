#include "MiraFixture.h"

#include <QDir>
#include <QFile>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

class MiraChatModelTest : public MiraFixture
{
protected:
    [[nodiscard]] QString key(int row) { return told(row, MiraThreadModel::KeyRole).toString(); }
    [[nodiscard]] QStringList files()
    {
        folder.waitUntilWritten();
        return QDir(home.path()).entryList({QStringLiteral("lst_mira*"), QStringLiteral("lst_guide*")});
    }
    [[nodiscard]] static ProductListItem piece(const QString& handle) { return decodeListItem_(handle); }

private:
    static ProductListItem decodeListItem_(const QString& handle)
    {
        return {.id = QStringLiteral("gid://shopify/Product/1"),
                .handle = handle,
                .title = QStringLiteral("Silk [dress]"),
                .vendor = QStringLiteral("Atelier"),
                .imageURL = QStringLiteral("https://cdn.example/a.jpg"),
                .price = {.amount = 248, .currencyCode = QStringLiteral("USD")}};
    }
};

} // namespace

TEST_F(MiraChatModelTest, AMessageShowsAtOnceAndTheReplyFollowsItWithoutAReset)
{
    note(false, QStringLiteral("Hello, I am Mira."));
    open();
    const auto resets = emissions(*mira->thread(), &QAbstractItemModel::modelReset);
    const auto removals = emissions(*mira->thread(), &QAbstractItemModel::rowsRemoved);
    const auto insertions = emissions(*mira->thread(), &QAbstractItemModel::rowsInserted);
    QStringList heard;
    QObject::connect(mira.get(), &MiraChatModel::replyArrived, mira.get(),
                     [&](const QStringList& said) { heard = said; });
    replies = {QStringLiteral("Of course. Which colour?")};

    mira->setDraft(QStringLiteral("  A coat, please \n"));
    mira->send();
    EXPECT_EQ(shownThread(), "Hello, I am Mira. | > A coat, please…");
    EXPECT_EQ(mira->draft(), QString());
    EXPECT_TRUE(mira->isReplying());
    const QString sentKey = key(0);
    settle();
    EXPECT_EQ(shownThread(), "Hello, I am Mira. | > A coat, please | Of course. Which colour?");
    EXPECT_EQ(key(1), sentKey);
    EXPECT_EQ(heard, QStringList({QStringLiteral("Of course."), QStringLiteral("Which colour?")}));

    // What the service then lists is what is there already.
    mira->refresh();
    settle();
    EXPECT_EQ(mira->notice(), QStringLiteral("Conversation is up to date"));
    clock.advance(5s);
    EXPECT_EQ(mira->notice(), QString());
    EXPECT_EQ(key(1), sentKey);
    EXPECT_EQ(std::tuple(*resets, *removals, *insertions), std::tuple(0, 0, 2));

    note(false, QStringLiteral("By the way."));
    mira->refresh();
    settle();
    EXPECT_EQ(mira->notice(), QString());
    EXPECT_EQ(mira->thread()->count(), 4);
}

TEST_F(MiraChatModelTest, WhatGoesOutIsComposedOfWhatTheShopperSeesAndOnlyTheProductIsForOneMessage)
{
    weatherAnswers.insert(QStringLiteral("Lisbon"),
                          {{QStringLiteral("city"), QStringLiteral("Lisbon")}, {QStringLiteral("temperature"), 18.0}});
    show({{"line", "one", 1}});
    open();
    weather.setCity(QStringLiteral("Lisbon"));
    waitUntil([this] { return weather.isKnown(); }, "the weather");
    const QString inCart = store->cart()->lines.front().productHandle;
    const QString cartTitle = store->cart()->lines.front().productTitle;
    mira->setWardrobe({inCart, QStringLiteral("nowhere")});
    mira->anchorLook(QStringLiteral("coat"), QStringLiteral("Wool coat"));
    mira->setDraft(QStringLiteral("Hm."));
    mira->styleProduct(QVariant::fromValue(piece(QStringLiteral("silk-dress"))));
    EXPECT_EQ(mira->draft(), QStringLiteral("Hm.\nHelp me style this: Silk [dress]"));
    EXPECT_EQ(mira->wardrobeCount(), 1);
    EXPECT_EQ(mira->weather().value(QStringLiteral("text")), QStringLiteral("18 °C · Lisbon"));
    mira->send();
    settle();
    const QJsonObject first = sent("/message").at(0);
    EXPECT_EQ(first.value(QStringLiteral("body")).toString(),
              QStringLiteral("Hm.\nHelp me style this: Silk [dress]\n/products/silk-dress\n"
                             "\n[MY WARDROBE — style me using THESE pieces first, only suggest something new if a slot "
                             "is truly missing: %1 [dress/cart]]\n[Build the look around: Wool coat]\n"
                             "[Weather: 18°C Mild in Lisbon]")
                  .arg(cartTitle));
    EXPECT_EQ(first.value(QStringLiteral("attachments")).toArray().size(), 1);
    EXPECT_EQ(first.value(QStringLiteral("lang")).toString(), QStringLiteral("en"));
    EXPECT_EQ(shownThread(), "> Hm.\nHelp me style this: Silk [dress] | Gladly.");
    EXPECT_FALSE(mira->product().isValid());
    EXPECT_EQ(mira->anchorName(), QStringLiteral("Wool coat"));

    // All of it can be taken away.
    mira->attachProduct(QVariant::fromValue(piece(QStringLiteral("b"))));
    mira->removeProduct();
    mira->removeAnchor();
    mira->removeWardrobe();
    mira->removeWeather();
    preferences.set(preferences::supportLanguage, QStringLiteral("fr"));
    say(QStringLiteral("Plain"));
    const QJsonObject second = sent("/message").at(1);
    EXPECT_EQ(second.value(QStringLiteral("body")).toString(), QStringLiteral("Plain"));
    EXPECT_EQ(second.value(QStringLiteral("attachments")).toArray().size(), 0);
    EXPECT_EQ(second.value(QStringLiteral("lang")).toString(), QStringLiteral("fr"));
}

TEST_F(MiraChatModelTest, AMessageThatGotLostCanBeTriedAgainAndIsNeverShownTwice)
{
    open();
    // It arrived, and its answer did not.
    next = {Next::Lose};
    say(QStringLiteral("Yes"));
    EXPECT_EQ(shownThread(), "> Yes?");
    EXPECT_FALSE(mira->failure().isEmpty());
    mira->retryMessage(key(0));
    settle();
    EXPECT_EQ(shownThread(), "> Yes | Gladly.");
    EXPECT_EQ(sent("/message").size(), 1U);
    EXPECT_EQ(mira->failure(), QString());

    // The same words again, which are another message, and which never arrived at first.
    clock.advance(1min);
    next = {Next::NeverHear};
    say(QStringLiteral("Yes"));
    EXPECT_EQ(shownThread(), "> Yes | Gladly. | > Yes?");
    mira->retryMessage(key(0));
    settle();
    EXPECT_EQ(shownThread(), "> Yes | Gladly. | > Yes | Gladly.");
    EXPECT_EQ(sent("/message").size(), 3U);

    // The first attempt comes to light after all.
    note(true, QStringLiteral("Yes"));
    note(false, QStringLiteral("I heard you."));
    mira->refresh();
    settle();
    EXPECT_EQ(shownThread(), "> Yes | Gladly. | > Yes | Gladly. | I heard you.");
    // But not what was said elsewhere, much later.
    clock.advance(1h);
    note(true, QStringLiteral("Yes"));
    mira->refresh();
    settle();
    EXPECT_EQ(mira->thread()->count(), 6);

    next = {Next::RateLimit};
    say(QStringLiteral("Too quick"));
    EXPECT_EQ(mira->failure(), QStringLiteral("You're sending messages too quickly. Wait a moment first."));
    mira->discardMessage(key(0));
    EXPECT_EQ(mira->thread()->count(), 6);
}

TEST_F(MiraChatModelTest, AnAttemptThatNeverArrivedDoesNotTakeTheSameWordsSaidLaterForItself)
{
    open();
    next = {Next::NeverHear, Next::Reply, Next::Lose};
    say(QStringLiteral("Yes"));
    mira->retryMessage(key(0));
    settle();
    clock.advance(1min);
    say(QStringLiteral("Yes"));
    EXPECT_EQ(shownThread(), "> Yes | Gladly. | > Yes?");
    mira->retryMessage(key(0)); // it is there
    settle();
    EXPECT_EQ(shownThread(), "> Yes | Gladly. | > Yes | Gladly.");
    EXPECT_EQ(sent("/message").size(), 3U);
}

TEST_F(MiraChatModelTest, TheEchoIsKnownByItsWordsWhateverElseTheAnswerHolds)
{
    on("/message", [this](const ReceivedRequest& request) {
        note(true, QStringLiteral("From the telephone"));
        note(true, request.json().value(QStringLiteral("body")).toString());
        note(false, QStringLiteral("To both."));
        return Answer::json({{QStringLiteral("messages"), conversation}});
    });
    open();
    say(QStringLiteral("From here"));
    EXPECT_EQ(mira->thread()->count(), 3);
    mira->refresh();
    settle();
    EXPECT_EQ(shownThread(), "> From the telephone | > From here | To both.");

    // Words that the service changed.
    on("/message", [this](const ReceivedRequest&) {
        note(true, QStringLiteral("(cleaned)"));
        return Answer::json({{QStringLiteral("messages"), QJsonArray{conversation.last()}}});
    });
    say(QStringLiteral("<b>"));
    EXPECT_EQ(shownThread(), "> From the telephone | > From here | To both. | > <b>");
}

TEST_F(MiraChatModelTest, AThreadThatWasReadBeforeAnAnswerToAMessageTakesNothingAway)
{
    for (const bool isFirst : {true, false}) {
        open();
        // The service has looked before the message came, and is heard after its answer.
        const QJsonObject early{{QStringLiteral("visitorToken"), QStringLiteral("t-1")},
                                {QStringLiteral("messages"), conversation}};
        const auto asked = server.requests().size();
        on("/init", [early](auto&) { return Answer::json(early).pauseAfter(0); });
        mira->refresh();
        server.waitForRequests(asked + 1);
        mira->sendText(QStringLiteral("Hi"));
        waitUntil([this] { return !mira->isReplying(); }, "the reply");
        on("/init", [this](auto&) {
            return Answer::json(
                {{QStringLiteral("visitorToken"), QStringLiteral("t-1")}, {QStringLiteral("messages"), conversation}});
        });
        server.proceed();
        settle();
        EXPECT_EQ(shownThread(), isFirst ? "> Hi | Gladly." : "> Hi | Gladly. | > Hi | Gladly.");
        EXPECT_EQ(mira->topics()->count(), 1);
    }
}

TEST_F(MiraChatModelTest, WhatWasWrittenSurvivesACrashWhateverStateItIsIn)
{
    open();
    say(QStringLiteral("First"));
    isHeld = true;
    mira->sendText(QStringLiteral("On its way"));
    mira->sendText(QStringLiteral("Queued"));
    mira->setDraft(QStringLiteral("Begun"));
    clock.advance(400ms);
    server.waitForRequests(4);
    folder.waitUntilWritten();
    const QStringList kept = files();
    EXPECT_TRUE(kept.contains(QStringLiteral("lst_mira_draft.json")));
    for (const QString& file : kept)
        EXPECT_EQ(QFile::permissions(home.filePath(file)) & (QFile::ReadGroup | QFile::ReadOther),
                  QFile::Permissions());

    begin(); // without an end of the one before
    mira->open();
    EXPECT_EQ(shownThread(), "> First | Gladly. | > On its way?");
    EXPECT_EQ(mira->draft(), QStringLiteral("Begun"));
    EXPECT_EQ(mira->queued(), QStringList(QStringLiteral("Queued")));
    isHeld = false;
    server.proceed();
    settle();
    EXPECT_EQ(shownThread(), "> First | Gladly. | > On its way | Gladly.");
    mira->sendQueued(0);
    settle();
    mira->send();
    settle();
    restart();
    open();
    EXPECT_EQ(mira->draft(), QString());
    EXPECT_TRUE(mira->queued().isEmpty());
    EXPECT_EQ(mira->thread()->count(), 8);
}

TEST_F(MiraChatModelTest, WhileSheRepliesWordsWaitInTheQueue)
{
    open();
    isHeld = true;
    mira->sendText(QStringLiteral("One"));
    mira->setDraft(QStringLiteral("Two"));
    mira->send();
    mira->sendText(QStringLiteral("Three"));
    EXPECT_EQ(mira->queued(), QStringList({QStringLiteral("Two"), QStringLiteral("Three")}));
    mira->sendQueued(0); // not yet
    EXPECT_EQ(mira->queued().size(), 2);
    server.waitForRequests(3);
    isHeld = false;
    server.proceed();
    settle();
    mira->removeQueued(1);
    mira->sendQueued(0);
    settle();
    mira->sendQueued(7);
    EXPECT_EQ(shownThread(), "> One | Gladly. | > Two | Gladly.");
}

TEST_F(MiraChatModelTest, ATokenThatExpiredIsReplacedOnceAndTheMessageGoesOn)
{
    isStrict = true;
    open();
    say(QStringLiteral("Before"));
    tokens.clear();
    say(QStringLiteral("After"));
    EXPECT_EQ(shownThread(), "> Before | Gladly. | > After | Gladly.");
    EXPECT_EQ(mira->failure(), QString());
    const auto opened = sent("/init");
    EXPECT_EQ(opened.back().value(QStringLiteral("visitorToken")).toString(), QString());

    restart();
    tokens.clear();
    open();
    EXPECT_EQ(mira->failure(), QString());
    EXPECT_EQ(sent("/init").size(), opened.size() + 2);
    EXPECT_EQ(mira->thread()->count(), 4);
}

TEST_F(MiraChatModelTest, ATokenIsKeptUntilTheServiceGivesAnother)
{
    isStrict = true;
    open();
    say(QStringLiteral("Before"));
    const auto answer = [this](auto&& refused) {
        on("/init", [this, refused](const ReceivedRequest& request) {
            const QString token = request.json().value(QStringLiteral("visitorToken")).toString();
            return refused(token) ? Answer::json({}, refused(QString()) ? 404 : 401)
                                  : Answer::json({{QStringLiteral("visitorToken"), QStringLiteral("t-2")},
                                                  {QStringLiteral("messages"), conversation}});
        });
        mira->refresh();
        settle();
        return sent("/init").back().value(QStringLiteral("visitorToken")).toString();
    };
    // For a while the service is not there at all.
    EXPECT_EQ(answer([](const QString&) { return true; }), QString());
    EXPECT_FALSE(mira->failure().isEmpty());
    restart();
    EXPECT_EQ(answer([](const QString&) { return false; }), QStringLiteral("t-1"));
    // A guest has nothing but the token that could be refused.
    EXPECT_EQ(answer([](const QString& token) { return token == QLatin1String("t-2"); }), QString());
    EXPECT_EQ(mira->failure(), QString());
    EXPECT_EQ(mira->thread()->count(), 2);
}

TEST_F(MiraChatModelTest, TopicsAreSlicesOfOneConversationThatKeepTheirMessages)
{
    open();
    say(QStringLiteral("Something red for a summer wedding in the south of France"));
    clock.advance(1min);
    mira->newTopic();
    mira->newTopic(); // one is enough
    EXPECT_EQ(shownTopics(), "New topic* | Something red for a summer wedding in the south…");
    EXPECT_EQ(mira->thread()->count(), 0);
    say(QStringLiteral("Boots"));
    note(false, QStringLiteral("From elsewhere."));
    mira->refresh();
    settle();
    EXPECT_EQ(shownThread(), "> Boots | Gladly. | From elsewhere.");
    EXPECT_TRUE(topicAt(0).startsWith(QStringLiteral("local-")));

    mira->renameTopic(topicAt(1), QStringLiteral("  The \n wedding "));
    mira->openTopic(topicAt(1));
    clock.advance(1min);
    say(QStringLiteral("Shoes for it"));
    EXPECT_EQ(shownTopics(), "The wedding* | Boots");
    restart();
    open();
    EXPECT_EQ(shownTopics(), "The wedding* | Boots");
    EXPECT_EQ(mira->thread()->count(), 4);

    // What was said in a deleted topic does not come back.
    mira->deleteTopic(topicAt(0));
    EXPECT_EQ(shownTopics(), "New topic* | Boots");
    restart();
    open();
    EXPECT_EQ(mira->thread()->count(), 0);
    mira->openTopic(topicAt(1));
    EXPECT_EQ(shownTopics(), "Boots*");
    mira->renameTopic(topicAt(0), QStringLiteral("Named"));
    mira->renameTopic(topicAt(0), QString());
    EXPECT_EQ(shownTopics(), "Boots*");

    // The service begins anew: what was said here stays.
    conversation = {};
    note(false, QStringLiteral("Hello again."));
    mira->refresh();
    settle();
    EXPECT_EQ(shownThread(), "Hello again.");
    EXPECT_EQ(mira->topics()->count(), 2);
}

TEST_F(MiraChatModelTest, WhatWasShownLastShowsBeforeTheServiceAnswersAndStaysWhenItFails)
{
    open();
    say(QStringLiteral("Hi"));
    mira.reset();
    folder.waitUntilWritten();
    QFile::remove(home.filePath(QStringLiteral("lst_mira_topics.json"))); // the copies of the topics are lost
    begin();
    isHeld = true;
    const std::size_t before = server.requests().size();
    mira->open();
    EXPECT_EQ(shownThread(), "> Hi | Gladly.");
    server.waitForRequests(before + 1);
    isHeld = false;
    server.proceed();
    settle();
    EXPECT_EQ(shownThread(), "> Hi | Gladly.");

    on("/init", [](auto&) { return Answer::body("{}", 503); });
    mira->refresh();
    settle();
    EXPECT_EQ(mira->failure(), QStringLiteral("LOOMSTREET is having trouble right now."));
    EXPECT_EQ(shownThread(), "> Hi | Gladly.");
    on("/init", [](auto&) { return Answer::body("[1, \"{\"", 200); });
    mira->retry();
    settle();
    EXPECT_EQ(mira->thread()->count(), 2);
}

TEST_F(MiraChatModelTest, SigningOutForgetsTheConversationAndALateReplyWritesNothing)
{
    open();
    say(QStringLiteral("Secret"));
    isHeld = true;
    mira->setDraft(QStringLiteral("Begun"));
    clock.advance(400ms);
    mira->sendText(QStringLiteral("Late"));
    server.waitForRequests(4);
    const QStringList gone{QStringLiteral("lst_guide_token"), QStringLiteral("lst_mira_chat_cache"),
                           QStringLiteral("lst_mira_topics")};
    mira->forget(gone);
    EXPECT_EQ(mira->thread()->count(), 0);
    EXPECT_FALSE(mira->isReplying());
    isHeld = false;
    server.proceed();
    drainEvents();
    EXPECT_EQ(files(), QStringList(QStringLiteral("lst_mira_draft.json")));
    mira->forget({QLatin1String(MiraDraft::fileName)});
    EXPECT_EQ(files(), QStringList());

    // Whoever signs in looks at their own.
    conversation = {};
    note(false, QStringLiteral("Hello, Jane."));
    announcements.post(Announcement::AuthChanged);
    settle();
    EXPECT_EQ(shownThread(), "Hello, Jane.");
    EXPECT_EQ(sent("/init").back().value(QStringLiteral("visitorToken")).toString(), QString());
}

TEST_F(MiraChatModelTest, AReplyThatNamesAnOrderOfTheCustomerSaysWhich)
{
    orders = {QJsonObject{{QStringLiteral("id"), QStringLiteral("o1")},
                          {QStringLiteral("name"), QStringLiteral("LST104")},
                          {QStringLiteral("status"), QStringLiteral("shipped")}}};
    identity.email = QStringLiteral("jane@mail.example");
    note(false, QStringLiteral("Is it LST1048?"));
    note(false, QStringLiteral("Your order lst104, it is on its way."));
    open();
    waitUntil([this] { return told(0, MiraThreadModel::OrderRole).isValid(); }, "the orders");
    EXPECT_EQ(told(0, MiraThreadModel::OrderRole).toMap().value(QStringLiteral("id")), QStringLiteral("o1"));
    EXPECT_FALSE(told(1, MiraThreadModel::OrderRole).isValid());
}
