#include "notify/DesktopNotifier.h"

#include "NotifierFixture.h"

#include <QDir>

using namespace loom;

namespace
{

const QString order = QStringLiteral("order-placed-LST1");

using DesktopNotifierTest = NotifierFixture;

TEST_F(DesktopNotifierTest, WhatIsNewComesOnceHoweverOftenItIsLookedFor)
{
    launch();
    list = {item(QStringLiteral("b"), 2), item(QStringLiteral("a"), 1)};
    look();
    const QStringList once{QStringLiteral("account-b"), QStringLiteral("account-a")};
    EXPECT_EQ(posted(), once);
    EXPECT_EQ(banner(), once);
    EXPECT_EQ(desktop.posted.front().requestIdentifier, QStringLiteral("lst-account-b"));
    look();
    launch();
    become(QStringLiteral("7"));
    EXPECT_EQ(posted(), once);
    EXPECT_EQ(banner(), once);
}

TEST_F(DesktopNotifierTest, OnlyUnreadItemsDatedAfterTheLedgerBeganAreNew)
{
    launch();
    list = {item(QStringLiteral("at"), 0), item(QStringLiteral("before"), -1), item(QStringLiteral("after"), 1),
            item(QStringLiteral("read"), 1), item(QStringLiteral("undated"), 1)};
    list[3].isUnread = false;
    list[4].date.reset();
    list.push_back(item(QStringLiteral("later"), 1));
    list.back().date = QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59), Qt::UTC);
    look();
    EXPECT_EQ(posted(), (QStringList{QStringLiteral("account-after"), QStringLiteral("account-later")}));
}

TEST_F(DesktopNotifierTest, NothingIsShownBeforeItsIdentifierIsOnTheDisk)
{
    launch();
    const auto isOnDisk = [this](const QString& id) {
        return ledgerOnDisk().contains('"' + id.toUtf8() + '"');
    };
    int seen = 0;
    desktop.posting = [&](const DesktopNotice& notice) {
        ++seen;
        EXPECT_TRUE(isOnDisk(notice.userInfo.value(QStringLiteral("id"))));
    };
    QObject::connect(&banners, &NotificationBannerCenter::currentChanged, &window, [&] {
        if (banners.current())
            EXPECT_TRUE(isOnDisk(banners.current()->id));
    });
    addItems(3);
    look();
    notifier->deliverOrderPlaced(QStringLiteral("LST1"));
    settle();
    EXPECT_EQ(seen, 4);
}

TEST_F(DesktopNotifierTest, ARunThatEndsInTheMiddleOfADeliveryDoesNotRepeatIt)
{
    launch();
    notifier->deliverOrderPlaced(QStringLiteral("LST1")); // recorded, and not on the disk yet
    EXPECT_TRUE(notifier->inFlight().contains(order));
    EXPECT_TRUE(posted().isEmpty());
    launch();
    notifier->deliverOrderPlaced(QStringLiteral("LST1"));
    settle();
    EXPECT_TRUE(posted().isEmpty());
    InboxNotices kept(folder);
    kept.setOwner(QStringLiteral("account-7"));
    EXPECT_EQ(kept.notices().size(), 1); // nor is it lost

    notifier->deliverOrderPlaced(QStringLiteral("LST2"));
    notifier->deliverOrderPlaced(QStringLiteral("LST2"));
    settle();
    launch();
    notifier->deliverOrderPlaced(QStringLiteral("LST2"));
    settle();
    EXPECT_EQ(posted(), QStringList{QStringLiteral("order-placed-LST2")});
}

TEST_F(DesktopNotifierTest, WithoutADiskEverythingIsStillShownOncePerRun)
{
    QDir().mkpath(ledgerPath()); // a folder in its place can be neither read nor replaced
    launch();
    for (int i = 0; i < 2; ++i) {
        notifier->deliverOrderPlaced(QStringLiteral("LST1"));
        settle();
    }
    EXPECT_EQ(posted(), QStringList{order});
    EXPECT_EQ(banner(), QStringList{order});
}

TEST_F(DesktopNotifierTest, ALedgerThatCannotBeReadBeginsAnewAndReplaysNothing)
{
    for (const char* const content : {R"({"owner":"account-7","startedAt":"2020-01-01T0)", "[]", R"({"owner":7})",
                                      R"({"owner":"account-7","startedAt":"soon","delivered":[]})",
                                      R"({"owner":"guest","startedAt":"2020-01-01T00:00:00Z","delivered":[]})",
                                      R"({"owner":"account-8","startedAt":"2020-01-01T00:00:00Z","delivered":[]})"}) {
        notifier.reset();
        folder.waitUntilWritten();
        QFile file(ledgerPath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        list = {item(QStringLiteral("old"), 0)};
        launch();
        EXPECT_TRUE(posted().isEmpty()) << content;
        EXPECT_EQ(notifier->ledger()->owner(), QStringLiteral("account-7")) << content;
        EXPECT_EQ(notifier->ledger()->startedAt(), clock.now()) << content;
        folder.waitUntilWritten();
        EXPECT_TRUE(ledgerOnDisk().contains("\"account-7\"")) << content;
    }
}

