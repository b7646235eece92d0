#include "account/OrdersStore.h"

#include "AccountFixture.h"
#include "account/OrdersModel.h"
#include "account/TrackingModel.h"
#include "catalog/DateFormat.h"
#include "catalog/MoneyFormat.h"

#include <QJsonArray>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

const QString jane = QStringLiteral("jane@mail.example");

QJsonObject orderJson(const QString& id, const char* status = "shipped")
{
    return {{QStringLiteral("id"), id},
            {QStringLiteral("name"), QStringLiteral("LST-") + id},
            {QStringLiteral("placedAt"), QStringLiteral("2025-03-09T08:00:00Z")},
            {QStringLiteral("status"), QString::fromLatin1(status)},
            {QStringLiteral("packages"), QJsonArray{QJsonObject{{QStringLiteral("number"), QStringLiteral("P") + id}}}},
            {QStringLiteral("total"), QJsonObject{{QStringLiteral("amount"), QStringLiteral("10")},
                                                  {QStringLiteral("currencyCode"), QStringLiteral("USD")}}}};
}

class OrdersStoreTest : public AccountFixture
{
protected:
    OrdersStoreTest()
    {
        auth.load();
        drainEvents();
        server.allow(path("/shopify-checkout/revoke"), [](auto&) { return Answer::json({}); });
    }

    static Answer listOf(const QStringList& ids)
    {
        QJsonArray list;
        for (const QString& id : ids)
            list.append(orderJson(id));
        return Answer::json({{QStringLiteral("orders"), list}, {QStringLiteral("refunds"), QJsonArray()}});
    }
    /// So many of these calls have reached the backend.
    void waitForCalls(const QByteArray& call, int count)
    {
        const QByteArray wanted = path(call).mid(5);
        waitUntil([&] { return std::ranges::count(server.requests(), wanted, &ReceivedRequest::path) >= count; },
                  "the call");
    }
    void settle(OrdersStore& store)
    {
        waitUntil([&] { return store.phase() != AccountContent::Phase::Waiting && !store.isLoading(); }, "the orders");
    }
    /// Signs Jane in, who ordered these.
    void begin(const QStringList& ids)
    {
        server.expect(path("/orders"), listOf(ids));
        orders.show();
        ASSERT_TRUE(signInAs(auth, jane));
        settle(orders);
    }
    /// How long it goes on to ask for an order that was placed.
    int secondsOfAwaiting()
    {
        int seconds = 0;
        for (; seconds < 1000; seconds += 2) {
            waitUntil([this] { return !orders.isLoading(); }, "an answer");
            if (!orders.isAwaitingOrder())
                break;
            clock.advance(2s);
        }
        return seconds;
    }
    [[nodiscard]] QStringList ids(const OrdersStore& store)
    {
        QStringList list;
        for (const Order& order : store.orders())
            list.append(order.id);
        return list;
    }
    [[nodiscard]] QStringList files()
    {
        folder.waitUntilWritten();
        return QDir(directory.path()).entryList({QStringLiteral("snap-*"), QStringLiteral("lst_hidden*")});
    }

    MoneyFormat money{AppLanguage::English};
    DateFormat dates{AppLanguage::English};
    AuthStore auth{services()};
    OrdersStore orders{auth, announcements, auth.widget(), folder, clock};
};

