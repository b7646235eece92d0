// What notices say, where they stand, and what is counted of them.

#include "notify/InboxNotices.h"
#include "notify/NoticeText.h"
#include "notify/NotificationBadge.h"
#include "notify/NotificationSettings.h"
#include "notify/NotificationType.h"
#include "notify/OwnNotices.h"
#include "storage/DataFolder.h"
#include "support/FakeDesktopNotifications.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace loom;

namespace
{

TEST(NoticeTextTest, TapBecomesClickAtTheStartOfATextAndOfASentence)
{
    struct Row {
        const char* text;
        const char* adapted;
    };
    for (const Row& row : {
             Row{"Tap to open", "Click to open"},
             Row{"Shipped. Tap to follow it.", "Shipped. Click to follow it."},
             Row{"New!  Tap to see. Why?\nTap to know", "New!  Click to see. Why?\nClick to know"},
             Row{"Please tap to open", "Please tap to open"},
             Row{"Shipped. tap to follow", "Shipped. tap to follow"},
             Row{"Hello, Tap to open", "Hello, Tap to open"},
             Row{"Shipped.Tap to follow", "Shipped.Tap to follow"},
             Row{" Tap to open", " Tap to open"},
             Row{"Tap total", "Tap total"},
             Row{"Tap to \\1 $1", "Click to \\1 $1"},
             Row{"", ""},
         })
        EXPECT_EQ(adaptedForDesktop(QString::fromUtf8(row.text)), QString::fromUtf8(row.adapted)) << row.text;
}

TEST(OwnNoticesTest, TheySayWhatWasAgreed)
{
    const QUuid unique(QStringLiteral("00000000-0000-4000-8000-000000000001"));
    const auto words = [](const AppNotification& notice) {
        return QStringList{notice.id, notice.title, notice.body, notice.symbol, notice.type, notice.link}.join(
            QLatin1Char('|'));
    };
    struct Row {
        AppNotification notice;
        const char* words;
    };
    for (const Row& row : {
             Row{ownNotices::supportReply(QStringLiteral("m1"), QStringLiteral(" Hello\u202E there ")),
                 "support-m1|Customer Service|Hello there|headphones|support|"},
             Row{ownNotices::supportReply(QStringLiteral("m1"), QStringLiteral(" \n")),
                 "support-m1|Customer Service|Sent an attachment|headphones|support|"},
             Row{ownNotices::orderPlaced(QStringLiteral("LST1%1"), unique),
                 "order-placed-LST1%1|Order placed|Order LST1%1 is confirmed. It will show under Orders in a few "
                 "minutes.|checkmark.seal|order|/orders"},
             Row{ownNotices::orderPlaced({}, unique),
                 "order-placed-00000000-0000-4000-8000-000000000001|Order placed|Your order is confirmed. It will show "
                 "under Orders in a few minutes.|checkmark.seal|order|/orders"},
             Row{ownNotices::unavailable(QStringLiteral("imageSearch")),
                 "unavailable-imageSearch|Temporarily unavailable|This feature is paused for now. Please try again "
                 "later.|pause.circle|notice|"},
             Row{ownNotices::updateFailed(), "self-update-failed|LOOMSTREET couldn't update itself|Click Update at the "
                                             "top of the window to install "
                                             "the new version from the disk image.|arrow.down.circle|notice|"},
             Row{ownNotices::preview(unique),
                 "preview-00000000-0000-4000-8000-000000000001|Notification preview|New order updates and customer "
                 "service replies will appear here.|bell.badge|preview|"},
         })
        EXPECT_EQ(words(row.notice), QString::fromUtf8(row.words));
}

TEST(NotificationTypeTest, EveryTypeHasItsCategoryAndAnUnknownOneIsASystemAlert)
{
    using enum NotifyCategory;
    struct Row {
        const char* type;
        NotifyCategory category;
        NotificationCategory tab;
    };
    for (const Row& row :
         {Row{"order_out", Orders, NotificationCategory::System}, Row{"order", Orders, NotificationCategory::System},
          Row{"refund_issued", Refunds, NotificationCategory::System},
          Row{"support_reply", Support, NotificationCategory::Support},
          Row{"support", Support, NotificationCategory::Support}, Row{"restock", Restock, NotificationCategory::System},
          Row{"price_drop", Price, NotificationCategory::System},
          Row{"vessa_follow", Vessa, NotificationCategory::Vessa},
          Row{"coupon", Membership, NotificationCategory::System},
          Row{"event", Promotions, NotificationCategory::System}, Row{"notice", System, NotificationCategory::System},
          Row{"ORDER_OUT", System, NotificationCategory::System}, Row{"", System, NotificationCategory::System}}) {
        const NotificationType& type = notificationType(QString::fromLatin1(row.type));
        EXPECT_EQ(type.category, row.category) << row.type;
        EXPECT_EQ(type.tab, row.tab) << row.type;
    }
    for (const NotifyCategoryEntry& entry : notifyCategoryEntries) {
        EXPECT_EQ(&entryOf(entry.category), &entry);
        EXPECT_EQ(QByteArray(entry.isOn.key), QByteArray("lst_notify_") + entry.rawValue);
        EXPECT_EQ(entry.isOn.fallback, entry.category != Promotions);
    }
}

class NoticesTest : public testing::Test
{
protected:
    QTemporaryDir directory;
    DataFolder folder{directory.path()};
    Preferences preferences{folder};
};

TEST_F(NoticesTest, TheBadgeShowsWhatIsUnreadAsLongAsItIsWanted)
{
    EXPECT_EQ(NotificationBadge::textFor(-1), QString());
    EXPECT_EQ(NotificationBadge::textFor(0), QString());
    EXPECT_EQ(NotificationBadge::textFor(99), QStringLiteral("99"));
    EXPECT_EQ(NotificationBadge::textFor(100), QStringLiteral("99+"));
    FakeLauncherBadge launcher;
    NotificationBadge badge(preferences, launcher);
    badge.setUnreadCount(3);
    badge.setUnreadCount(3);
    preferences.set(preferences::notifyBadge, false);
    badge.setUnreadCount(4);
    EXPECT_EQ(badge.text(), QStringLiteral("4")); // beside the section all the same
    preferences.set(preferences::notifyBadge, true);
    badge.setUnreadCount(0);
    EXPECT_EQ(launcher.shown, (std::vector{3, 0, 4, 0}));
}

TEST_F(NoticesTest, TheSettingsSwitchEachCategoryByItsRow)
{
    NotificationSettings settings(preferences);
    ASSERT_EQ(settings.rowCount(), 9);
    int changes = 0;
    QObject::connect(&settings, &QAbstractItemModel::dataChanged, &settings, [&](const QModelIndex& row) {
        ++changes;
        EXPECT_EQ(row.row(), 8);
    });
    settings.setOn(8, true);
    settings.setOn(9, false);
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(preferences.value(preferences::notifyPromotions));
    EXPECT_TRUE(settings.data(settings.index(8), NotificationSettings::OnRole).toBool());
    settings.setSoundOn(false);
    EXPECT_FALSE(preferences.value(preferences::notifySound));
    EXPECT_TRUE(settings.isBadgeOn());
}

TEST_F(NoticesTest, TheInboxKeepsTheNewestOfOneOwner)
{
    const QDateTime now(QDate(2025, 3, 9), QTime(8, 0), Qt::UTC);
    const auto notice = [](int number) {
        return ownNotices::unavailable(QString::number(number));
    };
    {
        InboxNotices inbox(folder);
        inbox.setOwner(QStringLiteral("account-7"));
        for (int i = 0; i < 120; ++i)
            inbox.add(notice(i), now.addSecs(i));
        inbox.add(notice(200), now.addSecs(110)); // told of late
        inbox.markRead(QStringLiteral("unavailable-119"));
        ASSERT_EQ(inbox.notices().size(), InboxNotices::mostKept);
        EXPECT_EQ(inbox.notices()[9].notification.id, QStringLiteral("unavailable-200"));
    }
    const InboxNotices unread(folder);
    InboxNotices inbox(folder);
    inbox.setOwner(QStringLiteral("account-7"));
    ASSERT_EQ(inbox.notices().size(), InboxNotices::mostKept);
    EXPECT_EQ(inbox.notices().front().notification, notice(119));
    EXPECT_FALSE(inbox.notices().front().isUnread);
    EXPECT_TRUE(inbox.notices().back().isUnread);
    inbox.setOwner(QStringLiteral("guest"));
    EXPECT_TRUE(inbox.notices().empty());
    inbox.setOwner(QStringLiteral("account-7"));
    EXPECT_TRUE(inbox.notices().empty());
}

} // namespace
