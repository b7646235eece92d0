#include "CartFixture.h"

#include <QThreadPool>

namespace loom
{

namespace
{

constexpr int piecePrice = 20;

QJsonObject money(int amount)
{
    return {{QStringLiteral("amount"), QString::number(amount) + QStringLiteral(".0")},
            {QStringLiteral("currencyCode"), QStringLiteral("USD")}};
}

QJsonObject lineJson(const Goods& goods)
{
    QJsonValue line = json(R"({"cost": {}, "merchandise": {
        "title": "Ink / S", "availableForSale": true, "compareAtPrice": {"amount": "25.0", "currencyCode": "USD"},
        "selectedOptions": [{"name": "Colour", "value": "Ink"}, {"name": "Size", "value": "S"}],
        "image": {"url": "https://pictures.example/ink.jpg"},
        "product": {"id": "gid://shopify/Product/7", "title": "Silk dress", "handle": "silk", "vendor": "Ada Lin"}}})");
    line = changed(line, QStringLiteral("id"), QLatin1String(goods.line));
    line = changed(line, QStringLiteral("quantity"), goods.quantity);
    line = changed(line, QStringLiteral("cost.totalAmount"), money(goods.quantity * piecePrice));
    line = changed(line, QStringLiteral("merchandise.id"), QLatin1String(goods.variant));
    return changed(line, QStringLiteral("merchandise.price"), money(piecePrice)).toObject();
}

} // namespace

QJsonObject cartJson(const std::vector<Goods>& goods, const QString& id)
{
    QJsonArray lines;
    int pieces = 0;
    for (const Goods& line : goods) {
        lines.append(lineJson(line));
        pieces += line.quantity;
    }
    QJsonValue cart = json(R"({"checkoutUrl": "https://shop.example/cart/c/a?key=1",
        "attributes": [{"key": "source", "value": "app"}, {"key": "platform", "value": "macos"}],
        "discountCodes": [], "cost": {}, "lines": {}})");
    cart = changed(cart, QStringLiteral("id"), id.isEmpty() ? cartA : id);
    cart = changed(cart, QStringLiteral("totalQuantity"), pieces);
    cart = changed(cart, QStringLiteral("cost.subtotalAmount"), money(pieces * piecePrice));
    cart = changed(cart, QStringLiteral("cost.totalAmount"), money(pieces * piecePrice));
    return changed(cart, QStringLiteral("lines.nodes"), lines).toObject();
}

CartFixture::~CartFixture()
{
    store.reset(); // what it still waits for ends before the clock does
}

Answer CartFixture::changedTo(const QJsonValue& cart)
{
    return envelope(QJsonObject{{QStringLiteral("change"), QJsonObject{{QStringLiteral("cart"), cart},
                                                                       {QStringLiteral("userErrors"), QJsonArray()}}}});
}

Answer CartFixture::refused(const char* message)
{
    return envelope(changed(json(R"({"change": {"cart": null, "userErrors": [{}]}})"),
                            QStringLiteral("change.userErrors[0].message"), QLatin1String(message)));
}

Answer CartFixture::graphQLError(const char* message)
{
    return Answer::json(
        changed(json(R"({"data": null, "errors": [{}]})"), QStringLiteral("errors[0].message"), QLatin1String(message))
            .toObject());
}

void CartFixture::show(const std::vector<Goods>& goods)
{
    remember(cartA);
    answerRead(cartJson(goods));
    store->refresh();
    settle(sent() + 1);
    ASSERT_TRUE(store->cart());
}

void CartFixture::settle(std::size_t requests, int held)
{
    server.waitForRequests(requests);
    waitUntil([&] { return clock.sleepers() == held; }, "every answer has arrived");
    QThreadPool::globalInstance()->waitForDone();
    drainEvents();
}

std::string CartFixture::shown() const
{
    if (!store->cart())
        return "none";
    QStringList lines;
    for (const CartLine& line : store->cart()->lines)
        lines.append(line.id + QLatin1Char(':') + QString::number(store->shownQuantity(line)));
    return lines.join(QLatin1Char(' ')).toStdString();
}

std::string CartFixture::lost() const
{
    QStringList lines;
    for (const CartLineInput& line : store->lostLines())
        lines.append(line.merchandiseId + QLatin1Char(':') + QString::number(line.quantity));
    return lines.join(QLatin1Char(' ')).toStdString();
}

} // namespace loom
