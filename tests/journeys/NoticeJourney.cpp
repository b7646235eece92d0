#include "kit/Journey.h"
#include "notify/NotificationBannerCenter.h"
#include "support/FakeClock.h"
#include "support/SupportChatModel.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QImage>
#include <QTimer>
#include <QtTest>

namespace loom
{

namespace
{

using namespace std::chrono_literals;

const QString ines = QStringLiteral("ines.marinho@example.com");
const QString theo = QStringLiteral("theo.lind@example.com");
const QString banner = QStringLiteral("notificationBanner");

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

/// News of the account and of customer service, in the window and on a desktop that keeps what it is given.
class NoticeJourney : public Journey
{
protected:
    void open(const QString& page = QStringLiteral("/account"))
    {
        start(page, {.clock = &clock, .folder = folder.path()});
        awaitLook();
    }
    void signIn(const QString& email = ines)
    {
        ASSERT_TRUE(run(shop->model().auth()->signIn(email, QStringLiteral("atelier24"))));
        awaitLook();
    }
    [[nodiscard]] DesktopNotifier& notifier() const { return *shop->model().notifier(); }
    void awaitLook() const
    {
        waitUntil([this] { return notifier().ledger() && !notifier().isChecking() && notifier().inFlight().isEmpty(); },
                  "the look for news is over");
    }
    void look()
    {
        awaitLook();
        clock.advance(DesktopNotifier::watchedPause);
        EXPECT_TRUE(notifier().isChecking());
        awaitLook();
    }
    /// Tells Ines, or who else is named, something from now on. Returns under which identifier.
    QString notify(const QString& type, QJsonObject more = {})
    {
        more.insert(QStringLiteral("type"), type);
        if (!more.contains(QStringLiteral("date")))
            more.insert(QStringLiteral("date"), clock.now().addSecs(1).toString(Qt::ISODate));
        return store.notify(more).value(0);
    }
    /// What the desktop was given, by its titles.
    [[nodiscard]] QStringList posted() const
    {
        QStringList titles;
        for (const DesktopNotice& notice : shop->desktop().posted)
            titles.append(notice.title);
        return titles;
    }
    [[nodiscard]] bool isDelivered(const QString& id) const
    {
        return notifier().ledger()->contains(QStringLiteral("account-") + id);
    }
    void awaitBanner(const QString& title) const { window.awaitText(title, window.await(banner)); }
    /// The number at the bell, beside the section and at the icon; none for an empty one.
    void awaitBadge(const QString& text, int count) const
    {
        for (const char* const place : {"inbox", "section.notifications"}) {
            const QQuickItem* const shown = window.await(QString::fromLatin1(place));
            waitUntil(
                [&] {
                    const QQuickItem* const label = window.find(QStringLiteral("count"), shown);
                    return (label ? label->property("text").toString() : QString()) == text;
                },
                std::string(place) + " says " + text.toStdString());
        }
        EXPECT_EQ(shop->badge().shown.empty() ? 0 : shop->badge().shown.back(), count);
    }

