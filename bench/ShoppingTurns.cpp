#include "TimedJourney.h"
#include "commerce/CartStore.h"
#include "kit/Shop.h"
#include "support/Running.h"

using namespace loom;

namespace
{

void awaitCount(TimedJourney& journey, Shop& shop, int count)
{
    journey.waitUntil([&] { return shop.model().cart()->itemCount() == count; });
}

/// From a link to the number of the order.
void buy(TimedJourney& journey, Shop& shop)
{
    journey.step("the first window, with a piece");
    const WindowDriver window =
        shop.openWindow(QStringLiteral("https://www.loomstreet.example/products/sabine-bias-slip-dress"));
    journey.awaitPage(window, QStringLiteral("Sabine bias slip dress"));
    journey.step("a size");
    window.click(journey.find(window, "size.XXS"));
    journey.step("into the bag");
    window.click(journey.find(window, "addToCart"));
    journey.find(window, "lineTitle");
    awaitCount(journey, shop, 1);
    journey.step("five changes of the number");
    const QQuickItem* const lines = journey.find(window, "cartLines");
    for (int number = 2; number <= 6; ++number) {
        window.click(journey.find(window, "more", lines));
        awaitCount(journey, shop, number);
    }
    journey.step("opening the checkout");
    window.click(journey.find(window, "checkout"));
    journey.waitUntil([] { return !Shop::checkoutWindows().isEmpty(); });
    const WindowDriver checkout(Shop::checkoutWindows().last());
    journey.waitUntil([&] { return checkout.find(QStringLiteral("opening")) == nullptr; });
    journey.step("paying");
    QQuickItem* const view = journey.find(checkout, "checkoutView");
    QMetaObject::invokeMethod(view, "runJavaScript",
                              Q_ARG(QString, QStringLiteral("document.getElementById('pay-now').click()")));
    journey.waitUntil([&] {
        const QQuickItem* const said = checkout.find(QStringLiteral("completion"));
        return said && said->property("text").toString().contains(QStringLiteral("LST"));
    });
    journey.step("closing the checkout");
    checkout.click(journey.find(checkout, "doneButton"));
    journey.waitUntil([] { return Shop::checkoutWindows().isEmpty(); });
    journey.find(window, "empty");
    window.window()->requestActivate();
    journey.waitUntil([&] { return window.window()->isActive(); });
    window.press(QStringLiteral("Esc"));
    journey.waitUntil([&] { return window.find(QStringLiteral("cartPanel")) == nullptr; });
}

/// A bag as full as one can be.
void changeFullBag(TimedJourney& journey, Shop& shop)
{
    const WindowDriver window(shop.windows().windowOf(*shop.model().keySession()));
    journey.step("making a bag of a hundred lines");
    shop.leaveCart(shop.anyPieces(100));
    journey.step("a bag of a hundred lines arrives");
    shop.model().cartStore().refresh();
    awaitCount(journey, shop, 100);
    journey.step("opening a bag of a hundred lines");
    window.press(QStringLiteral("Ctrl+Shift+B"));
    journey.find(window, "lineTitle");
    window.awaitFrame();
    journey.step("changing a bag of a hundred lines");
    QQuickItem* const list = journey.find(window, "cartLines");
    window.click(journey.find(window, "more", list));
    awaitCount(journey, shop, 101);
    window.awaitFrame();
    journey.step("scrolling a bag of a hundred lines");
    while (!list->property("atYEnd").toBool()) {
        window.scroll(list, 120);
        window.awaitFrame();
    }
    journey.step("removing from a bag of a hundred lines");
    window.click(journey.find(window, "remove", list));
    journey.waitUntil([&] { return shop.model().cart()->itemCount() < 101; });
    journey.step("what is left to do");
    window.awaitFrame();
}

} // namespace

int main(int argc, char** argv)
{
    return runTimed(argc, argv, [](TimedJourney& journey, Shop& shop) {
        buy(journey, shop);
        changeFullBag(journey, shop);
    });
}