TEST_F(OrdersStoreTest, WhatWasSavedShowsFirstAndStaysWhenTheBackendFails)
{
    begin({QStringLiteral("a"), QStringLiteral("b")});
    orders.hide(QStringLiteral("b"));

    OrdersStore next(auth, announcements, auth.widget(), folder, clock);
    server.expect(path("/orders"), refused(500, QStringLiteral("OOPS")).pauseAfter(0));
    next.show();
    EXPECT_EQ(next.phase(), AccountContent::Phase::Ready);
    EXPECT_EQ(ids(next), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    EXPECT_TRUE(next.isHidden(QStringLiteral("b")));
    waitForCalls("/orders", 2);
    server.proceed();
    settle(next);
    EXPECT_EQ(ids(next).size(), 2);
    EXPECT_FALSE(next.errorText().isEmpty());
}

TEST_F(OrdersStoreTest, SigningOutForgetsAndALateAnswerWritesNothing)
{
    begin({QStringLiteral("a")});
    orders.hide(QStringLiteral("a"));
    EXPECT_EQ(files().size(), 2);
    server.expect(path("/orders"), listOf({QStringLiteral("late")}).pauseAfter(0));
    orders.reload();
    waitForCalls("/orders", 2);
    auth.signOut();
    EXPECT_EQ(orders.phase(), AccountContent::Phase::NeedsAccount);
    server.proceed();
    drainEvents();
    orders.hide(QStringLiteral("late"));
    EXPECT_TRUE(ids(orders).isEmpty());
    EXPECT_EQ(files(), QStringList());
}

TEST_F(OrdersStoreTest, AfterAnOrderWasPlacedItAsksAgainUntilItIsThere)
{
    begin({QStringLiteral("a")});
    int asked = 0;
    server.allow(path("/orders"), [&asked](auto&) {
        return ++asked < 3 ? listOf({QStringLiteral("a")}) : listOf({QStringLiteral("new"), QStringLiteral("a")});
    });
    announcements.post(Announcement::CheckoutCompleted);
    EXPECT_TRUE(orders.isAwaitingOrder());
    EXPECT_LT(secondsOfAwaiting(), 30);
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(ids(orders).size(), 2);

    // The next one never comes. Nor does it ask for somebody else.
    announcements.post(Announcement::CheckoutCompleted);
    EXPECT_EQ(secondsOfAwaiting(), 180);
    EXPECT_EQ(asked, 10);
    announcements.post(Announcement::CheckoutCompleted);
    auth.signOut();
    EXPECT_FALSE(orders.isAwaitingOrder());
}

TEST_F(OrdersStoreTest, RowsFollowTheOrdersOneByOne)
{
    begin({QStringLiteral("a"), QStringLiteral("b")});
    OrdersModel model(QStringLiteral("delivered"), orders, money, dates);
    EXPECT_EQ(model.count(), 0);
    model.setTab(OrdersModel::OnTheWay);
    EXPECT_EQ(model.count(), 2);
    bool wasReset = false;
    QObject::connect(&model, &QAbstractItemModel::modelReset, &model, [&wasReset] { wasReset = true; });
    orders.hide(QStringLiteral("a"));
    EXPECT_EQ(model.count(), 1);
    EXPECT_EQ(model.hiddenCount(), 1);
    EXPECT_EQ(orders.hiddenName(), QStringLiteral("LST-a"));
    orders.undoHiding();
    server.expect(path("/orders"),
                  Answer::json({{QStringLiteral("orders"),
                                 QJsonArray{orderJson(QStringLiteral("c")), orderJson(QStringLiteral("b"), "delivered"),
                                            orderJson(QStringLiteral("a"))}}}));
    orders.reload();
    settle(orders);
    ASSERT_EQ(model.count(), 2);
    EXPECT_EQ(model.data(model.index(0), OrdersModel::OrderIdRole), QStringLiteral("c"));
    EXPECT_EQ(model.data(model.index(1), OrdersModel::OrderIdRole), QStringLiteral("a"));
    EXPECT_FALSE(wasReset);
}

TEST_F(OrdersStoreTest, APackageOfTheCustomersOwnIsKnownBeforeItsCarrierAnswers)
{
    begin({QStringLiteral("a")});
    server.expect(path("/tracking"), refused(404, QStringLiteral("NOT_FOUND")).pauseAfter(0));
    TrackingModel tracking(QStringLiteral(" #Pa "), {}, orders, dates);
    EXPECT_EQ(tracking.phase(), TrackingModel::Phase::Found);
    EXPECT_EQ(tracking.orderId(), QStringLiteral("a"));
    waitForCalls("/tracking", 1);
    server.proceed();
    waitUntil([&] { return !tracking.isLoading(); }, "the answer");
    EXPECT_EQ(tracking.phase(), TrackingModel::Phase::Found);
    EXPECT_EQ(tracking.errorText(), QString());

    server.expect(path("/tracking"), refused(404, QStringLiteral("NOT_FOUND")));
    tracking.search(QStringLiteral("other"));
    EXPECT_EQ(tracking.phase(), TrackingModel::Phase::Waiting);
    EXPECT_EQ(tracking.orderId(), QString());
    waitUntil([&] { return !tracking.isLoading(); }, "the answer");
    EXPECT_EQ(tracking.phase(), TrackingModel::Phase::Missing);
}

} // namespace
