#include "commerce/CartStore.h"

#include "CartFixture.h"

using namespace loom;
using namespace std::chrono_literals;

namespace
{

const QString one = QStringLiteral("one");
const QString two = QStringLiteral("two");

class CartStoreLinesTest : public CartFixture
{
protected:
    void pass() { time.advance(300ms); }
    [[nodiscard]] bool isBusy(const QString& line) const { return store->busyLines().contains(line); }
    [[nodiscard]] int sentQuantity() const
    {
        return lastVariables().value(QStringLiteral("lines")).toArray().first()[QStringLiteral("quantity")].toInt();
    }
    /// Asks for a quantity whose answer waits for server.proceed().
    void sendHeld(const QString& line, int quantity, const QJsonValue& cart)
    {
        answer("CartLinesUpdate", changedTo(cart).pauseAfter(0));
        const std::size_t before = sent();
        store->setQuantity(line, quantity);
        pass();
        server.waitForRequests(before + 1);
    }
};

TEST_F(CartStoreLinesTest, ClicksInQuickSuccessionAreOneRequest)
{
    show({{"one", "v1", 1}, {"two", "v2", 1}});
    for (const int quantity : {2, 3, 4}) {
        store->setQuantity(one, quantity);
        EXPECT_EQ(shown(), "one:" + std::to_string(quantity) + " two:1"); // at once
        EXPECT_FALSE(isBusy(one));
        EXPECT_FALSE(store->isSettled());
        time.advance(299ms);
    }
    EXPECT_EQ(sent(), 1U);
    answer("CartLinesUpdate", changedTo(cartJson({{"one", "v1", 4}, {"two", "v2", 1}})).pauseAfter(0));
    time.advance(1ms);
    EXPECT_EQ(store->busyLines(), QSet<QString>{one});
    server.waitForRequests(2);
    store->setQuantity(one, 9); // disabled from sending to answer
    store->remove(one);
    EXPECT_EQ(shown(), "one:4 two:1");
    pass();
    server.proceed();
    settle(2);
    EXPECT_EQ(shown(), "one:4 two:1");
    EXPECT_TRUE(store->isSettled());
}

TEST_F(CartStoreLinesTest, NumbersOutOfBoundsAreCappedOrRemove)
{
    show({{"one", "v1", 1}, {"two", "v2", 1}, {"three", "v3", 1}});
    struct Row {
        qint64 wanted;
        int sent;
    };
    for (const Row& row : {Row{100, 99}, Row{1LL << 40, 99}}) {
        answer("CartLinesUpdate", changedTo(cartJson({{"one", "v1", row.sent}, {"two", "v2", 1}, {"three", "v3", 1}})));
        store->setQuantity(one, row.wanted);
        EXPECT_EQ(shown(), "one:" + std::to_string(row.sent) + " two:1 three:1");
        pass();
        settle(sent() + 1);
        EXPECT_EQ(sentQuantity(), row.sent);
    }

    answer("CartLinesRemove", changedTo(cartJson({{"one", "v1", 1}, {"three", "v3", 1}})));
    store->setQuantity(two, 5); // overtaken by the removal, which does not wait
    store->setQuantity(two, 0);
    EXPECT_TRUE(isBusy(two));
    settle(sent() + 1);
    EXPECT_EQ(shown(), "one:1 three:1");

    const std::size_t before = sent();
    store->setQuantity(two, 5); // no such line any more
    store->remove(two);
    pass();
    drainEvents();
    EXPECT_EQ(sent(), before);
    EXPECT_TRUE(store->isSettled());
}

TEST_F(CartStoreLinesTest, AnOlderAnswerNeverOverwritesANewerOne)
{
    show({{"one", "v1", 1}, {"two", "v2", 1}});
    sendHeld(one, 5, cartJson({{"one", "v1", 5}, {"two", "v2", 1}}));
    answer("CartLinesUpdate", changedTo(cartJson({{"one", "v1", 5}, {"two", "v2", 8}})));
    store->setQuantity(two, 8);
    pass();
    settle(3, 1); // the first one still waits
    EXPECT_EQ(shown(), "one:5 two:8");
    EXPECT_TRUE(isBusy(one));

    answerRead(cartJson({{"one", "v1", 5}, {"two", "v2", 8}}));
    server.proceed();
    settle(4);
    EXPECT_EQ(shown(), "one:5 two:8");
    EXPECT_EQ(operation(3), QStringLiteral("GetCart"));
    EXPECT_TRUE(store->isSettled());
    EXPECT_EQ(sent(), 4U);
}

TEST_F(CartStoreLinesTest, AReadThatAChangeOvertookIsReadAnew)
{
    show({{"one", "v1", 1}});
    answer("GetCart",
           envelope(QJsonObject{{QStringLiteral("cart"), QJsonValue(cartJson({{"one", "v1", 1}}))}}).pauseAfter(0));
    store->refresh();
    server.waitForRequests(2);
    answer("CartLinesUpdate", changedTo(cartJson({{"one", "v1", 3}})));
    store->setQuantity(one, 3);
    pass();
    waitUntil([this] { return store->isSettled(); }, "the change is answered");
    EXPECT_EQ(shown(), "one:3");
    answerRead(cartJson({{"one", "v1", 3}}));
    server.proceed();
    settle(4);
    EXPECT_EQ(shown(), "one:3");

    // Not even when it says that there is none.
    answer("GetCart", envelope(QJsonObject{{QStringLiteral("cart"), QJsonValue()}}).pauseAfter(0));
    store->refresh();
    server.waitForRequests(5);
    answer("CartLinesUpdate", changedTo(cartJson({{"one", "v1", 4}})));
    store->setQuantity(one, 4);
    pass();
    waitUntil([this] { return store->isSettled(); }, "the change is answered");
    server.proceed();
    settle(6);
    EXPECT_EQ(shown(), "one:4");
    EXPECT_EQ(remembered(), cartA);
}

TEST_F(CartStoreLinesTest, WhatStillWaitsIsSentAtOnceWhenItHasTo)
{
    show({{"one", "v1", 1}, {"two", "v2", 1}});
    store->settle();
    EXPECT_TRUE(store->isSettled());
    store->setQuantity(one, 4);
    store->setQuantity(two, 5);
    answer("CartLinesUpdate", changedTo(cartJson({{"one", "v1", 4}, {"two", "v2", 1}})));
    answer("CartLinesUpdate", changedTo(cartJson({{"one", "v1", 4}, {"two", "v2", 5}})));
    store->settle();
    EXPECT_EQ(store->busyLines(), (QSet<QString>{one, two}));
    store->settle(); // what is on its way is not sent again
    waitUntil([this] { return store->isSettled(); }, "everything is answered");
    EXPECT_EQ(sent(), 3U);
    pass();
    drainEvents();
    EXPECT_EQ(sent(), 3U);
}

TEST_F(CartStoreLinesTest, AFailureTakesNothingFromAnotherLine)
{
    show({{"one", "v1", 1}, {"two", "v2", 1}});
    answer("CartLinesUpdate", Answer::body("{}", 500).pauseAfter(0));
    store->setQuantity(one, 5);
    pass();
    server.waitForRequests(2);
    sendHeld(two, 6, cartJson({{"one", "v1", 1}, {"two", "v2", 6}}));
    EXPECT_EQ(shown(), "one:5 two:6");
    server.proceed();
    settle(3);
    EXPECT_EQ(shown(), "one:1 two:6");
    EXPECT_TRUE(store->isSettled());
}

} // namespace
