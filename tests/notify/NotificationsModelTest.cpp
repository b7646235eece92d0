#include "notify/NotificationsModel.h"

#include "account/AccountNotifications.h"
#include "catalog/DateFormat.h"
#include "notify/InboxNotices.h"
#include "notify/OwnNotices.h"

#include "../account/AccountFixture.h"

#include <QJsonArray>

using namespace loom;

namespace
{

/// A place for the dates that no midnight comes into.
QDateTime noon()
{
    return QDateTime(QDate(2025, 3, 9), QTime(12, 0)).toUTC();
}

class NotificationsModelTest : public AccountFixture
{
protected:
    NotificationsModelTest()
    {
        clock.setNow(noon());
        inbox.setOwner(QStringLiteral("account-7"));
        auth.load();
        drainEvents();
    }

    void foretell(const QList<QJsonObject>& items, const QString& nextCursor = {})
    {
        QJsonArray list;
        for (const QJsonObject& item : items)
            list.append(item);
        server.expect(path("/notifications"), Answer::json({{QStringLiteral("notifications"), list},
                                                            {QStringLiteral("nextCursor"), nextCursor}}));
    }
    void take(const QList<QJsonObject>& items, const QString& nextCursor = {})
    {
        foretell(items, nextCursor);
        ASSERT_TRUE(run(account.page({}, {})));
    }
    [[nodiscard]] static QJsonObject item(const QString& id, int hoursAgo, const char* type = "restock")
    {
        return {{QStringLiteral("id"), id},
                {QStringLiteral("type"), QString::fromLatin1(type)},
                {QStringLiteral("title"), QStringLiteral("Title ") + id},
                {QStringLiteral("date"), noon().addSecs(-3600 * hoursAgo).toString(Qt::ISODate)}};
    }
    [[nodiscard]] QVariant at(int row, int role) const { return model.data(model.index(row), role); }
    /// Each row by its id, with the first letter of its day.
    [[nodiscard]] QString rows() const
    {
        QStringList list;
        for (int row = 0; row < model.count(); ++row)
            list.append(at(row, NotificationsModel::NotificationIdRole).toString() +
                        at(row, NotificationsModel::SectionRole).toString().left(1));
        return list.join(QLatin1Char(' '));
    }

