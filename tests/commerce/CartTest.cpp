#include "commerce/Cart.h"

#include "CartFixture.h"

using namespace loom;
using testing::ElementsAre;

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

TEST(CartTest, EveryFieldOfTheWireHasItsPlace)
{
    const Cart cart = fullCart();
    EXPECT_EQ(cart.id, QStringLiteral("gid://shopify/Cart/a?key=1"));
    EXPECT_EQ(cart.checkoutURL, QUrl(QStringLiteral("https://shop.example/cart/c/a?key=1")));
    EXPECT_EQ(cart.totalQuantity, 3);
    EXPECT_EQ(cart.attributes, appAttribution());
    EXPECT_THAT(cart.discountCodes, ElementsAre(CartDiscountCode{.code = QStringLiteral("TEN"), .applicable = true},
                                                CartDiscountCode{.code = QStringLiteral("OLD"), .applicable = false}));
    const auto dollars = [](double amount) {
        return Money{.amount = amount, .currencyCode = QStringLiteral("USD")};
    };
    EXPECT_EQ(cart.subtotal, dollars(60));
    EXPECT_EQ(cart.total, dollars(54.5));
    const CartLine first{
        .id = QStringLiteral("one"),
        .quantity = 2,
        .variantID = QStringLiteral("v1"),
        .variantTitle = QStringLiteral("Ink / S"),
        .unitPrice = dollars(20),
        .compareAtPrice = dollars(25),
        .lineTotal = dollars(40),
        .imageURL = QStringLiteral("https://pictures.example/ink.jpg"),
        .productID = QStringLiteral("gid://shopify/Product/7"),
        .productTitle = QStringLiteral("Silk dress"),
        .productHandle = QStringLiteral("silk"),
        .vendor = QStringLiteral("Ada Lin"),
        .availableForSale = true,
        .selectedOptions = {{.name = QStringLiteral("Colour"), .value = QStringLiteral("Ink")},
                            {.name = QStringLiteral("Size"), .value = QStringLiteral("S")}},
    };
    ASSERT_EQ(cart.lines.size(), 2U);
    EXPECT_EQ(cart.lines.front(), first);
    EXPECT_EQ(cart.lines.back().compareAtPrice, std::nullopt);
    EXPECT_EQ(cart.lines.back().imageURL, std::nullopt);
    EXPECT_EQ(cart.line(QStringLiteral("two")), &cart.lines.back());
    EXPECT_EQ(cart.lineOfVariant(QStringLiteral("v2")), &cart.lines.back());
}

TEST(CartTest, WhatThePlatformLeavesOpenIsTaken)
{
    QJsonValue wire =
        cartJson({{"one", "v1", 1}, {"two", "v2", 1}, {"three", "v3", 1}, {"four", "v4", 0}, {"five", "v5", 0}});
    wire = changed(wire, QStringLiteral("attributes[0].value"), QJsonValue::Null);
    wire = changed(wire, QStringLiteral("lines.nodes[0].merchandise"), QJsonObject()); // of another kind
    wire = changed(wire, QStringLiteral("lines.nodes[1].merchandise"), QJsonValue::Null);
    wire = changed(wire, QStringLiteral("lines.nodes[2].merchandise.compareAtPrice.amount"), QStringLiteral("0.0"));
    wire = changed(wire, QStringLiteral("lines.nodes[2].merchandise.product.vendor"), QString());
    wire = changed(wire, QStringLiteral("lines.nodes[2].merchandise.image.url"), QJsonValue::Null);
    wire = changed(wire, QStringLiteral("lines.nodes[4]"), QJsonValue::Null);
    const auto cart = decoded(wire);
    ASSERT_TRUE(cart) << cart.error().toStdString();
    ASSERT_EQ(cart->lines.size(), 2U);
    EXPECT_EQ(cart->lines.front().id, QStringLiteral("three"));
    EXPECT_EQ(cart->lines.front().compareAtPrice, std::nullopt);
    EXPECT_EQ(cart->lines.front().imageURL, std::nullopt);
    EXPECT_EQ(cart->lines.back().quantity, 0); // sold out meanwhile
    EXPECT_EQ(cart->attributes.front(), (CartAttribute{.key = QStringLiteral("source"), .value = {}}));
    EXPECT_EQ(cart->totalQuantity, 3); // as the platform counts
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
        for (const QJsonValue& wrong : {QJsonValue(QJsonArray{1}), QJsonValue(true), QJsonValue::fromVariant(1.5)}) {
            if (wrong.isDouble() && QByteArray(path).endsWith("amount"))
                continue; // an amount may also be a number
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
             Row{R"([{"key": "source", "value": "App"}, {"key": "platform", "value": "macos"}])", false},
             Row{R"([{"key": "source", "value": "app"}, {"key": "platform", "value": "macOS"}])", false},
             Row{R"([{"key": "source", "value": "app"}, {"key": "platform", "value": null}])", false},
             Row{R"([{"key": " source", "value": "app"}, {"key": "platform", "value": "macos"}])", false},
             Row{R"([{"key": "source", "value": "app"}])", false},
             Row{R"([{"key": "platform", "value": "macos"}])", false},
             Row{R"([])", false},
         }) {
        const auto cart = decoded(changed(cartJson(), QStringLiteral("attributes"), json(row.attributes)));
        ASSERT_TRUE(cart);
        EXPECT_EQ(hasAppAttribution(*cart), row.isAttributed) << row.attributes;
    }
}

} // namespace
