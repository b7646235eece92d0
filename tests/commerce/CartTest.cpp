#include "commerce/Cart.h"

#include "CartFixture.h"

using namespace loom;

namespace
{

Result<Cart, QString> decoded(const QJsonValue& cart)
{
    return decodeJson(bytes(cart), decodeCart);
}

Result<Cart, QString> stored(const QJsonValue& cart)
{
    return decodeJson(bytes(cart), decodeStoredCart);
}

Cart fullCart()
{
    QJsonValue cart = cartJson({{"one", "v1", 2}, {"two", "v2", 1}});
    cart = changed(cart, QStringLiteral("discountCodes"),
                   json(R"([{"code": "TEN", "applicable": true}, {"code": "OLD", "applicable": false}])"));
    cart = changed(cart, QStringLiteral("cost.totalAmount.amount"), QStringLiteral("54.5"));
    cart = changed(cart, QStringLiteral("lines.nodes[1].merchandise.compareAtPrice"), QJsonValue::Null);
    return *decoded(changed(cart, QStringLiteral("lines.nodes[1].merchandise.image"), QJsonValue::Null));
}

TEST(CartTest, WhatACartCannotBeWithoutIsNamedWhenItIsMissingOrWrong)
{
    const QJsonObject whole = cartJson({{"one", "v1", 1}});
    for (const char* const path :
         {"id", "checkoutUrl", "totalQuantity", "cost", "cost.subtotalAmount", "cost.totalAmount.amount",
          "cost.totalAmount.currencyCode", "lines", "lines.nodes[0].id", "lines.nodes[0].quantity",
          "lines.nodes[0].cost", "lines.nodes[0].cost.totalAmount.amount", "lines.nodes[0].merchandise.id",
          "lines.nodes[0].merchandise.price", "lines.nodes[0].merchandise.product",
          "lines.nodes[0].merchandise.product.id", "lines.nodes[0].merchandise.product.handle"}) {
        for (const QJsonValue& wrong : {QJsonValue(QJsonArray{1}), QJsonValue(true)}) {
            const auto cart = decoded(changed(whole, QLatin1String(path), wrong));
            ASSERT_FALSE(cart) << path << ' ' << bytes(wrong).constData();
            EXPECT_TRUE(cart.error().contains(QLatin1String(path).mid(QLatin1String(path).lastIndexOf('.') + 1)))
                << cart.error().toStdString();
        }
    }
    EXPECT_FALSE(decoded(changed(whole, QStringLiteral("lines.nodes"), QJsonValue::Null)));
    EXPECT_FALSE(decoded(QJsonArray()));
    EXPECT_FALSE(decodeJson("", decodeCart));
}

TEST(CartTest, ALineOfNothingIsLeftOut)
{
    QJsonValue wire = cartJson({{"one", "v1", 1}, {"two", "v2", 1}, {"three", "v3", 0}, {"four", "v4", 1}});
    wire = changed(wire, QStringLiteral("lines.nodes[0].merchandise"), QJsonObject()); // of another kind
    wire = changed(wire, QStringLiteral("lines.nodes[1].merchandise"), QJsonValue::Null);
    wire = changed(wire, QStringLiteral("lines.nodes[2].merchandise.compareAtPrice.amount"), QStringLiteral("0.0"));
    wire = changed(wire, QStringLiteral("lines.nodes[3]"), QJsonValue::Null);
    const auto cart = decoded(wire);
    ASSERT_TRUE(cart) << cart.error().toStdString();
    ASSERT_EQ(cart->lines.size(), 1U);
    EXPECT_EQ(cart->lines.front().quantity, 0); // sold out meanwhile
    EXPECT_EQ(cart->lines.front().compareAtPrice, std::nullopt);
    EXPECT_EQ(cart->totalQuantity, 3); // as the platform counts
}

TEST(CartTest, ARecordSurvivesItsJson)
{
    const Cart cart = fullCart();
    const auto again = stored(toJson(cart));
    ASSERT_TRUE(again) << again.error().toStdString();
    EXPECT_EQ(*again, cart);
    EXPECT_EQ(*stored(toJson(Cart())), Cart());
    for (const char* const key : {"id", "checkoutURL", "totalQuantity", "subtotal", "total", "lines"})
        EXPECT_FALSE(stored(changed(toJson(cart), QLatin1String(key), QJsonValue::Null))) << key;
}

TEST(CartTest, WhereACartWasMadeIsReadInAnyCaseOfItsKeys)
{
    struct Row {
        const char* attributes;
        bool isAttributed;
    };
    for (const Row& row : {
             Row{R"([{"key": "source", "value": "app"}, {"key": "platform", "value": "macos"}])", true},
             Row{R"([{"key": "PLATFORM", "value": "macos"}, {"key": "x", "value": null},
                     {"key": "Source", "value": "app"}])",
                 true},
             Row{R"([{"key": "source", "value": "web"}, {"key": "source", "value": "app"},
                     {"key": "platform", "value": "macos"}])",
                 true},
             Row{R"([{"key": "source", "value": "app"}, {"key": "platform", "value": "macOS"}])", false},
             Row{R"([{"key": "source", "value": "app"}, {"key": "platform", "value": null}])", false},
             Row{R"([{"key": "source", "value": "app"}])", false},
         }) {
        const auto cart = decoded(changed(cartJson(), QStringLiteral("attributes"), json(row.attributes)));
        ASSERT_TRUE(cart);
        EXPECT_EQ(hasAppAttribution(*cart), row.isAttributed) << row.attributes;
    }
}

} // namespace