    AuthStore auth{services()};
    AccountNotifications account{auth, announcements, auth.widget(), folder, clock};
    InboxNotices inbox{folder};
    DateFormat dates{AppLanguage::English};
    NotificationsModel model{account, inbox, dates, clock};
};

TEST_F(NotificationsModelTest, NoticesOfThisMachineStandAmongTheAccountsByDateAndByDay)
{
    ASSERT_TRUE(signInAs(auth, QStringLiteral("jane@mail.example")));
    EXPECT_TRUE(model.isEverythingEmpty());
    inbox.add(ownNotices::unavailable(QStringLiteral("x")), noon().addSecs(-3600));
    QJsonObject undated = item(QStringLiteral("undated"), 0);
    undated.remove(QStringLiteral("date"));
    take({item(QStringLiteral("future"), -9000), item(QStringLiteral("a"), 0), undated, item(QStringLiteral("b"), 2),
          item(QStringLiteral("c"), 30), undated, item(QStringLiteral("late"), 1)});
    EXPECT_EQ(rows(), QStringLiteral("futureT aT undatedT unavailable-xT bT cE lateE"));
    inbox.add(ownNotices::orderPlaced(QStringLiteral("LST1"), {}), noon().addDays(-9));
    EXPECT_EQ(rows(), QStringLiteral("futureT aT undatedT unavailable-xT bT cE lateE order-placed-LST1E"));
    EXPECT_EQ(at(3, NotificationsModel::SymbolRole), QStringLiteral("pause.circle"));
    EXPECT_EQ(at(0, NotificationsModel::SymbolRole), QStringLiteral("hanger"));
    EXPECT_TRUE(at(3, NotificationsModel::LocalRole).toBool());

    take({undated, item(QStringLiteral("a"), 0), item(QStringLiteral("c"), 30)});
    EXPECT_EQ(rows(), QStringLiteral("aT unavailable-xT cE order-placed-LST1E undatedE"))
        << "it makes no day of its own";

    take({item(QStringLiteral("future"), -9000), item(QStringLiteral("a"), 0), undated});
    clock.advance(std::chrono::hours(24));
    model.refreshDays();
    EXPECT_TRUE(rows().startsWith(QStringLiteral("futureT aE undatedE")));
}

TEST_F(NotificationsModelTest, TabsShowTheirOwnAndRowsAreReadWhereTheyBelong)
{
    ASSERT_TRUE(signInAs(auth, QStringLiteral("jane@mail.example")));
    inbox.add(ownNotices::supportReply(QStringLiteral("m1"), QStringLiteral("Hello")), noon());
    QJsonObject touch = item(QStringLiteral("s"), 1, "support_reply");
    touch.insert(QStringLiteral("title"), QString());
    touch.insert(QStringLiteral("body"), QStringLiteral("Tap to read"));
    take({touch, item(QStringLiteral("v"), 2, "vessa_like"), item(QStringLiteral("m"), 3, "mood")});
    model.setTab(NotificationsModel::System);
    EXPECT_EQ(rows(), QStringLiteral("mT"));
    model.setTab(NotificationsModel::Vessa);
    EXPECT_EQ(rows(), QStringLiteral("vT"));
    model.setTab(NotificationsModel::Support);
    EXPECT_EQ(rows(), QStringLiteral("support-m1T sT"));
    EXPECT_EQ(at(1, NotificationsModel::TitleRole), QStringLiteral("Customer service replies"));
    EXPECT_EQ(at(1, NotificationsModel::BodyRole), QStringLiteral("Click to read"));
    EXPECT_TRUE(at(1, NotificationsModel::SupportRole).toBool());

    int resets = 0;
    QObject::connect(&model, &QAbstractItemModel::modelReset, &model, [&resets] { ++resets; });
    model.markRead(0);
    server.expect(path("/notifications-read"), Answer::json({{QStringLiteral("unreadCount"), 2}}));
    model.markRead(1);
    model.markRead(2);
    EXPECT_FALSE(at(0, NotificationsModel::UnreadRole).toBool());
    EXPECT_FALSE(at(1, NotificationsModel::UnreadRole).toBool());
    server.waitForRequests(3);
    EXPECT_EQ(server.requests().back().json().value(QStringLiteral("ids")).toArray(), QJsonArray{QStringLiteral("s")});
    EXPECT_TRUE(model.hasUnread());
    server.allow(path("/notifications-read"), [](auto&) { return Answer::json({{QStringLiteral("unreadCount"), 0}}); });
    model.markAllRead();
    EXPECT_FALSE(model.hasUnread());
    EXPECT_EQ(resets, 0);
    waitUntil([this] { return server.requests().size() >= 4; }, "the backend is told");
    drainEvents();
}

TEST_F(NotificationsModelTest, ATabReadsOnUntilItHasRowsOrNothingMoreComes)
{
    const QString next = QStringLiteral("next");
    ASSERT_TRUE(signInAs(auth, QStringLiteral("jane@mail.example")));
    take({item(QStringLiteral("a"), 1)}, next);
    foretell({item(QStringLiteral("b"), 2)}, next);
    foretell({item(QStringLiteral("v"), 3, "vessa_like")}, next);
    foretell({item(QStringLiteral("v"), 3, "vessa_like")}, next); // the same for ever
    model.setTab(NotificationsModel::Vessa);
    server.waitForRequests(5);
    waitUntil([this] { return !account.isLoadingMore(); }, "it reads no further");
    EXPECT_EQ(rows(), QStringLiteral("vT"));

    foretell({item(QStringLiteral("c"), 4)}, next);
    server.expect(path("/notifications"), Answer::drop());
    model.loadMore();
    server.waitForRequests(7);
    waitUntil([this] { return !account.isLoadingMore(); }, "it reads no further");
    EXPECT_TRUE(account.canLoadMore());
    EXPECT_FALSE(account.moreErrorText().isEmpty());
}

} // namespace
