#include "commerce/CheckoutStarter.h"

#include "CartFixture.h"
#include "base/Announcements.h"
#include "net/WidgetClient.h"

using namespace loom;
using namespace std::chrono_literals;

namespace
{

const QUrl cartAddress(QStringLiteral("https://shop.example/cart/c/a?key=1"));
const CheckoutRequest ofCart{.url = cartAddress, .fromCart = true};

class CheckoutStarterTest : public CartFixture
{
protected:
    CheckoutStarterTest() { make(); }
    ~CheckoutStarterTest() override { starter.reset(); }

    void make()
    {
        starter = std::make_unique<CheckoutStarter>(
            widget, *store, QStringLiteral("https://back.example"),
            CheckoutModel::Services{.clock = time,
                                    .announcements = announcements,
                                    .openExternally = [](const QUrl&) {},
                                    .appVersion = QStringLiteral("1.2.3")},
            CheckoutStarter::Questions{.locale = [] { return QStringLiteral("ZH_TW"); },
                                       .sessionKnown = [](std::stop_token) -> QCoro::Task<> { co_return; },
                                       .mayHandOver = [this] { return mayHandOver; },
                                       .appToken =
                                           [this] {
                                               return session.appToken();
                                           }});
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

    WidgetClient widget{server.base(), QStringLiteral("key-1"), transport, session, random};
    Announcements announcements;
    bool mayHandOver = true;
    std::vector<CheckoutModel*> shownCheckouts;
    std::unique_ptr<CheckoutStarter> starter;
};

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

TEST_F(CheckoutStarterTest, WhereNobodyMayArriveKnownThePlainAddressOpensUnasked)
{
    show({{"one", "v1", 1}});
    mayHandOver = false;
    starter->start(ofCart);
    ASSERT_EQ(shownCheckouts.size(), 1U);
    EXPECT_EQ(shownCheckouts.front()->address(), cartAddress);
    EXPECT_FALSE(starter->isStarting());
    EXPECT_EQ(sent(), 1U);                         // the cart
    announcements.post(Announcement::AuthChanged); // it is nobody's
    EXPECT_TRUE(starter->isPayingCart());
}

TEST_F(CheckoutStarterTest, ACheckoutAtWhichACustomerIsKnownIsOfTheirSessionAlone)
{
    show({{"one", "v1", 1}});
    const auto handOver = [](char letter) {
        return Answer::json({{QStringLiteral("code"), QString(40, QLatin1Char(letter))}});
    };
    // A guest's stays when they sign in.
    session.signOut();
    answerPrepare(handOver('g'));
    starter->start(ofCart);
    waitUntil([this] { return shownCheckouts.size() == 1U; }, "the guest's checkout");
    int ended = 0;
    const auto count = [&ended] {
        ++ended;
    };
    QObject::connect(shownCheckouts.back(), &CheckoutModel::ended, starter.get(), count);
    session.signIn(QStringLiteral("token-1"), {}, {});
    announcements.post(Announcement::AuthChanged);
    EXPECT_EQ(ended, 0);
    shownCheckouts.front()->close();

    // Who signs out while it is prepared arrives as anybody.
    answerPrepare(handOver('j').pauseAfter(0));
    answerPrepare(unavailable());
    starter->start(ofCart);
    server.waitForRequests(3);
    session.signOut();
    announcements.post(Announcement::AuthChanged);
    server.proceed();
    waitUntil([this] { return shownCheckouts.size() == 2U; }, "the plain checkout");
    EXPECT_EQ(shownCheckouts.back()->address(), cartAddress);
    shownCheckouts.back()->close();

    session.signIn(QStringLiteral("token-2"), {}, {});
    answerPrepare(handOver('m'));
    starter->start(ofCart);
    waitUntil([this] { return shownCheckouts.size() == 3U; }, "the customer's checkout");
    QObject::connect(shownCheckouts.back(), &CheckoutModel::ended, starter.get(), count);
    announcements.post(Announcement::AuthChanged);
    EXPECT_EQ(ended, 0);
    session.signOut();
    announcements.post(Announcement::AuthChanged);
    EXPECT_EQ(ended, 1);
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
