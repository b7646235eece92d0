#include "commerce/CheckoutStarter.h"

#include "CartFixture.h"
#include "base/Announcements.h"
#include "net/WidgetClient.h"

using namespace loom;
using namespace std::chrono_literals;

namespace
{

const QString token(32, QLatin1Char('t'));
const QUrl cartAddress(QStringLiteral("https://shop.example/cart/c/a?key=1"));
const CheckoutRequest ofCart{.url = cartAddress, .fromCart = true};

class CheckoutStarterTest : public CartFixture
{
protected:
    CheckoutStarterTest() { make(); }
    ~CheckoutStarterTest() override { starter.reset(); }

    void make()
    {
        starter = std::make_unique<CheckoutStarter>(widget, *store, QStringLiteral("https://back.example"),
                                                    CheckoutModel::Services{.clock = time,
                                                                            .announcements = announcements,
                                                                            .openExternally = [](const QUrl&) {},
                                                                            .appVersion = QStringLiteral("1.2.3")},
                                                    [] { return QStringLiteral("ZH_TW"); });
        QObject::connect(starter.get(), &CheckoutStarter::ready, starter.get(),
                         [this](CheckoutModel* checkout) { shownCheckouts.push_back(checkout); });
    }
    void answerPrepare(const Answer& answer)
    {
        server.expect("POST /api/support/widget/shopify-checkout/prepare", answer);
    }
    static Answer unavailable()
    {
        return Answer::json({{QStringLiteral("code"), QStringLiteral("CHECKOUT_AUTH_UNAVAILABLE")}}, 503);
    }
    static Answer handOver() { return Answer::json({{QStringLiteral("code"), token}}); }
    void start(const CheckoutRequest& request, const Answer& answer)
    {
        answerPrepare(answer);
        const std::size_t before = sent();
        starter->start(request);
        settle(before + 1);
    }