TEST_F(DesktopNotifierTest, EveryChangeOfTheAccountBeginsALedger)
{
    folder.save(QStringLiteral("lst_support_visitor_token"), QJsonValue(QStringLiteral("token-1")));
    launch();
    list = {item(QStringLiteral("mine"))};
    replies = {{.messageID = QStringLiteral("m1"), .text = QStringLiteral("For you"), .date = clock.now().addSecs(1)}};
    look();
    notifier->deliverOrderPlaced(QStringLiteral("LST1"));
    notifier->deliverUnavailable(QStringLiteral("x"));
    settle();
    EXPECT_EQ(banners.waitingCount(), 3);

    clock.advance(std::chrono::seconds(1));
    become(QString());
    EXPECT_EQ(notifier->ledger()->owner(), QStringLiteral("guest"));
    EXPECT_EQ(desktop.withdrawn, (QStringList{QStringLiteral("lst-support-m1"), QStringLiteral("lst-account-mine"),
                                              QStringLiteral("lst-order-placed-LST1")}));
    EXPECT_EQ(banner(), QStringList{QStringLiteral("unavailable-x")}); // what belonged to the account is gone
    EXPECT_TRUE(inbox.notices().empty());
    look();
    EXPECT_EQ(posted().size(), 4);

    clock.advance(std::chrono::seconds(5));
    become(QStringLiteral("7"));
    EXPECT_EQ(posted().size(), 4); // dated before the sign-in
    list.insert(list.begin(), item(QStringLiteral("new")));
    list.front().date = clock.now().addMSecs(1);
    look();
    EXPECT_EQ(posted().last(), QStringLiteral("account-new"));
}

TEST_F(DesktopNotifierTest, WhoLeavesAndComesBackWhileTheLedgerIsReadBeginsOneAsWell)
{
    const NotificationLedger old(QStringLiteral("account-7"), clock.now().addDays(-1));
    folder.save(NotificationLedger::fileName, old.encoder());
    folder.waitUntilWritten();
    list = {item(QStringLiteral("between"), -60)};
    notifier = std::make_unique<DesktopNotifier>(services());
    notifier->start();
    ASSERT_FALSE(notifier->ledger());
    for (const char* const next : {"", "7"}) {
        account = QString::fromLatin1(next);
        notifier->accountChanged();
    }
    settle();
    EXPECT_EQ(notifier->ledger()->startedAt(), clock.now());
    EXPECT_TRUE(posted().isEmpty());
}

TEST_F(DesktopNotifierTest, APreviewShowsWhoeverIsHereAndLeavesNothingInTheInbox)
{
    account.reset();
    launch();
    notifier->deliverPreview();
    settle();
    EXPECT_EQ(posted().size(), 1);
    EXPECT_EQ(banner().size(), 1);
    become(QStringLiteral("7"));
    notifier->deliverPreview();
    settle();
    EXPECT_EQ(posted().size(), 2);
    EXPECT_TRUE(inbox.notices().empty());
}

TEST_F(DesktopNotifierTest, WhatIsDeliveredBeforeItIsKnownWhoIsHereWaits)
{
    account.reset();
    launch();
    notifier->deliverOrderPlaced(QStringLiteral("LST1"));
    look();
    EXPECT_EQ(pagesRead, 0);
    EXPECT_TRUE(posted().isEmpty());
    become(QStringLiteral("7"));
    EXPECT_EQ(posted(), QStringList{order});
    EXPECT_EQ(pagesRead, 1);

    AppNotification others{.id = QStringLiteral("x"), .title = QStringLiteral("x"), .accountID = QStringLiteral("8")};
    notifier->deliver(others);
    settle();
    EXPECT_EQ(posted().size(), 1);
}

TEST_F(DesktopNotifierTest, ACategoryThatIsOffIsRecordedAndDoesNotComeBack)
{
    launch();
    list = {item(QStringLiteral("sale"), 1, "promotion"), item(QStringLiteral("order"), 1),
            item(QStringLiteral("strange"), 1, "mood")};
    preferences.set(preferences::notifyOrders, false);
    look();
    EXPECT_EQ(posted(), QStringList{QStringLiteral("account-strange")}); // promotions are off to begin with
    preferences.set(preferences::notifyOrders, true);
    preferences.set(preferences::notifyPromotions, true);
    look();
    EXPECT_EQ(posted().size(), 1);
    list.insert(list.begin(), item(QStringLiteral("sale2"), 1, "promotion"));
    look();
    EXPECT_EQ(posted().last(), QStringLiteral("account-sale2"));

    preferences.set(preferences::notifySystem, false);
    notifier->deliverPreview();
    settle();
    EXPECT_TRUE(posted().last().startsWith(QStringLiteral("preview-")));
}

