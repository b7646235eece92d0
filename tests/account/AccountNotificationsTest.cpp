#include "account/AccountNotifications.h"

#include "AccountFixture.h"

#include <QJsonArray>

using namespace loom;

namespace
{

const QString jane = QStringLiteral("jane@mail.example");
const QString mary = QStringLiteral("mary@mail.example");
const QByteArray listCall = "/notifications";
const QByteArray readCall = "/notifications-read";

QJsonObject itemJson(const QString& id, bool isUnread = true)
{
    return {{QStringLiteral("id"), id},
            {QStringLiteral("type"), QStringLiteral("restock")},
            {QStringLiteral("title"), QStringLiteral("Title ") + id},
            {QStringLiteral("date"), QStringLiteral("2025-03-09T08:00:00Z")},
            {QStringLiteral("sourceUnread"), isUnread}};
}

class AccountNotificationsTest : public AccountFixture
{
protected:
    AccountNotificationsTest()
    {
        auth.load();
        drainEvents();
        server.allow(path("/shopify-checkout/revoke"), [](auto&) { return Answer::json({}); });
    }

    static Answer page(const QStringList& ids, int unread, const QString& nextCursor = {})
    {
        QJsonArray list;
        for (const QString& id : ids)
            list.append(itemJson(id));
        QJsonObject answer{{QStringLiteral("notifications"), list}, {QStringLiteral("unreadCount"), unread}};
        if (!nextCursor.isEmpty())
            answer.insert(QStringLiteral("nextCursor"), nextCursor);
        return Answer::json(answer);
    }
    static Answer unread(int count) { return Answer::json({{QStringLiteral("unreadCount"), count}}); }
    /// Signs Jane in and shows this list.
    void begin(Answer list)
    {
        server.expect(path(listCall), std::move(list));
        store.show();
        ASSERT_TRUE(signInAs(auth, jane));
        settle();
    }
    void settle()
    {
        waitUntil([this] { return store.phase() == AccountContent::Phase::Ready && !store.isLoading(); }, "the list");
    }
    void reload(Answer list)
    {
        server.expect(path(listCall), std::move(list));
        store.reload();
        settle();
    }
    void loadMore(Answer list)
    {
        server.expect(path(listCall), std::move(list));
        store.loadMore();
        waitUntil([this] { return !store.isLoadingMore(); }, "what is behind");
    }
    /// Until the backend has answered so many calls about what was read.
    void waitForTold(int count)
    {
        waitUntil(
            [&] {
                return std::ranges::count(server.requests(), QByteArray("/api/support/widget" + readCall),
                                          &ReceivedRequest::path) >= count;
            },
            "the backend is told");
        drainEvents();
    }
    [[nodiscard]] QString shown() const
    {
        QStringList ids;
        for (const AccountNotification& notification : store.notifications())
            ids.append(notification.id + (notification.isUnread ? QStringLiteral("*") : QString()));
        return ids.join(QLatin1Char(' '));
    }
    [[nodiscard]] QJsonObject lastQuestion() const { return server.requests().back().json(); }

