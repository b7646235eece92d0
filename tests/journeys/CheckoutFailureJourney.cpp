#include "commerce/CartStore.h"
#include "kit/PayingJourney.h"
#include "support/FakeClock.h"

#include <QGuiApplication>

#include <csignal>

namespace loom
{

namespace
{

const QString refusal = QStringLiteral("Couldn't start checkout. Try again.");
const QString prepare = QStringLiteral("/api/support/widget/shopify-checkout/prepare");

/// Checkouts that do not go as they should.
class CheckoutFailureJourney : public PayingJourney
{
protected:
    /// Ends the process that draws the page.
    void killPage() const
    {
        const qint64 process = page().view()->property("renderProcessPid").toLongLong();
        ASSERT_GT(process, 1);
        ::kill(static_cast<pid_t>(process), SIGKILL);
    }
    void awaitFailure(const QString& reason) const
    {
        checkout.awaitText(QStringLiteral("Checkout can't be shown here"));
        checkout.awaitText(reason);
    }
    /// What cannot be shown here goes on in the browser, at the cart's own address.
    void continueInBrowser() const
    {
        EXPECT_TRUE(shop->openedInBrowser().isEmpty());
        checkout.click(QStringLiteral("continueInBrowser"));
        EXPECT_EQ(shop->openedInBrowser(), QList<QUrl>{shop->model().cartStore().cart()->checkoutURL});
    }

