#include "kit/NewsJourney.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QTimer>
#include <QtTest>

namespace loom
{

namespace
{

using namespace std::chrono_literals;

void copyFolder(const QString& from, const QString& to)
{
    QDirIterator files(from, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString copy = to + file.mid(from.size());
        QDir().mkpath(QFileInfo(copy).path());
        QFile::copy(file, copy); // one that is being written may be gone already
    }
}

/// News of the account: when it comes, where, and that it comes once.
class NoticeJourney : public NewsJourney
{
};

TEST_F(NoticeJourney, NewsComesOnceAlsoAfterARestart)
{
    open();
    signIn();
    EXPECT_EQ(posted(), QStringList()) << "what was there before is no news";
    const QString id = notify(QStringLiteral("order_delivered"));
    look();
    awaitBanner(QStringLiteral("Delivered"));
    window.awaitText(QStringLiteral("Order LST10440 has arrived. Click to tell others how it fits."));
    ASSERT_EQ(posted(), QStringList{QStringLiteral("Delivered")});
    EXPECT_EQ(shop->desktop().posted.front().requestIdentifier, QStringLiteral("lst-account-") + id);
    EXPECT_EQ(shop->desktop().asked, 1);
    look();
    window.awaitGone(banner);
    EXPECT_EQ(posted().size(), 1);

    shop.reset();
    open();
    look();
    EXPECT_EQ(posted(), QStringList());
    EXPECT_EQ(window.find(banner), nullptr);
}

TEST_F(NoticeJourney, AnEndAtAnyMomentOfADeliveryRepeatsNothing)
{
    struct Moment {
        QString folder;
        bool isBannerShown, isPosted;
    };
    open();
    signIn();
    QTemporaryDir moments;
    QList<Moment> all;
    QByteArray lastLedger;
    const QString id = notify(QStringLiteral("restock"));
    // What the disk would hold if the process ended now.
    const auto take = [&](bool isPosted) {
        const Moment now{.folder = moments.filePath(QString::number(all.size())),
                         .isBannerShown = shop->model().banners()->current().has_value(),
                         .isPosted = isPosted};
        QFile ledger(folder.filePath(QStringLiteral("data/lst_notification_delivery_v2.json")));
        ASSERT_TRUE(ledger.open(QIODevice::ReadOnly));
        const QByteArray bytes = ledger.readAll();
        if (!all.isEmpty() && all.last().isBannerShown == now.isBannerShown && all.last().isPosted == isPosted &&
            lastLedger == bytes)
            return;
        lastLedger = bytes;
        copyFolder(folder.path(), now.folder);
        all.append(now);
    };
    auto watch = std::make_unique<QObject>();
    QObject::connect(shop->model().banners(), &NotificationBannerCenter::currentChanged, watch.get(),
                     [&] { take(false); });
    shop->desktop().posting = [&](const DesktopNotice&) {
        take(true);
    };
    beginLook();
    waitUntil(
        [&] {
            take(!shop->desktop().posted.empty());
            return !shop->desktop().posted.empty() && !notifier().isChecking();
        },
        "the news is delivered");
    ASSERT_TRUE(isDelivered(id));
    ASSERT_GE(all.size(), 3);
    watch.reset();

    for (const Moment& moment : std::as_const(all)) {
        SCOPED_TRACE(testing::Message() << "banner " << moment.isBannerShown << " desktop " << moment.isPosted);
        shop.reset();
        start(QStringLiteral("/account"), {.clock = &clock, .folder = moment.folder});
        awaitLook();
        look();
        EXPECT_TRUE(isDelivered(id));
        const bool isFirst = &moment == &all.first();
        ASSERT_FALSE(isFirst && (moment.isBannerShown || moment.isPosted));
        EXPECT_EQ(posted().size(), isFirst ? 1 : 0);
    }
}

TEST_F(NoticeJourney, WhoSignsInAgainHearsNothingOfBefore)
{
    open();
    signIn();
    notify(QStringLiteral("price_drop"));
    look();
    awaitBanner(QStringLiteral("Price drop"));
    const QString request = shop->desktop().posted.front().requestIdentifier;
    const QString owner = notifier().ledger()->owner();
    shop->model().auth()->signOut();
    window.awaitGone(banner);
    EXPECT_EQ(shop->desktop().withdrawn, QStringList{request});
    waitUntil([this] { return notifier().ledger() && notifier().ledger()->owner() == QStringLiteral("guest"); },
              "a guest is here");
    clock.advance(10s);
    const QString between = notify(QStringLiteral("restock"));
    clock.advance(10s);
    signIn();
    EXPECT_EQ(notifier().ledger()->owner(), owner);
    EXPECT_EQ(notifier().ledger()->startedAt(), clock.now());
    look();
    EXPECT_EQ(posted(), QStringList{QStringLiteral("Price drop")});
    EXPECT_FALSE(isDelivered(between));
    notify(QStringLiteral("restock"));
    look();
    EXPECT_EQ(posted().last(), QStringLiteral("Back in stock"));
}

TEST_F(NoticeJourney, WhatIsSwitchedOffOrReadIsNeverShown)
{
    open();
    signIn();
    window.press(QStringLiteral("Ctrl+,"));
    const WindowDriver settings = shop->settingsWindow();
    settings.click(QStringLiteral("settings.notifications"));
    settings.click(QStringLiteral("category.price"));
    const QString switchedOff = notify(QStringLiteral("price_drop"));
    const QString unwanted = notify(QStringLiteral("promotion"));
    const QString read = notify(QStringLiteral("restock"), {{QStringLiteral("sourceUnread"), false}});
    look();
    EXPECT_TRUE(isDelivered(switchedOff));
    EXPECT_TRUE(isDelivered(unwanted));
    EXPECT_FALSE(isDelivered(read));
    settings.click(QStringLiteral("category.price"));
    settings.click(QStringLiteral("category.promotions"));
    look();
    EXPECT_EQ(posted(), QStringList());
    EXPECT_FALSE(shop->model().banners()->current());
    notify(QStringLiteral("promotion"));
    settings.click(QStringLiteral("inApp"));
    look();
    EXPECT_EQ(posted(), QStringList{QStringLiteral("The season’s first coats")});
    EXPECT_FALSE(shop->model().banners()->current());
}

TEST_F(NoticeJourney, TenThousandAtOnceAreToldInAFewAndTheWindowStaysAlive)
{
    open();
    signIn();
    notify(QStringLiteral("price_drop"), {{QStringLiteral("count"), 9970}});
    notify(QStringLiteral("vessa_like"), {{QStringLiteral("count"), 30}});
    qint64 longest = 0;
    QElapsedTimer since;
    QTimer pulse;
    QObject::connect(&pulse, &QTimer::timeout, &pulse, [&] { longest = std::max(longest, since.restart()); });
    since.start();
    pulse.start(5ms);
    look();
    pulse.stop();
    EXPECT_LT(longest, 500);
    EXPECT_EQ(posted().size(), 22);
    EXPECT_EQ(posted().mid(20), (QStringList{QStringLiteral("Price drops"), QStringLiteral("Vessa activity")}));
    look();
    EXPECT_EQ(posted().size(), 22);
}

TEST_F(NoticeJourney, NothingThatComesFromOutsideBreaksOutOfItsPlace)
{
    open();
    signIn();
    store.notify({{QStringLiteral("hostile"), true}});
    look();
    const QStringList titles = posted();
    EXPECT_FALSE(titles.contains(QStringLiteral("Without a date")));
    EXPECT_FALSE(titles.contains(QStringLiteral("Without an identifier")));
    EXPECT_TRUE(titles.contains(QStringLiteral("Of an unknown type")));
    for (const DesktopNotice& notice : shop->desktop().posted) {
        EXPECT_LE(notice.body.size(), 510) << notice.title.toStdString();
        EXPECT_FALSE(notice.title.contains(QChar(0x202E)));
    }
    // Wherever they lead, it is a page of the web at most.
    for (std::size_t i = 0; i < shop->desktop().posted.size(); ++i)
        Q_EMIT shop->desktop().activated(shop->desktop().posted[i].userInfo, {});
    window.click(QStringLiteral("inbox"));
    waitUntil([this] { return window.findAll(QStringLiteral("notification.")).size() > 3; }, "the inbox lists them");
    for (const QUrl& url : shop->openedInBrowser())
        EXPECT_EQ(url.scheme(), QStringLiteral("https")) << url.toString().toStdString();
}

TEST_F(NoticeJourney, OfTwoWindowsTheOneInFrontTellsAndThePointerKeepsWhatItIsOn)
{
    open();
    signIn();
    const WindowDriver front = shop->openWindow(QStringLiteral("/account"));
    notify(QStringLiteral("restock"));
    look();
    QQuickItem* const shown = front.await(banner);
    EXPECT_EQ(window.find(banner), nullptr);
    front.hover(shown);
    waitUntil([shown] { return shown->property("held").toBool(); }, "the pointer is on it");
    notify(QStringLiteral("price_drop"));
    look();
    front.awaitText(QStringLiteral("Back in stock"), shown);
    EXPECT_EQ(shop->model().banners()->waitingCount(), 1);
    QTest::mouseMove(front.window(), QPoint(4, front.window()->height() - 4));
    waitUntil([shown] { return !shown->property("held").toBool(); }, "the pointer is elsewhere");
    window.window()->requestActivate();
    waitUntil([this] { return window.window()->isActive(); }, "the other window is in front");
    clock.advance(NotificationBannerCenter::displayTime);
    awaitBanner(QStringLiteral("Price drop"));
    front.awaitGone(banner);
}

} // namespace

} // namespace loom