    WidgetClient widget{server.base(), QStringLiteral("key-1"), transport, session, random};
    Announcements announcements;
    std::vector<CheckoutModel*> shownCheckouts;
    std::unique_ptr<CheckoutStarter> starter;
};

TEST_F(CheckoutStarterTest, ACheckoutBeginsWithItsHandOverOrWithTheCart)
{
    show({{"one", "v1", 2}, {"two", "v2", 0}});
    answerPrepare(handOver());
    starter->start(ofCart);
    EXPECT_TRUE(starter->isStarting());
    EXPECT_TRUE(starter->isStartingCart());
    starter->start(ofCart); // one click too many
    settle(2);
    EXPECT_FALSE(starter->isStarting());
    EXPECT_EQ(server.requests().back().body, R"({"cartId":"gid://shopify/Cart/a?key=1","locale":"ZH_TW",)"
                                             R"("platform":"macos","publicKey":"key-1"})");
    ASSERT_EQ(shownCheckouts.size(), 1U);
    CheckoutModel* const first = shownCheckouts.front();
    EXPECT_EQ(first->address(),
              QUrl(QStringLiteral("https://back.example/api/support/widget/shopify-checkout/start?code=") + token));
    EXPECT_EQ(first->request(), ofCart);
    EXPECT_EQ(first->summaryText(), QStringLiteral("2 pieces  ·  confirmation sent to your email"));
    EXPECT_EQ(first->pictures().size(), 1); // of what is there

    starter->start(ofCart); // its window comes to the front
    ASSERT_EQ(shownCheckouts.size(), 2U);
    EXPECT_EQ(shownCheckouts.back(), first);
    EXPECT_EQ(sent(), 2U);

    first->close();
    QPointer<CheckoutModel> gone = first;
    drainEvents();
    EXPECT_TRUE(gone.isNull());
    start(ofCart, unavailable());
    ASSERT_EQ(shownCheckouts.size(), 3U);
    EXPECT_EQ(shownCheckouts.back()->address(), cartAddress);
}

TEST_F(CheckoutStarterTest, TheCartIsFirstWhatTheShopperSees)
{
    show({{"one", "v1", 1}});
    QJsonValue answered = changed(cartJson({{"one", "v1", 5}}), QStringLiteral("checkoutUrl"),
                                  QStringLiteral("https://shop.example/cart/c/new"));
    answer("CartLinesUpdate", changedTo(answered).pauseAfter(0));
    answerPrepare(unavailable());
    store->setQuantity(QStringLiteral("one"), 5);
    starter->start(ofCart);
    EXPECT_TRUE(starter->isStartingCart());
    server.waitForRequests(2);
    drainEvents();
    EXPECT_EQ(sent(), 2U); // without waiting for more clicks, and nothing else yet
    EXPECT_EQ(operation(1), QStringLiteral("CartLinesUpdate"));
    server.proceed();
    settle(3);
    ASSERT_EQ(shownCheckouts.size(), 1U);
    EXPECT_EQ(shownCheckouts.front()->summaryText(), QStringLiteral("5 pieces  ·  confirmation sent to your email"));
    EXPECT_EQ(shownCheckouts.front()->address(), QUrl(QStringLiteral("https://shop.example/cart/c/new")));

    // A piece that is bought by itself does not wait for the cart.
    answer("CartCreate", changedTo(changed(cartJson({{"two", "v2", 1}}, cartB), QStringLiteral("checkoutUrl"),
                                           QStringLiteral("https://shop.example/cart/c/b"))));
    EXPECT_TRUE(run(store->createCart({})));
    store->setQuantity(QStringLiteral("one"), 6);
    answerPrepare(unavailable());
    starter->start({.url = QUrl(QStringLiteral("https://shop.example/cart/c/b")), .fromCart = false});
    EXPECT_FALSE(starter->isStartingCart());
    settle(5);
    ASSERT_EQ(shownCheckouts.size(), 2U);
    EXPECT_EQ(shownCheckouts.back()->summaryText(), QStringLiteral("1 piece  ·  confirmation sent to your email"));
    EXPECT_EQ(server.requests().back().json().value(QStringLiteral("cartId")), cartB);
}

TEST_F(CheckoutStarterTest, WhatCannotBeginSaysSo)
{
    const QString failed = QStringLiteral("Couldn't start checkout. Try again.");
    starter->start(ofCart); // there is no cart
    EXPECT_FALSE(starter->isStarting());
    EXPECT_EQ(starter->cartErrorText(), failed);
    starter->forgetError();
    EXPECT_EQ(starter->cartErrorText(), QString());

    show({{"one", "v1", 1}});
    starter->start({.url = QUrl(QStringLiteral("https://evil.example/cart/c/x")), .fromCart = false});
    EXPECT_EQ(starter->buyErrorText(), failed);
    EXPECT_EQ(starter->cartErrorText(), QString());
    for (const Answer& answer : {Answer::body("", 500), Answer::drop(), Answer::body("{")}) {
        start(ofCart, answer);
        EXPECT_EQ(starter->cartErrorText(), failed);
        EXPECT_FALSE(starter->isStarting());
    }
    for (const char* const address : {"https://me@shop.example/cart/c/a", "javascript:alert(1)", ""}) {
        answerRead(changed(cartJson({{"one", "v1", 1}}), QStringLiteral("checkoutUrl"), QLatin1String(address)));
        store->refresh();
        settle(sent() + 1);
        starter->start(ofCart);
        EXPECT_EQ(starter->cartErrorText(), failed) << address;
    }
    EXPECT_TRUE(shownCheckouts.empty());

    answerRead(cartJson({{"one", "v1", 1}}));
    store->refresh();
    settle(sent() + 1);
    start(ofCart, handOver());
    EXPECT_EQ(starter->cartErrorText(), QString());
    EXPECT_EQ(shownCheckouts.size(), 1U);
}

TEST_F(CheckoutStarterTest, AnotherCheckoutAskedForMeanwhileFollows)
{
    show({{"one", "v1", 1}});
    answer("CartCreate", changedTo(changed(cartJson({{"two", "v2", 1}}, cartB), QStringLiteral("checkoutUrl"),
                                           QStringLiteral("https://shop.example/cart/c/b"))));
    EXPECT_TRUE(run(store->createCart({})));
    answerPrepare(unavailable());
    answerPrepare(unavailable());
    starter->start(ofCart);
    starter->start(ofCart);
    starter->start({.url = QUrl(QStringLiteral("https://shop.example/cart/c/b")), .fromCart = false});
    waitUntil([this] { return shownCheckouts.size() == 2U; }, "both are shown");
    EXPECT_FALSE(starter->isStarting());
}

TEST_F(CheckoutStarterTest, TheStarterMayGoAtAnyTime)
{
    show({{"one", "v1", 1}});
    answerPrepare(Answer::silence());
    starter->start(ofCart);
    server.waitForRequests(2);
    starter.reset();
    EXPECT_EQ(clock.sleepers(), 0);

    make();
    answer("CartLinesUpdate", Answer::silence());
    store->setQuantity(QStringLiteral("one"), 5);
    starter->start(ofCart); // waits for the cart
    server.waitForRequests(3);
    starter.reset();
    store.reset();
    EXPECT_EQ(clock.sleepers(), 0);
    drainEvents();
    EXPECT_TRUE(shownCheckouts.empty());
}

} // namespace