    FakeClock clock;
};

TEST_F(CheckoutFailureJourney, WhatCannotBePreparedCanBeTriedAgain)
{
    startWithBag();
    const QString fault = store.fail({.kind = QStringLiteral("status"), .path = prepare, .status = 500});
    askForCheckout();
    window.awaitText(refusal);
    EXPECT_TRUE(Shop::checkoutWindows().isEmpty());
    store.lift(fault);
    checkOut();
    window.awaitNoText(refusal);
    EXPECT_EQ(store.count(QStringLiteral("CheckoutForm")), 1);
}

TEST_F(CheckoutFailureJourney, NoAddressThatHidesWhereItLeadsIsOpened)
{
    startWithBag();
    const QString tail = QStringLiteral("shop.loomstreet.example/cart/c/{token}?key={key}");
    for (const QString& address :
         {QStringLiteral("https://shop.loomstreet.example:8443/cart/c/{token}?key={key}"),
          QStringLiteral("https://shopper@") + tail, QStringLiteral("https://:secret@") + tail,
          QStringLiteral("https://") + tail + QStringLiteral("#top"), QStringLiteral("http://") + tail,
          QStringLiteral("javascript:alert(1)"), QStringLiteral("file:///etc/hostname"),
          (QStringLiteral("https://shop.loomstreet.example/cart/c/") + QString(8193, QLatin1Char('a'))).left(8193)}) {
        SCOPED_TRACE(address.left(80).toStdString());
        store.setCheckout({{QStringLiteral("url"), address}});
        fillBag();
        shop->model().checkout()->forgetError();
        askForCheckout();
        window.awaitText(refusal);
    }
    EXPECT_EQ(countPath(prepare), 0);
    EXPECT_TRUE(Shop::checkoutWindows().isEmpty());
    EXPECT_TRUE(shop->openedInBrowser().isEmpty());
}

TEST_F(CheckoutFailureJourney, APageThatDiesIsMadeAnewOnce)
{
    checkOutWithBag();
    EXPECT_TRUE(page().evaluate(QStringLiteral("document.forms.length > 0")).toBool());
    killPage();
    waitUntil([this] { return store.count(QStringLiteral("CheckoutForm")) == 2; }, "the page is made anew");
    checkout.awaitGone(QStringLiteral("opening"));
    EXPECT_TRUE(page().evaluate(QStringLiteral("document.forms.length > 0")).toBool());
    killPage();
    awaitFailure(QStringLiteral("The page stopped working."));
    continueInBrowser();

    // Here it can be tried again all the same, and paid.
    checkout.click(QStringLiteral("retry"));
    checkout.awaitGone(QStringLiteral("checkoutFailed"));
    pay();
    checkout.await(QStringLiteral("completion"));
    awaitOrder(orderNumber());
}

TEST_F(CheckoutFailureJourney, APageThatCannotBeReachedOrIsOneOfTroubleIsAskedForTwice)
{
    startWithBag();
    const QString fault = store.fail({.kind = QStringLiteral("drop"), .operation = QStringLiteral("CheckoutForm")});
    askForCheckout();
    checkout = shop->checkoutWindow();
    checkout.await(QStringLiteral("continueInBrowser"));
    EXPECT_GE(store.count(QStringLiteral("CheckoutForm")), 2);
    store.lift(fault);
    store.setCheckout({{QStringLiteral("page"), QStringLiteral("error")}, {QStringLiteral("status"), 503}});
    checkout.click(QStringLiteral("retry"));
    checkout.awaitGone(QStringLiteral("checkoutFailed"));
    checkout.await(QStringLiteral("continueInBrowser"));
    continueInBrowser();
}

TEST_F(CheckoutFailureJourney, APageThatNeverComesIsGivenUp)
{
    startWithBag({.clock = &clock});
    store.setCheckout({{QStringLiteral("page"), QStringLiteral("stall")}});
    askForCheckout();
    checkout = shop->checkoutWindow();
    for (int attempt = 1; attempt <= 2; ++attempt) {
        waitUntil([&] { return store.count(QStringLiteral("CheckoutForm")) == attempt; }, "the page is asked for");
        clock.advance(CheckoutModel::loadTimeout);
    }
    awaitFailure(QStringLiteral("The page took too long to load."));
    continueInBrowser();
}

TEST_F(CheckoutFailureJourney, APageThatLeadsOutIsNotFollowed)
{
    startWithBag();
    store.setCheckout({{QStringLiteral("page"), QStringLiteral("redirect")}});
    askForCheckout();
    checkout = shop->checkoutWindow();
    awaitFailure(QStringLiteral("The page leads out of the checkout."));
    EXPECT_EQ(countPath(QStringLiteral("/pages/about-us")), 0);
    continueInBrowser();
}

TEST_F(CheckoutFailureJourney, NoTrickLeadsOut)
{
    startWithBag();
    for (const char* const refused :
         {"Not allowed to ", "Unsafe attempt to ", "Uncaught SecurityError", "requestFullscreen"})
        tolerate(QString::fromLatin1(refused));
    store.setCheckout({{QStringLiteral("tricks"),
                        QJsonArray{QStringLiteral("leave"), QStringLiteral("windows"), QStringLiteral("addresses"),
                                   QStringLiteral("download"), QStringLiteral("questions")}}});
    askForCheckout();
    checkout = shop->checkoutWindow();
    page().awaitTrue(QStringLiteral("document.documentElement.dataset.tricks === 'done'"));
    EXPECT_EQ(page().evaluate(QStringLiteral("location.host")).toString(), QStringLiteral("shop.loomstreet.example"));
    EXPECT_EQ(page().evaluate(QStringLiteral("document.querySelector('h1').textContent")).toString(),
              QStringLiteral("Checkout"));
    EXPECT_EQ(checkout.find(QStringLiteral("checkoutPopup")), nullptr);
    EXPECT_EQ(QGuiApplication::topLevelWindows().size(), 2);
    EXPECT_TRUE(shop->openedInBrowser().isEmpty());
    EXPECT_EQ(countPath(QStringLiteral("/pages/about-us")), 0);

    // The shopper may want to go there all the same; whoever does not goes on paying.
    checkout.awaitText(QStringLiteral("A link of this page leads out of the checkout, to www.loomstreet.example."));
    checkout.click(QStringLiteral("dismiss"));
    checkout.awaitGone(QStringLiteral("leaving"));
    pay();
    checkout.await(QStringLiteral("completion"));
    awaitOrder(orderNumber());
}

} // namespace

} // namespace loom
