#include "kit/PayingJourney.h"

#include "commerce/CartStore.h"

namespace loom
{

void PayingJourney::startWithBag(const Circumstances& circumstances)
{
    start({}, circumstances);
    window.awaitPage(QStringLiteral("Explore"));
    QObject::connect(&shop->model().announcements(), &Announcements::posted, &shop->model(),
                     [this](Announcement announcement) { announced.append(announcement); });
    fillBag();
    window.press(QStringLiteral("Ctrl+Shift+B"));
    window.await(QStringLiteral("checkout"), window.await(QStringLiteral("cartPanel")));
}

void PayingJourney::fillBag()
{
    std::vector<CartLineInput> lines;
    for (const ProductVariant& variant : shop->variants(QStringLiteral("pleated-mini-skirt"))) {
        if (variant.availableForSale && lines.size() < 2)
            lines.push_back({.merchandiseId = variant.id, .quantity = 1});
    }
    const QString id = shop->leaveCart(std::move(lines));
    CartStore& cart = shop->model().cartStore();
    cart.refresh();
    waitUntil([&] { return cart.cart() && cart.cart()->id == id; }, "the bag is filled");
}

void PayingJourney::askForCheckout() const
{
    window.click(window.await(QStringLiteral("checkout"), window.await(QStringLiteral("cartPanel"))));
}

void PayingJourney::checkOut()
{
    askForCheckout();
    checkout = shop->checkoutWindow();
    checkout.awaitGone(QStringLiteral("opening"));
}

void PayingJourney::checkOutWithBag()
{
    startWithBag();
    checkOut();
}

void PayingJourney::awaitOrder(const QString& number) const
{
    checkout.awaitText(
        number.isEmpty() ? QStringLiteral("Order placed. It will show under Orders in a few minutes.")
                         : QStringLiteral("Order %1 placed. It will show under Orders in a few minutes.").arg(number));
}

void PayingJourney::awaitCheckoutGone() const
{
    waitUntil([] { return Shop::checkoutWindows().isEmpty(); }, "the checkout is closed");
    window.window()->requestActivate();
    waitUntil([this] { return window.window()->isActive(); }, "the shop has the keyboard");
}

void PayingJourney::finish() const
{
    checkout.click(QStringLiteral("doneButton"));
    awaitCheckoutGone();
}

QString PayingJourney::orderNumber(const char* kind)
{
    return store.orders().last()[QLatin1String(kind)].toString();
}

int PayingJourney::countPath(const QString& path)
{
    const QJsonArray all = store.requests();
    return static_cast<int>(
        std::ranges::count_if(all, [&](const QJsonValue& request) { return request[u"path"] == path; }));
}

} // namespace loom
