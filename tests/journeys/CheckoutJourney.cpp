#include "commerce/CartStore.h"
#include "kit/PayingJourney.h"

namespace loom
{

namespace
{

const QString dressPage = QStringLiteral("https://www.loomstreet.example/products/sabine-bias-slip-dress");
const QString dress = QStringLiteral("Sabine bias slip dress");
const QString prepare = QStringLiteral("/api/support/widget/shopify-checkout/prepare");

/// From the bag, or from a piece, to the order.
class CheckoutJourney : public PayingJourney
{
protected:
    void signIn()
    {
        ASSERT_TRUE(
            run(shop->model().auth()->signIn(QStringLiteral("ines.marinho@example.com"), QStringLiteral("atelier24"))));
    }
    [[nodiscard]] QString host() const
    {
        return checkout.await(QStringLiteral("connection"))->property("text").toString();
    }
};

TEST_F(CheckoutJourney, ALinkLeadsToAnOrder)
{
    start(dressPage);
    window.awaitPage(dress);
    EXPECT_FALSE(isEngineMapped());
    QObject::connect(&shop->model().announcements(), &Announcements::posted, &shop->model(),
                     [this](Announcement announcement) { announced.append(announcement); });
    window.click(QStringLiteral("size.M"));
    window.click(QStringLiteral("addToCart"));
    window.awaitText(QStringLiteral("1 item in your cart"));
    checkOut();
    EXPECT_EQ(countPath(prepare), 1);
    EXPECT_EQ(host(), QStringLiteral("Secure connection to shop.loomstreet.example"));
    window.awaitText(QStringLiteral("Finish paying in the checkout window. Your cart stays as it is."));
    EXPECT_TRUE(page()
                    .evaluate(QStringLiteral("navigator.userAgent"))
                    .toString()
                    .endsWith(QStringLiteral("Version/18.0 Safari/605.1.15 LOOMSTREETMac/") + AppModel::version()));

    pay();
    awaitOrder(QStringLiteral("LST10484"));
    EXPECT_EQ(orderNumber(), QStringLiteral("LST10484"));
    checkout.awaitText(QStringLiteral("1 piece  ·  confirmation sent to your email"));
    checkout.awaitText(QStringLiteral("Track it any time under Orders."));
    checkout.awaitFocus(QStringLiteral("doneButton"));
    EXPECT_EQ(announced, QList{Announcement::CheckoutCompleted});
    window.awaitText(QStringLiteral("Your cart is empty"));
    checkout.press(QStringLiteral("Return"));
    awaitCheckoutGone();
    EXPECT_EQ(announced, (QList{Announcement::CheckoutCompleted, Announcement::CheckoutClosed}));
    EXPECT_EQ(store.orders().size(), 1);
    EXPECT_TRUE(shop->openedInBrowser().isEmpty());

    // The next piece lies in a new cart.
    window.press(QStringLiteral("Esc"));
    window.awaitGone(QStringLiteral("cartPanel"));
    window.click(QStringLiteral("addToCart"));
    window.awaitText(QStringLiteral("1 item in your cart"));
    EXPECT_EQ(store.count(QStringLiteral("CartCreate")), 2);
}

TEST_F(CheckoutJourney, ACustomerArrivesKnownAndFindsTheOrderAmongTheirs)
{
    startWithBag();
    signIn();
    checkOut();
    page().awaitTrue(QStringLiteral("document.body.innerText.includes('Signed in as Ines Marinho')"));
    EXPECT_EQ(countPath(QStringLiteral("/api/support/widget/shopify-checkout/start")), 1);
    EXPECT_EQ(store.count(QStringLiteral("CheckoutEntry")), 0);
    // The hand-over is good once; what is loaded anew is the cart's own page.
    checkout.click(QStringLiteral("reloadCheckout"));
    waitUntil([this] { return store.count(QStringLiteral("CheckoutEntry")) == 1; }, "the page is asked for anew");
    checkout.awaitGone(QStringLiteral("opening"));
    pay();
    awaitOrder(orderNumber());
    checkout.awaitText(QStringLiteral("2 pieces  ·  confirmation sent to your email"));
    const QString number = orderNumber();
    finish();
    shop->model().keySession()->selected()->openOrders();
    window.await(QStringLiteral("order.") + number);
}

TEST_F(CheckoutJourney, SigningOutEndsACheckoutThatKnowsTheCustomer)
{
    startWithBag();
    signIn();
    checkOut();
    page().awaitTrue(QStringLiteral("document.body.innerText.includes('Signed in as')"));
    shop->model().auth()->signOut();
    awaitCheckoutGone();
    waitUntil([this] { return countPath(QStringLiteral("/api/support/widget/shopify-checkout/revoke")) == 1; },
              "the backend is told");
    checkOut();
    page().awaitTrue(QStringLiteral("!document.body.innerText.includes('Signed in as')"));
}

TEST_F(CheckoutJourney, APieceBoughtAtOnceLeavesTheBagAlone)
{
    startWithBag();
    const QString bag = shop->model().cartStore().cart()->id;
    window.press(QStringLiteral("Esc"));
    follow(dressPage);
    window.awaitPage(dress);
    window.click(QStringLiteral("buyNow"));
    window.awaitText(QStringLiteral("Choose a size first."));
    window.click(QStringLiteral("size.M"));
    window.click(QStringLiteral("buyNow"));
    checkout = shop->checkoutWindow();
    EXPECT_EQ(window.find(QStringLiteral("cartPanel")), nullptr);
    pay();
    waitUntil([this] { return store.orders().size() == 1; }, "the order is placed");
    awaitOrder(orderNumber());
    checkout.awaitText(QStringLiteral("1 piece  ·  confirmation sent to your email"));
    finish();
    EXPECT_NE(orderNumber("cartId"), bag);
    EXPECT_EQ(shop->model().cartStore().cart()->id, bag);
    window.awaitText(QStringLiteral("2"), window.await(QStringLiteral("bag")));
}

TEST_F(CheckoutJourney, TheBankAsksInAWindowThatClosesByItself)
{
    startWithBag();
    store.setCheckout({{QStringLiteral("bank"), QStringLiteral("popup")}});
    checkOut();
    pay();
    page().click(QStringLiteral("#confirm-bank"));
    checkout.await(QStringLiteral("checkoutPopup"));
    checkout.awaitText(QStringLiteral("Secure connection to bank.loomstreet.example"));
    EXPECT_EQ(Shop::checkoutWindows().size(), 1);

    // Closed without an answer, and asked again.
    checkout.click(QStringLiteral("closePopup"));
    checkout.awaitGone(QStringLiteral("checkoutPopup"));
    page().awaitTrue(QStringLiteral("document.getElementById('bank-state').textContent.includes('was closed')"));
    page().click(QStringLiteral("#confirm-bank"));
    checkout.await(QStringLiteral("checkoutPopup"));
    page().click(QStringLiteral("#approve"));
    checkout.awaitGone(QStringLiteral("checkoutPopup"));
    checkout.await(QStringLiteral("completion"));
    awaitOrder(orderNumber());
    EXPECT_EQ(announced, QList{Announcement::CheckoutCompleted});
}

TEST_F(CheckoutJourney, TheBankAsksInAFrameOfThePage)
{
    startWithBag();
    store.setCheckout({{QStringLiteral("bank"), QStringLiteral("frame")}});
    checkOut();
    pay();
    page().awaitTrue(
        QStringLiteral("performance.getEntriesByType('resource').some(entry => entry.initiatorType === 'iframe')"));
    // The first thing in the frame is the button that says yes.
    page().evaluate(QStringLiteral("document.getElementById('bank').focus()"));
    checkout.press(QStringLiteral("Tab"));
    checkout.press(QStringLiteral("Return"));
    checkout.await(QStringLiteral("completion"));
    awaitOrder(orderNumber());
}

TEST_F(CheckoutJourney, ThanksAreUnderstoodWhateverTheySay)
{
    struct Thanks {
        const char* words;
        const char* path;
        const char* language;
        const char* number; ///< which one is told; null for none
    };
    startWithBag();
    bool isFirst = true;
    for (const Thanks& thanks : {
             Thanks{"order-number", "thank_you", "en", "number"},
             Thanks{"confirmation", "orders", "en", "confirmation"},
             Thanks{"unnumbered", "thank-you", "en", nullptr},
             Thanks{"order-number", "orders", "ja", nullptr},
             Thanks{"hostile", "thank-you", "en", nullptr},
             Thanks{"huge", "thank-you", "en", "number"},
             Thanks{"huge-tail", "thank-you", "en", nullptr},
         }) {
        SCOPED_TRACE(std::string(thanks.words) + ' ' + thanks.path + ' ' + thanks.language);
        if (!std::exchange(isFirst, false))
            fillBag();
        announced.clear();
        store.setCheckout({{QStringLiteral("thankYou"), QLatin1String(thanks.words)},
                           {QStringLiteral("thankYouPath"), QLatin1String(thanks.path)},
                           {QStringLiteral("language"), QLatin1String(thanks.language)}});
        checkOut();
        pay();
        checkout.await(QStringLiteral("completion"));
        awaitOrder(thanks.number ? orderNumber(thanks.number) : QString());
        EXPECT_EQ(announced, QList{Announcement::CheckoutCompleted});
        finish();
    }
}

TEST_F(CheckoutJourney, AWindowThatIsClosedGivesTheBagBack)
{
    checkOutWithBag();
    // Asking again shows the same window.
    const QQuickWindow* const first = checkout.window();
    window.window()->requestActivate();
    waitUntil([this] { return window.window()->isActive(); }, "the shop has the keyboard");
    askForCheckout();
    waitUntil([first] { return first->isActive(); }, "the checkout is in front again");
    EXPECT_EQ(Shop::checkoutWindows(), QList<QQuickWindow*>{checkout.window()});
    EXPECT_EQ(countPath(prepare), 1);

    const int looks = store.count(QStringLiteral("GetCart"));
    checkout.press(QStringLiteral("Ctrl+W"));
    awaitCheckoutGone();
    EXPECT_EQ(announced, QList{Announcement::CheckoutClosed});
    waitUntil([&] { return store.count(QStringLiteral("GetCart")) == looks + 1; }, "the bag is looked at anew");
    window.awaitText(QStringLiteral("2 items in your cart"));
    window.awaitGone(QStringLiteral("paying"));

    // Paid for somewhere else meanwhile.
    checkOut();
    store.completeCarts();
    checkout.window()->close();
    window.awaitText(QStringLiteral("Your cart is empty"));
}

} // namespace

} // namespace loom
