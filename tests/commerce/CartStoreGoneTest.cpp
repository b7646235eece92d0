#include "commerce/CartStore.h"

#include "CartFixture.h"

#include <QThreadPool>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

/// The store goes while something of it is on its way: nobody touches it any more, and nothing is left behind.
class CartStoreGoneTest : public CartFixture
{
protected:
    struct Row {
        const char* operation;
        std::function<void(CartStore&)> begin;
    };
    template <typename T>
    void watch(QCoro::Task<ApiResult<T>> task)
    {
        static_cast<void>(observe(std::move(task), m_ended));
        ++m_watched;
    }
    std::vector<Row> rows()
    {
        return {
            Row("GetCart", [](CartStore& of) { of.refresh(); }),
            Row("CartBuyerIdentity", [](CartStore& of) { of.syncBuyerCountry(); }),
            Row("CartLinesAdd", [this](CartStore& of) { watch(of.add(QStringLiteral("v1"), 1)); }),
            {"CartLinesUpdate",
             [](CartStore& of) {
                 of.setQuantity(QStringLiteral("one"), 2);
                 of.settle();
             }},
            Row("CartLinesRemove", [](CartStore& of) { of.remove(QStringLiteral("one")); }),
            Row("ApplyDiscount", [this](CartStore& of) { watch(of.applyCode(QStringLiteral("TEN"))); }),
            Row("ApplyDiscount", [](CartStore& of) { of.removeCode(); }),
            Row("CartCreate", [this](CartStore& of) { watch(of.createCart({})); }),
        };
    }
    void renew()
    {
        store.reset();
        EXPECT_EQ(clock.sleepers() + time.sleepers(), 0);
        QThreadPool::globalInstance()->waitForDone();
        drainEvents();
        EXPECT_EQ(*m_ended, m_watched);
        remember(QString());
        store = std::make_unique<CartStore>(cartAPI, preferences, time);
    }

private:
    template <typename T>
    static QCoro::Task<> observe(QCoro::Task<ApiResult<T>> task, std::shared_ptr<int> ended)
    {
        const auto result = co_await std::move(task);
        EXPECT_TRUE(!result && result.error().isCancelled());
        ++*ended;
    }

    std::shared_ptr<int> m_ended = std::make_shared<int>(0);
    int m_watched = 0;
};

TEST_F(CartStoreGoneTest, WhileAnAnswerIsAwaitedOrRead)
{
    for (const Row& row : rows()) {
        SCOPED_TRACE(row.operation);
        show({{"one", "v1", 1}});
        answer(row.operation, Answer::silence());
        row.begin(*store);
        server.waitForRequests(sent() + 1);
        renew();

        show({{"one", "v1", 1}});
        answer(row.operation, changedTo(cartJson({{"one", "v1", 2}})).pauseAfter(0));
        row.begin(*store);
        server.waitForRequests(sent() + 1);
        server.proceed();
        waitUntil([this] { return clock.sleepers() == 0; }, "the answer has arrived");
        store.reset(); // its record is being read on another thread
        renew();
    }
}

TEST_F(CartStoreGoneTest, WhileACartIsSoughtOrMade)
{
    for (const char* const operation : {"GetCart", "CartCreate"}) {
        if (qstrcmp(operation, "GetCart") == 0)
            remember(cartA);
        answer(operation, Answer::silence());
        watch(store->ensureCart());
        watch(store->ensureCart());
        watch(store->add(QStringLiteral("v1"), 1));
        server.waitForRequests(sent() + 1);
        renew();
    }
    show({{"one", "v1", 1}});
    answer("CartLinesAdd", refused("no"));
    answer("CartCreate", Answer::silence());
    watch(store->add(QStringLiteral("v2"), 1));
    server.waitForRequests(sent() + 2);
    watch(store->add(QStringLiteral("v3"), 1)); // waits for the same cart
    watch(store->restoreLostLines());
    renew();

    show({{"one", "v1", 1}});
    answer("GetCart", envelope(QJsonObject{
                          {QStringLiteral("cart"), changed(cartJson(), QStringLiteral("attributes"), QJsonArray())}}));
    answer("CartAppAttribution", Answer::silence());
    store->refresh();
    server.waitForRequests(sent() + 2);
    renew();
}

TEST_F(CartStoreGoneTest, WhileSomethingOnlyWaits)
{
    show({{"one", "v1", 1}, {"two", "v2", 1}});
    store->setQuantity(QStringLiteral("one"), 5); // for more clicks
    renew();

    show({{"one", "v1", 1}});
    answer("CartLinesAdd", changedTo(cartJson({{"one", "v1", 2}}))); // for the end of the highlight
    EXPECT_TRUE(run(store->add(QStringLiteral("v1"), 1)));
    EXPECT_EQ(time.sleepers(), 1);
    renew();
}

TEST_F(CartStoreGoneTest, WhenTheCartGoesAChangeOfItsLinesGoesToo)
{
    show({{"one", "v1", 1}, {"two", "v2", 1}});
    store->setQuantity(QStringLiteral("one"), 5);
    answer("CartLinesUpdate", Answer::silence());
    store->setQuantity(QStringLiteral("two"), 5);
    time.advance(200ms);
    store->setQuantity(QStringLiteral("one"), 6);
    time.advance(100ms);
    server.waitForRequests(2);
    EXPECT_EQ(store->busyLines(), QSet<QString>{QStringLiteral("two")});
    answerRead(QJsonValue::Null);
    store->refresh();
    server.waitForRequests(3);
    waitUntil([this] { return clock.sleepers() == 0; }, "nothing is on its way");
    EXPECT_EQ(shown(), "none");
    EXPECT_TRUE(store->isSettled());
    EXPECT_TRUE(store->busyLines().isEmpty());
    EXPECT_EQ(sent(), 3U);
}

} // namespace