    FakeClock clock{QDateTime::currentDateTimeUtc()};
    QTemporaryDir folder;
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
    QObject::connect(shop->model().banners(), &NotificationBannerCenter::currentChanged, &notifier(),
                     [&] { take(false); });
    shop->desktop().posting = [&](const DesktopNotice&) {
        take(true);
    };
    clock.advance(DesktopNotifier::watchedPause);
    waitUntil(
        [&] {
            take(!shop->desktop().posted.empty());
            return !shop->desktop().posted.empty() && !notifier().isChecking();
        },
        "the news is delivered");
    ASSERT_TRUE(isDelivered(id));
    ASSERT_GE(all.size(), 3);

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
    QElapsedTimer since;
    qint64 longest = 0;
    QTimer pulse;
    QObject::connect(&pulse, &QTimer::timeout, &pulse,
                     [&] { longest = std::max(longest, std::exchange(since, {}).isValid() ? since.restart() : 0); });
    static_cast<void>(longest);
    look();
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
    clock.advance(10s); // they are dated by the store's own clock
    look();
    const QStringList titles = posted();
    EXPECT_FALSE(titles.contains(QStringLiteral("Without a date")));
    EXPECT_FALSE(titles.contains(QStringLiteral("Without an identifier")));
    EXPECT_TRUE(titles.contains(QStringLiteral("Of an unknown type")));
    for (const DesktopNotice& notice : shop->desktop().posted) {
        EXPECT_LE(notice.body.size(), 510) << notice.title.toStdString();
        EXPECT_FALSE(notice.title.contains(QChar(0x202E)));
    }
    for (const QString& title : titles)
        std::printf("%s\n", qPrintable(title));
    // Wherever they lead, it is nowhere outside.
    for (std::size_t i = 0; i < shop->desktop().posted.size(); ++i)
        Q_EMIT shop->desktop().activated(shop->desktop().posted[i].userInfo, {});
    window.press(QStringLiteral("Ctrl+Shift+N"));
    window.click(QStringLiteral("inbox"));
    waitUntil([this] { return window.findAll(QStringLiteral("notification.")).size() > 3; }, "the inbox lists them");
    EXPECT_EQ(shop->openedInBrowser(), QList<QUrl>());
}

TEST_F(NoticeJourney, TheInboxCountsShowsAndLeadsOn)
{
    open();
    signIn(theo);
    awaitBadge({}, 0);
    const QJsonObject forTheo{{QStringLiteral("email"), theo}};
    notify(QStringLiteral("restock"), forTheo);
    look();
    awaitBadge(QStringLiteral("1"), 1);
    QJsonObject many = forTheo;
    many.insert(QStringLiteral("count"), 99);
    notify(QStringLiteral("vessa_like"), many);
    look();
    awaitBadge(QStringLiteral("99+"), 100);
    const QString chat = notify(QStringLiteral("support_reply"), forTheo);
    const QString piece = notify(QStringLiteral("price_drop"), forTheo);
    look();

    window.click(QStringLiteral("inbox"));
    const QQuickItem* const panel = window.await(QStringLiteral("inboxPanel"));
    const QString prefix = QStringLiteral("notification.");
    struct Tab {
        const char* name;
        bool hasChat, hasPiece;
    };
    for (const Tab& tab : {Tab{"tab3", false, false}, Tab{"tab2", true, false}, Tab{"tab1", false, true},
                           Tab{"tab0", true, true}}) {
        SCOPED_TRACE(tab.name);
        window.click(window.await(QString::fromLatin1(tab.name), panel));
        waitUntil(
            [&] {
                return (window.find(prefix + chat, panel) != nullptr) == tab.hasChat &&
                       (window.find(prefix + piece, panel) != nullptr) == tab.hasPiece;
            },
            "the tab shows its own");
    }
    window.click(prefix + piece);
    window.awaitPage(QStringLiteral("Marlow wrap dress"));
    window.awaitGone(QStringLiteral("inboxPanel"));
    const auto unread = [this](const QString& id) {
        const QJsonArray told = store.notifications(theo);
        return std::ranges::count_if(told, [&id](const QJsonValue& item) {
            return item[u"sourceUnread"].toBool() && (id.isEmpty() || item[u"id"] == id);
        });
    };
    waitUntil([&] { return unread(piece) == 0; }, "the store knows that it was read");
    EXPECT_EQ(unread(chat), 1);

    window.click(QStringLiteral("inbox"));
    window.click(prefix + chat);
    window.await(QStringLiteral("supportPanel"));
    window.press(QStringLiteral("Esc"));
    window.click(QStringLiteral("section.notifications"));
    window.awaitPage(QStringLiteral("Notifications"));
    window.click(QStringLiteral("markAllRead"));
    waitUntil([&] { return unread({}) == 0; }, "the store knows that all were read");
    awaitBadge({}, 0);
    window.awaitGone(QStringLiteral("markAllRead"));
}

TEST_F(NoticeJourney, CustomerServiceAnswersInItsPanelAndBesideIt)
{
    store.setSupport({{QStringLiteral("answers"), false}});
    open();
    const auto said = [this] {
        return store.conversations().last()[u"messages"].toArray();
    };
    window.click(QStringLiteral("menu"));
    window.press(QStringLiteral("Up")); // the last menu, and its first command
    window.press(QStringLiteral("Right"));
    window.press(QStringLiteral("Return"));
    const QQuickItem* const panel = window.await(QStringLiteral("supportPanel"));
    window.awaitFocus(QStringLiteral("input"));
    window.type(QStringLiteral("Where is my order?"));
    window.press(QStringLiteral("Return"));
    window.awaitText(QStringLiteral("Where is my order?"), panel);
    waitUntil([&] { return said().size() == 1; }, "the message arrives");

    const QString picture = folder.filePath(QStringLiteral("hem.png"));
    QImage(40, 30, QImage::Format_RGB32).save(picture);
    shop->model().support()->attach(QUrl::fromLocalFile(picture));
    window.await(QStringLiteral("attachedFile"), panel);
    window.click(QStringLiteral("send"));
    waitUntil([&] { return said().size() == 2; }, "the file arrives");
    EXPECT_EQ(said().last()[u"attachments"][0][u"name"], QStringLiteral("hem.png"));

    const auto reply = [this](const QString& body) {
        store.replyFromSupport({{QStringLiteral("body"), body},
                                {QStringLiteral("createdAt"), clock.now().addSecs(1).toString(Qt::ISODate)}});
    };
    reply(QStringLiteral("It is on its way."));
    clock.advance(SupportChatModel::pollInterval);
    window.awaitText(QStringLiteral("It is on its way."), panel);
    look();
    EXPECT_EQ(posted(), QStringList()) << "it was seen";

    window.press(QStringLiteral("Esc"));
    window.awaitGone(QStringLiteral("supportPanel"));
    reply(QStringLiteral("It comes today."));
    look();
    awaitBanner(QStringLiteral("Customer Service"));
    window.awaitText(QStringLiteral("It comes today."), window.await(banner));
    EXPECT_EQ(posted(), QStringList{QStringLiteral("Customer Service")});
    window.click(window.await(QStringLiteral("action"), window.await(banner)));
    window.awaitText(QStringLiteral("It comes today."), window.await(QStringLiteral("supportPanel")));
    window.awaitGone(banner);
    look();
    EXPECT_EQ(posted().size(), 1);
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
