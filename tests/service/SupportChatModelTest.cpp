#include "service/SupportFixture.h"

namespace loom
{

namespace
{

class SupportChatModelTest : public SupportFixture
{
protected:
    std::unique_ptr<SupportChatModel> chat = made();
};

TEST_F(SupportChatModelTest, WhatIsOpenIsAskedForEveryTenSecondsAndNotAfterwards)
{
    open(*chat, opened({message("s1", "outbound", "Hi")}));
    for (const char* const id : {"s2", "s3"}) {
        server.expect(path("replies"), replies({message(id, "inbound", id)}, 1));
        server.expect(path("read"), Answer::json({}));
        clock.advance(SupportChatModel::pollInterval);
        waitUntil([&] { return rows(*chat).front() == QStringLiteral("They: ") + QLatin1String(id); }, "a reply comes");
        drainEvents();
    }
    server.waitForRequests(5);
    EXPECT_EQ(server.requests()[1].json().value(QStringLiteral("after")), QLatin1String("s1"));
    EXPECT_EQ(server.requests()[3].json().value(QStringLiteral("after")), QLatin1String("s2"));
    EXPECT_EQ(server.requests()[4].json().value(QStringLiteral("upTo")), QLatin1String("s3"));
    drainEvents();
    chat->view(&viewer, SupportChatModel::Away);
    clock.advance(std::chrono::minutes(1));
    drainEvents(); // another request would fail the test
}

TEST_F(SupportChatModelTest, OnlyWhatSomebodyWatchesIsRead)
{
    open(*chat, opened({message("s1", "inbound", "Hello")}, 1), SupportChatModel::Open);
    EXPECT_EQ(chat->unreadCount(), 1);
    EXPECT_FALSE(chat->isOnScreen());
    server.expect(path("read"), failed(503, ""));
    chat->view(&viewer, SupportChatModel::Watching);
    EXPECT_EQ(chat->unreadCount(), 0);
    server.waitForRequests(2);
    drainEvents();
    // What could not be told is told with the next look.
    server.expect(path("replies"), replies({}, 1));
    server.expect(path("read"), Answer::json({}));
    clock.advance(SupportChatModel::pollInterval);
    server.waitForRequests(4);
    EXPECT_EQ(chat->unreadCount(), 0);
    drainEvents();
    {
        QObject other;
        chat->view(&other, SupportChatModel::Watching);
        chat->view(&viewer, SupportChatModel::Away);
        EXPECT_TRUE(chat->isOnScreen());
    }
    EXPECT_FALSE(chat->isOnScreen()) << "who goes away looks no more";
}

TEST_F(SupportChatModelTest, WhoLooksAgainWhileItIsBegunBeginsNoOther)
{
    int onScreen = 0;
    QObject::connect(chat.get(), &SupportChatModel::stateChanged, &viewer, [&] { onScreen += chat->isOnScreen(); });
    server.expect(path("init"), opened({}).pauseAfter(1));
    chat->view(&viewer, SupportChatModel::Open);
    server.waitForRequests(1);
    EXPECT_EQ(onScreen, 0);
    chat->view(&viewer, SupportChatModel::Watching);
    EXPECT_EQ(onScreen, 1) << "whoever takes back notices hears of it";
    chat->view(&viewer, SupportChatModel::Away);
    chat->view(&viewer, SupportChatModel::Watching);
    chat->retry();
    server.proceed();
    settle(*chat); // another request would fail the test

    server.expect(path("replies"), failed(404, "NOT_FOUND")); // it is gone meanwhile
    server.expect(path("init"), opened({message("s1", "outbound", "Hi")}, 0, "token-2"));
    clock.advance(SupportChatModel::pollInterval);
    waitUntil([&] { return chat->thread()->count() == 1; }, "it is begun anew");
    settle(*chat);
}

TEST_F(SupportChatModelTest, AnUnknownConversationIsBegunAnew)
{
    folder.save(QLatin1String(SupportChatModel::tokenFile), QStringLiteral("token-0"));
    server.expect(path("init"), failed(404, "NOT_FOUND"));
    server.expect(path("init"), opened({}));
    chat->view(&viewer, SupportChatModel::Watching);
    settle(*chat);
    ASSERT_EQ(server.requests().size(), 2U);
    EXPECT_EQ(server.requests()[0].json().value(QStringLiteral("visitorToken")), QLatin1String("token-0"));
    EXPECT_FALSE(server.requests()[1].json().contains(QStringLiteral("visitorToken")));
    EXPECT_EQ(server.requests()[1].json().value(QStringLiteral("visitorId")), QLatin1String("visitor-1"));
    EXPECT_EQ(folder.read(QLatin1String(SupportChatModel::tokenFile)), QByteArray("\"token-1\""));
    EXPECT_EQ(chat->failure(), QString());
}

TEST_F(SupportChatModelTest, AFailureSaysWhyAndIsGoneWithTheNextThatGoesWell)
{
    open(*chat, failed(503, ""));
    EXPECT_EQ(chat->failure(), QLatin1String("LOOMSTREET is having trouble right now. Try again shortly."));
    server.expect(path("init"), Answer::body("{\"messages\":"));
    chat->retry();
    settle(*chat);
    EXPECT_EQ(chat->failure(), QLatin1String("Something unexpected came back. Try again."));
    server.expect(path("init"), opened({message("s1", "outbound", "Hi")}));
    clock.advance(SupportChatModel::pollInterval); // by itself
    waitUntil([&] { return chat->thread()->count() == 1; }, "the conversation comes");
    drainEvents();
    EXPECT_EQ(chat->failure(), QString());
    server.expect(path("replies"), Answer::silence());
    clock.advance(SupportChatModel::pollInterval);
    server.waitForRequests(4);
    clock.advance(SupportAPI::timeout);
    waitUntil([&] { return !chat->failure().isEmpty(); }, "the time is over");
    EXPECT_EQ(chat->failure(), QLatin1String("The request timed out. Try again."));
    EXPECT_EQ(rows(*chat), QStringList{QStringLiteral("I: Hi")}) << "what is there stays";
}

TEST_F(SupportChatModelTest, NewRepliesAreThoseThatNobodyHasSeen)
{
    EXPECT_TRUE(run(chat->newReplies({}))->empty()) << "there is no conversation, and none is begun";
    folder.save(QLatin1String(SupportChatModel::tokenFile), QStringLiteral("token-1"));
    chat = made();
    const auto ids = [this] {
        QStringList found;
        for (const SupportMessage& reply : *run(chat->newReplies({})))
            found.append(reply.id);
        return found;
    };
    server.expect(path("replies"), replies({message("s1", "inbound", "old"), message("s2", "inbound", "new"),
                                            message("s3", "outbound", "mine")},
                                           1));
    EXPECT_EQ(ids(), QStringList{QStringLiteral("s2")});
    EXPECT_EQ(chat->unreadCount(), 1);
    server.expect(path("replies"), replies({}, 1));
    EXPECT_EQ(ids(), QStringList{QStringLiteral("s2")}) << "whoever tells of them knows what was told";
    server.expect(path("replies"), failed(500, ""));
    EXPECT_FALSE(run(chat->newReplies({})).hasValue());

    server.expect(path("read"), Answer::json({}));
    open(*chat, opened({message("s2", "inbound", "new"), message("s3", "outbound", "mine")}, 1));
    server.waitForRequests(5);
    EXPECT_TRUE(ids().isEmpty()) << "on screen nothing is asked";
    chat->view(&viewer, SupportChatModel::Away);
    server.expect(path("replies"), failed(404, "NOT_FOUND"));
    EXPECT_TRUE(ids().isEmpty());
    EXPECT_TRUE(ids().isEmpty()) << "the conversation is gone";
    folder.waitUntilWritten();
    EXPECT_EQ(folder.read(QLatin1String(SupportChatModel::tokenFile)), std::nullopt);
}

TEST_F(SupportChatModelTest, EverythingIsLetGoOfWithItsFiles)
{
    open(*chat, opened({message("s1", "inbound", "Hello Jane")}));
    chat->setDraft(QStringLiteral("My card is"));
    clock.advance(std::chrono::seconds(1));
    chat->forget({QStringLiteral("lst_wishlist")});
    EXPECT_EQ(chat->thread()->count(), 1);
    Running asking(chat->newReplies({}));
    chat->forget({QLatin1String(SupportChatModel::tokenFile), QLatin1String(SupportChatModel::cacheFile)});
    EXPECT_EQ(chat->thread()->count(), 0);
    EXPECT_EQ(chat->draft(), QString());
    folder.waitUntilWritten();
    EXPECT_TRUE(QDir(directory.path()).entryList(QDir::Files).isEmpty());
    server.expect(path("init"), opened({}, 0, "token-2"));
    clock.advance(SupportChatModel::pollInterval); // for whoever looks now
    server.waitForRequests(2);
    EXPECT_FALSE(server.requests().back().json().contains(QStringLiteral("visitorToken")));
    settle(*chat);
}

TEST_F(SupportChatModelTest, AnAnswerForWhoIsGoneIsDropped)
{
    server.expect(path("init"), opened({message("s1", "inbound", "Hello")}).pauseAfter(1));
    chat->view(&viewer, SupportChatModel::Watching);
    server.waitForRequests(1);
    chat->forget({QLatin1String(SupportChatModel::tokenFile)});
    server.proceed();
    drainEvents();
    EXPECT_EQ(chat->thread()->count(), 0);
    chat.reset();
    folder.waitUntilWritten();
    EXPECT_TRUE(QDir(directory.path()).entryList(QDir::Files).isEmpty());
}

TEST_F(SupportChatModelTest, DaysAreNamedOnceAndFilesOpenOnlyWhereTheyMay)
{
    QJsonObject today = message("s2", "inbound", "");
    today.insert(QStringLiteral("attachments"),
                 QJsonArray{QJsonObject{{QStringLiteral("url"), QStringLiteral("https://files.example/a.pdf")}},
                            QJsonObject{{QStringLiteral("url"), QStringLiteral("file:///etc/passwd")}},
                            QJsonObject{{QStringLiteral("url"), QStringLiteral("https://user@files.example/")}}});
    QJsonObject earlier = message("s0", "inbound", "Hello");
    earlier.insert(QStringLiteral("createdAt"), QStringLiteral("2025-01-02T12:00:00Z"));
    open(*chat, opened({earlier, message("s1", "outbound", "Hi"), today}));
    EXPECT_EQ(roleOf(*chat, 0, SupportThreadModel::DayLabelRole), QString());
    EXPECT_EQ(roleOf(*chat, 1, SupportThreadModel::DayLabelRole), QLatin1String("Today"));
    EXPECT_EQ(roleOf(*chat, 2, SupportThreadModel::DayLabelRole), QLatin1String("Jan 2, 2025"));
    for (int place = -1; place < 5; ++place)
        chat->openAttachment(QStringLiteral("s:s2"), place);
    chat->openAttachment(QStringLiteral("none"), 0);
    EXPECT_EQ(browsed, QList{QUrl(QStringLiteral("https://files.example/a.pdf"))});
}

} // namespace

} // namespace loom