TEST_F(DesktopNotifierTest, TheWaysAreSwitchedOneByOne)
{
    struct Row {
        bool inApp, desktop, sound;
    };
    launch();
    for (const Row& row : {Row{true, true, true}, Row{true, true, false}, Row{true, false, true},
                           Row{false, true, true}, Row{false, false, true}}) {
        preferences.set(preferences::inAppNotifications, row.inApp);
        preferences.set(preferences::desktopNotifications, row.desktop);
        preferences.set(preferences::notifySound, row.sound);
        desktop.posted.clear();
        const qsizetype before = banner().size();
        notifier->deliverPreview();
        settle();
        EXPECT_EQ(banner().size() - before, row.inApp ? 1 : 0);
        ASSERT_EQ(desktop.posted.size(), row.desktop ? 1 : 0);
        if (row.desktop)
            EXPECT_EQ(desktop.posted.front().playsSound, row.sound);
    }
}

TEST_F(DesktopNotifierTest, TheDesktopIsAskedForPermissionOnceInARun)
{
    struct Row {
        DesktopPermission before, answer;
        int asked, posted;
    };
    using enum DesktopPermission;
    for (const Row& row :
         {Row{NotDetermined, Authorised, 1, 2}, Row{NotDetermined, Provisional, 1, 2}, Row{NotDetermined, Denied, 1, 0},
          Row{NotDetermined, NotDetermined, 1, 0}, Row{Denied, Authorised, 0, 0}, Row{Authorised, Denied, 0, 2}}) {
        desktop.current = row.before;
        desktop.answer = row.answer;
        desktop.asked = 0;
        desktop.posted.clear();
        launch();
        EXPECT_EQ(desktop.asked, 0); // not before there is something to show
        const qsizetype before = banner().size();
        notifier->deliverPreview();
        notifier->deliverPreview();
        settle();
        EXPECT_EQ(desktop.asked, row.asked);
        EXPECT_EQ(notifier->didAskPermission(), row.asked == 1);
        EXPECT_EQ(desktop.posted.size(), row.posted);
        EXPECT_EQ(banner().size() - before, 2);
    }
}

TEST_F(DesktopNotifierTest, AClickOpensWhatItIsAboutUnlessItIsAnothersByNow)
{
    launch();
    list = {item(QStringLiteral("a"))};
    look();
    std::vector<std::pair<AppNotification, QString>> opened;
    QStringList settings;
    QObject::connect(notifier.get(), &DesktopNotifier::opened, &window,
                     [&](const AppNotification& it, const QString& token) { opened.emplace_back(it, token); });
    QObject::connect(notifier.get(), &DesktopNotifier::settingsRequested, &window,
                     [&](const QString& token) { settings.append(token); });
    const DesktopNotice notice = desktop.posted.front();
    Q_EMIT desktop.activated(notice.userInfo, QStringLiteral("t1"));
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(opened.front().first.link, QStringLiteral("/orders"));
    EXPECT_EQ(opened.front().second, QStringLiteral("t1"));
    EXPECT_EQ(read, QStringList{QStringLiteral("a")});
    EXPECT_FALSE(banners.current()); // it was seen

    become(QStringLiteral("8"));
    Q_EMIT desktop.activated(notice.userInfo, QStringLiteral("t2"));
    EXPECT_EQ(opened.back(), std::pair(AppNotification(), QStringLiteral("t2")));
    EXPECT_EQ(read.size(), 1);

    Q_EMIT desktop.settingsRequested(QStringLiteral("t3"));
    EXPECT_EQ(settings, QStringList{QStringLiteral("t3")});
    EXPECT_EQ(preferences.value(preferences::settingsTab), QStringLiteral("notifications"));
}

TEST_F(DesktopNotifierTest, ABannerThatIsOpenedIsReadAndLeavesTheDesktop)
{
    launch();
    list = {item(QStringLiteral("a"))};
    look();
    // As pages call it.
    ASSERT_TRUE(
        QMetaObject::invokeMethod(notifier.get(), "deliverUnavailable", Q_ARG(QString, QStringLiteral("imageSearch"))));
    settle();
    banners.open();
    EXPECT_EQ(read, QStringList{QStringLiteral("a")});
    EXPECT_TRUE(inbox.notices().front().isUnread);
    banners.open();
    EXPECT_FALSE(inbox.notices().front().isUnread);
    EXPECT_EQ(desktop.withdrawn,
              (QStringList{QStringLiteral("lst-account-a"), QStringLiteral("lst-unavailable-imageSearch")}));
}

} // namespace