    AuthStore auth{services()};
    AccountNotifications store{auth, announcements, auth.widget(), folder, clock};
};

TEST_F(AccountNotificationsTest, PagesFollowEachOtherAndANewFirstPageMeetsTheOld)
{
    begin(page({QStringLiteral("d"), QStringLiteral("c")}, 4, QStringLiteral("2")));
    EXPECT_EQ(lastQuestion().value(QStringLiteral("limit")).toInt(), NotificationsAPI::pageSize);
    EXPECT_EQ(store.unreadCount(), 4);
    loadMore(page({QStringLiteral("c"), QStringLiteral("b")}, 4, QStringLiteral("4"))); // it moved meanwhile
    EXPECT_EQ(lastQuestion().value(QStringLiteral("cursor")).toString(), QStringLiteral("2"));
    EXPECT_EQ(shown(), QStringLiteral("d* c* b*"));

    reload(page({QStringLiteral("e"), QStringLiteral("d")}, 5, QStringLiteral("2")));
    EXPECT_EQ(shown(), QStringLiteral("e* d* c* b*"));
    loadMore(Answer::drop());
    EXPECT_FALSE(store.moreErrorText().isEmpty());
    EXPECT_TRUE(store.canLoadMore());
    loadMore(page({QStringLiteral("a")}, 5));
    EXPECT_EQ(lastQuestion().value(QStringLiteral("cursor")).toString(), QStringLiteral("4"));
    EXPECT_EQ(shown(), QStringLiteral("e* d* c* b* a*"));
    EXPECT_FALSE(store.canLoadMore());
    EXPECT_TRUE(store.moreErrorText().isEmpty());

    reload(page({QStringLiteral("z")}, 1, QStringLiteral("1"))); // they do not meet
    EXPECT_EQ(shown(), QStringLiteral("z*"));
    EXPECT_TRUE(store.canLoadMore());
}

TEST_F(AccountNotificationsTest, WhatIsReadIsReadAtOnceAndToldUntilItIsConfirmed)
{
    begin(page({QStringLiteral("b"), QStringLiteral("a")}, 12));
    server.expect(path(readCall), refused(500, QStringLiteral("OOPS")));
    store.markRead(QStringLiteral("b"));
    store.markRead(QStringLiteral("b"));
    store.markRead(QStringLiteral("unknown"));
    EXPECT_EQ(shown(), QStringLiteral("b a*"));
    EXPECT_EQ(store.unreadCount(), 11);
    waitForTold(1);
    EXPECT_EQ(lastQuestion().value(QStringLiteral("ids")).toArray(), QJsonArray{QStringLiteral("b")});
    EXPECT_EQ(shown(), QStringLiteral("b a*"));

    // The next run knows, and tells it with the first answer, which does not know.
    AccountNotifications next(auth, announcements, auth.widget(), folder, clock);
    server.expect(path(listCall), page({QStringLiteral("b"), QStringLiteral("a")}, 12));
    server.expect(path(readCall), unread(10));
    const auto answer = run(next.page({}, {}));
    ASSERT_TRUE(answer);
    EXPECT_FALSE(answer->notifications.front().isUnread);
    waitUntil([&next] { return next.unreadCount() == 10; }, "the backend confirms it");
    folder.waitUntilWritten();
    EXPECT_FALSE(QFile::exists(directory.path() + QStringLiteral("/lst_notifications_state.json")));
}

TEST_F(AccountNotificationsTest, APageOlderThanTheConfirmationMakesNothingUnreadAgain)
{
    begin(page({QStringLiteral("b"), QStringLiteral("a")}, 2));
    const std::size_t asked = server.requests().size();
    server.expect(path(listCall),
                  page({QStringLiteral("c"), QStringLiteral("b"), QStringLiteral("a")}, 3).pauseAfter(0));
    store.reload();
    server.waitForRequests(asked + 1);
    server.expect(path(readCall), unread(2));
    store.markRead(QStringLiteral("b"));
    waitUntil(
        [this] {
            folder.waitUntilWritten();
            return !QFile::exists(directory.path() + QStringLiteral("/lst_notifications_state.json"));
        },
        "the backend confirms it");
    server.proceed();
    settle();
    EXPECT_EQ(shown(), QStringLiteral("c* b a*"));
    EXPECT_EQ(store.unreadCount(), 2);
}

TEST_F(AccountNotificationsTest, AllAreReadAtOnceAndByTheirIdsWhereThatFails)
{
    begin(page({QStringLiteral("b"), QStringLiteral("a")}, 12));
    server.expect(path(readCall), Answer::drop());
    store.markAllRead();
    EXPECT_EQ(store.unreadCount(), 0);
    EXPECT_EQ(shown(), QStringLiteral("b a"));
    waitUntil([this] { return store.unreadCount() == 10; }, "the failure");
    EXPECT_EQ(lastQuestion().value(QStringLiteral("all")), true);

    server.expect(path(readCall), unread(9));
    reload(page({QStringLiteral("c"), QStringLiteral("b"), QStringLiteral("a")}, 13));
    EXPECT_EQ(shown(), QStringLiteral("c* b a"));
    waitUntil([this] { return store.unreadCount() == 9; }, "the backend confirms it");
    EXPECT_EQ(lastQuestion().value(QStringLiteral("ids")).toArray().size(), 2);
    EXPECT_FALSE(lastQuestion().contains(QStringLiteral("all")));

    server.expect(path(readCall), refused(400, QStringLiteral("BAD_INPUT")));
    store.markRead(QStringLiteral("c"));
    waitForTold(3); // and never again
    reload(page({QStringLiteral("c")}, 1));
}

TEST_F(AccountNotificationsTest, WhatWasSavedShowsAtOnceAndNothingOutlivesTheAccount)
{
    begin(page({QStringLiteral("b"), QStringLiteral("a")}, 2, QStringLiteral("2")));
    AccountNotifications next(auth, announcements, auth.widget(), folder, clock);
    server.expect(path(listCall), page({QStringLiteral("a")}, 1, QStringLiteral("1")).pauseAfter(0));
    next.show();
    EXPECT_EQ(next.phase(), AccountContent::Phase::Ready);
    EXPECT_EQ(next.notifications().size(), 2);
    EXPECT_FALSE(next.canLoadMore()); // not known before an answer
    server.waitForRequests(3);
    server.proceed();
    waitUntil([&next] { return next.notifications().size() == 1; }, "the answer takes its place");
    EXPECT_TRUE(next.canLoadMore());

    auth.signOut();
    EXPECT_TRUE(store.notifications().empty());
    EXPECT_EQ(store.unreadCount(), 0);
    folder.waitUntilWritten();
    EXPECT_FALSE(QFile::exists(directory.path() + QStringLiteral("/snap-notifications.json")));
    store.markAllRead(); // nothing is told in nobody's name
}

TEST_F(AccountNotificationsTest, WhoLooksForNewsFillsTheListBeforeAnybodyOpensIt)
{
    ASSERT_TRUE(signInAs(auth, jane));
    server.expect(path(listCall), page({QStringLiteral("a")}, 1));
    ASSERT_TRUE(run(store.page({}, {})));
    EXPECT_EQ(store.unreadCount(), 1);
    server.expect(path(listCall), Answer::drop());
    store.show();
    EXPECT_EQ(shown(), QStringLiteral("a*"));
    settle();
    EXPECT_EQ(store.phase(), AccountContent::Phase::Ready);
}

TEST(NotificationPageTest, WhatCannotBeReadIsLeftOutAndTheRestMadeHarmless)
{
    const QByteArray json = R"({"notifications":[
        {"title":"no id"}, {"id":""}, {"id":7}, null, "text",
        {"id":"a","title":["x"],"body":{},"link":9,"date":"2026-02-31T25:61:61Z","sourceUnread":"perhaps"},
        {"id":"a","title":"again"},
        {"id":"b","title":"Lines\nand \u202Ea turn","body":"one\ntwo\u0000","image":"file:///etc/passwd",
         "link":"/orders","date":"9999-12-31T23:59:59Z","sourceUnread":false,"type":"mood"}
        ],"nextCursor":5,"unreadCount":-4})";
    const auto page = decodeJson(json, decodeNotificationPage);
    ASSERT_TRUE(page);
    ASSERT_EQ(page->notifications.size(), 2);
    const AccountNotification empty{
        .id = QStringLiteral("a"), .type = {}, .title = {}, .body = {}, .link = {}, .image = {}, .date = {}};
    EXPECT_EQ(page->notifications[0], empty);
    const AccountNotification& second = page->notifications[1];
    EXPECT_EQ(second.title, QStringLiteral("Lines and a turn"));
    EXPECT_EQ(second.body, QStringLiteral("one\ntwo"));
    EXPECT_EQ(second.image, QString());
    EXPECT_FALSE(second.isUnread);
    EXPECT_EQ(second.date->date().year(), 9999);
    EXPECT_TRUE(page->nextCursor.isEmpty());
    EXPECT_EQ(page->unreadCount, 0);

    const AccountNotification huge{.id = QStringLiteral("a"), .body = QString(100'000, QLatin1Char('x'))};
    const auto cut = decodeJson(QJsonDocument(toJson(huge)).toJson(), decodeAccountNotification);
    ASSERT_TRUE(cut);
    EXPECT_LE(cut->body.size(), 4001);
    EXPECT_FALSE(decodeJson(QByteArrayLiteral(R"({"notifications":null})"), decodeNotificationPage));
}

TEST(CustomerTest, AnAccountIsKnownWithoutItsNumberToo)
{
    EXPECT_EQ(accountIDOf({.numericId = QStringLiteral("7"), .email = jane}), QStringLiteral("7"));
    const QString unnumbered = accountIDOf({.email = jane});
    EXPECT_EQ(unnumbered, accountIDOf({.email = QStringLiteral(" Jane@Mail.example")}));
    EXPECT_NE(unnumbered, accountIDOf({.email = mary}));
    EXPECT_FALSE(unnumbered.contains(QLatin1Char('@')));
}

} // namespace
