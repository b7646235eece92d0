#include "notify/DesktopNotifier.h"

#include "NotifierFixture.h"

using namespace loom;

namespace
{

class DesktopNotifierLookingTest : public NotifierFixture
{
protected:
    void beginConversation()
    {
        folder.save(QStringLiteral("lst_support_visitor_token"), QJsonValue(QStringLiteral("token-1")));
    }
    [[nodiscard]] SupportReply reply(const QString& id, const QString& text, int seconds = 1) const
    {
        return {.messageID = id, .text = text, .date = clock.now().addSecs(seconds)};
    }
};

TEST_F(DesktopNotifierLookingTest, ItLooksEveryMinuteWhileAWindowIsOpenAndElseEveryFive)
{
    launch();
    EXPECT_EQ(pagesRead, 1);
    clock.advance(std::chrono::seconds(59));
    settle();
    EXPECT_EQ(pagesRead, 1);
    hasOpenWindow = false;
    clock.advance(std::chrono::seconds(1));
    settle();
    EXPECT_EQ(pagesRead, 2);
    clock.advance(std::chrono::seconds(299));
    settle();
    EXPECT_EQ(pagesRead, 2);
    clock.advance(std::chrono::seconds(1));
    settle();
    EXPECT_EQ(pagesRead, 3);

    network.setOffline(true);
    clock.advance(std::chrono::seconds(900));
    look();
    EXPECT_EQ(pagesRead, 3);
    network.setOffline(false);
    settle();
    EXPECT_EQ(pagesRead, 4);

    notifier->stop();
    clock.advance(std::chrono::seconds(900));
    settle();
    EXPECT_EQ(pagesRead, 4);
}

TEST_F(DesktopNotifierLookingTest, ASignInIsLookedAtAtOnceAndAGuestHasNoList)
{
    account = QString();
    launch();
    EXPECT_EQ(pagesRead, 0);
    become(QStringLiteral("7"));
    EXPECT_EQ(pagesRead, 1);
    notifier->accountChanged(); // the same one
    settle();
    EXPECT_EQ(pagesRead, 1);
}

TEST_F(DesktopNotifierLookingTest, AFailureIsSilentAndTheNextLookTriesAgain)
{
    beginConversation();
    launch();
    list = {item(QStringLiteral("a"))};
    replies = {reply(QStringLiteral("m1"), QStringLiteral("Hello"))};
    isFailing = true;
    look();
    EXPECT_TRUE(posted().isEmpty());
    EXPECT_FALSE(notifier->isChecking());
    isFailing = false;
    look();
    EXPECT_EQ(posted(), (QStringList{QStringLiteral("support-m1"), QStringLiteral("account-a")}));
}

TEST_F(DesktopNotifierLookingTest, RepliesAreLookedForOnlyInAConversationAndShownUnlessTheyAreSeen)
{
    account = QString();
    launch();
    EXPECT_EQ(repliesRead, 0);
    beginConversation();
    replies = {reply(QStringLiteral("old"), QStringLiteral("Before"), 0),
               reply(QStringLiteral("m1"), QStringLiteral("It is on its way.")),
               reply(QStringLiteral("m2"), {}),
               {.messageID = QStringLiteral("undated"), .text = QStringLiteral("x"), .date = {}}};
    look();
    look();
    ASSERT_EQ(desktop.posted.size(), 2);
    EXPECT_EQ(desktop.posted[0].title, QStringLiteral("Customer Service"));
    EXPECT_EQ(desktop.posted[0].body, QStringLiteral("It is on its way."));
    EXPECT_EQ(desktop.posted[1].body, QStringLiteral("Sent an attachment"));
    EXPECT_EQ(inbox.notices().size(), 2);

    isSupportOnScreen = true;
    replies.push_back(reply(QStringLiteral("m3"), QStringLiteral("Seen")));
    look();
    isSupportOnScreen = false;
    look();
    EXPECT_EQ(desktop.posted.size(), 2);
    EXPECT_EQ(inbox.notices().size(), 2);
}

TEST_F(DesktopNotifierLookingTest, RepliesThatAreSeenInTheConversationAreTakenBackAndRead)
{
    beginConversation();
    launch();
    replies = {reply(QStringLiteral("m1"), QStringLiteral("One")), reply(QStringLiteral("m2"), QStringLiteral("Two"))};
    list = {item(QStringLiteral("a"))};
    look();
    EXPECT_EQ(banners.current()->id, QStringLiteral("support-m1"));
    isSupportOnScreen = true;
    notifier->supportSeen();
    EXPECT_EQ(banner(), QStringList{QStringLiteral("account-a")});
    EXPECT_TRUE(desktop.withdrawn.contains(QStringLiteral("lst-support-m1")));
    EXPECT_TRUE(desktop.withdrawn.contains(QStringLiteral("lst-support-m2")));
    EXPECT_FALSE(desktop.withdrawn.contains(QStringLiteral("lst-account-a")));
    EXPECT_TRUE(std::ranges::none_of(inbox.notices(), &InboxNotice::isUnread));

    isSupportOnScreen = false;
    replies = {reply(QStringLiteral("m3"), QStringLiteral("Three"))};
    notifier->check(); // on its way to the disk
    EXPECT_TRUE(notifier->inFlight().contains(QStringLiteral("support-m3")));
    isSupportOnScreen = true;
    notifier->supportSeen();
    settle();
    EXPECT_EQ(posted().size(), 3);
    EXPECT_FALSE(inbox.notices().front().isUnread);
}

TEST_F(DesktopNotifierLookingTest, AGuestsRepliesAreGoneForWhoSignsIn)
{
    account = QString();
    beginConversation();
    launch();
    replies = {reply(QStringLiteral("m1"), QStringLiteral("For the guest"))};
    look();
    EXPECT_EQ(posted().size(), 1);
    replies.clear();
    become(QStringLiteral("7"));
    EXPECT_TRUE(banner().isEmpty());
    EXPECT_EQ(desktop.withdrawn, QStringList{QStringLiteral("lst-support-m1")});
}

TEST_F(DesktopNotifierLookingTest, AClockThatIsWrongNeitherReplaysNorSilences)
{
    const QDateTime right = clock.now();
    for (const int days : {-20000, -3}) {
        SCOPED_TRACE(days);
        clock.setNow(right);
        const NotificationLedger ledger(QStringLiteral("account-7"), right);
        folder.save(NotificationLedger::fileName, ledger.encoder());
        desktop.posted.clear();
        beginConversation();
        replies = {reply(QStringLiteral("old"), QStringLiteral("Before"), -60)};
        list = {item(QStringLiteral("new"), 10), item(QStringLiteral("b"), -60), item(QStringLiteral("a"), -90)};
        pageSize = 2;
        failsFrom = 2;
        clock.setNow(right.addDays(days));
        launch();
        EXPECT_EQ(notifier->ledger()->startedAt(), right) << "the list was not read to its end";
        failsFrom = SIZE_MAX;
        look();
        EXPECT_EQ(notifier->ledger()->startedAt(), clock.now());
        list.insert(list.begin(), item(QStringLiteral("meanwhile"), 1));
        look();
        clock.setNow(right.addSecs(60));
        list.insert(list.begin(), item(QStringLiteral("later"), 1));
        look();
        launch();
        EXPECT_EQ(posted(), (QStringList{QStringLiteral("account-new"), QStringLiteral("account-meanwhile"),
                                         QStringLiteral("account-later")}));
    }
}

TEST_F(DesktopNotifierLookingTest, OfManyAtOnceTwentyComeAndADigestOfEachCategoryStandsForTheRest)
{
    launch();
    preferences.set(preferences::notifyVessa, false);
    addItems(5, "vessa_like"); // switched off: recorded, and of no account here
    addItems(21);
    addItems(3, "price_drop");
    addItems(2, "promotion");
    look();
    ASSERT_EQ(desktop.posted.size(), 22);
    EXPECT_EQ(posted()[19], QStringLiteral("account-order_shipped19"));
    EXPECT_EQ(posted().mid(20), (QStringList{QStringLiteral("digest-orders"), QStringLiteral("digest-price")}));
    EXPECT_EQ(desktop.posted[20].title, QStringLiteral("Order updates"));
    EXPECT_EQ(desktop.posted[20].body, QStringLiteral("1 more notification is waiting in your inbox."));
    EXPECT_EQ(desktop.posted[21].body, QStringLiteral("3 more notifications are waiting in your inbox."));
    EXPECT_EQ(notifier->ledger()->delivered().size(), 31);
    look();
    EXPECT_EQ(desktop.posted.size(), 22);
}

TEST_F(DesktopNotifierLookingTest, AListIsReadAsFarAsItHoldsNews)
{
    pageSize = 10;
    addItems(45);
    list.insert(list.begin() + 12, list.front()); // it moved while it was read
    for (std::size_t i = 20; i < list.size(); ++i)
        list[i].date = clock.now().addSecs(-1);
    launch();
    EXPECT_EQ(pagesRead, 3);
    EXPECT_EQ(notifier->ledger()->delivered().size(), 19);
    look();
    EXPECT_EQ(pagesRead, 4);
}

TEST_F(DesktopNotifierLookingTest, WhatALookDidNotReachBecauseAPageFailedComesWithALaterOne)
{
    launch();
    pageSize = 10;
    addItems(30);
    failsFrom = 10;
    for (int i = 0; i < 2; ++i) {
        look();
        EXPECT_EQ(notifier->ledger()->delivered().size(), 10);
    }
    failsFrom = SIZE_MAX;
    look();
    EXPECT_EQ(notifier->ledger()->delivered().size(), 30);
    pagesRead = 0;
    look();
    EXPECT_EQ(pagesRead, 1);
}

TEST_F(DesktopNotifierLookingTest, TenThousandAtOnceAreRecordedAndAnEndlessListIsNotReadForEver)
{
    launch();
    pageSize = 500;
    addItems(12000);
    look();
    EXPECT_EQ(pagesRead, 1 + 20);
    EXPECT_EQ(desktop.posted.size(), 21);
    EXPECT_EQ(notifier->ledger()->delivered().size(), 10000);
}

TEST_F(DesktopNotifierLookingTest, AnIdentifierLeavesOnlyWhenAWholeReadDoesNotHoldIt)
{
    QStringList delivered;
    for (int i = 0; i < 6500; ++i)
        delivered.append(QStringLiteral("account-%1").arg(i));
    const NotificationLedger full(QStringLiteral("account-7"), clock.now().addDays(-1), delivered);
    folder.save(NotificationLedger::fileName, full.encoder());
    pageSize = 100;
    for (int i = 0; i < 200; ++i) // the oldest are still there
        list.push_back(item(QString::number(i), -3600));
    isFailing = true;
    launch();
    EXPECT_EQ(notifier->ledger()->delivered().size(), 6500);
    isFailing = false;
    look();
    EXPECT_EQ(pagesRead, 1 + 2);
    const QStringList left = notifier->ledger()->delivered();
    EXPECT_EQ(left.size(), 200 + NotificationLedger::mostGone);
    EXPECT_EQ(left.first(), QStringLiteral("account-0"));
    EXPECT_FALSE(notifier->ledger()->contains(QStringLiteral("account-200")));
    EXPECT_EQ(left.last(), QStringLiteral("account-6499"));
    EXPECT_TRUE(posted().isEmpty());
    look();
    EXPECT_EQ(pagesRead, 4); // once is enough
}

} // namespace
