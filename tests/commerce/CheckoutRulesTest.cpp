#include "commerce/CheckoutRules.h"

#include "support/Printing.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

using namespace loom;

namespace
{

const QString token(32, QLatin1Char('t'));
const CheckoutHosts hosts =
    checkoutHosts(QUrl(QStringLiteral("https://Shop.Example/cart/c/a?key=1")), QStringLiteral("https://back.example"));

QString handOver(const QString& query)
{
    return QStringLiteral("https://back.example/api/support/widget/shopify-checkout/start") + query;
}

/// An address of the given length below `base`.
QString padded(const QString& base, qsizetype length)
{
    return base + QString(length - base.size(), QLatin1Char('x'));
}

TEST(CheckoutRulesTest, OnlyTheCheckoutAndTheHandOverMayBeShown)
{
    struct Row {
        QString url;
        bool isAllowed;
    };
    const QString checkout = QStringLiteral("https://shop.example/checkouts/");
    for (const Row& row : {
             Row{checkout, true},
             Row{checkout + QStringLiteral("c/1/thank-you?locale=en&x=%2F"), true},
             Row{QStringLiteral("https://SHOP.example/checkouts/c/1"), true},
             Row{QStringLiteral("http://shop.example/checkouts/c/1"), false},
             Row{QStringLiteral("https://user@shop.example/checkouts/c/1"), false},
             Row{QStringLiteral("https://:pass@shop.example/checkouts/c/1"), false},
             Row{QStringLiteral("https://shop.example:443/checkouts/c/1"), false},
             Row{QStringLiteral("https://shop.example:8443/checkouts/c/1"), false},
             Row{checkout + QStringLiteral("c/1#"), false},
             Row{QStringLiteral("https:///checkouts/c/1"), false},
             Row{padded(checkout, 8192), true},
             Row{padded(checkout, 8193), false},
             Row{padded(checkout + QStringLiteral("é"), 8188), false},
             Row{QStringLiteral("https://shop.example/checkouts"), false},
             Row{QStringLiteral("https://shop.example/cart/c/a?key=1"), false},
             Row{QStringLiteral("https://shop.example/x/checkouts/c"), false},
             Row{QStringLiteral("https://shop.example/checkouts%2Fc"), false},
             Row{checkout + QStringLiteral("c/../../account"), false},
             Row{checkout + QStringLiteral("%2e%2e/account"), false},
             Row{checkout + QStringLiteral("c..d/..e"), true},
             Row{QStringLiteral("https://evil.example/checkouts/c/1"), false},
             Row{QStringLiteral("https://shop.example.evil.example/checkouts/c/1"), false},
             Row{QStringLiteral("https://shop.example./checkouts/c/1"), false},
             Row{QStringLiteral("https://back.example/checkouts/c/1"), false},
             Row{QStringLiteral("javascript:location='https://shop.example/checkouts/'"), false},
             Row{QString(), false},

             Row{handOver(QStringLiteral("?code=") + token), true},
             Row{handOver(QStringLiteral("?token=") + token), true},
             Row{handOver(QStringLiteral("?code=") + token).replace(QStringLiteral("https:"), QStringLiteral("http:")),
                 false},
             Row{handOver(QStringLiteral("?code=") + token + QStringLiteral("#x")), false},
             Row{handOver({}), false},
             Row{handOver(QStringLiteral("?code=") + token.chopped(1)), false},
             Row{handOver(QStringLiteral("?code=") + token + QStringLiteral("&a=b")), false},
             Row{handOver(QStringLiteral("?code=") + token + QStringLiteral("&code=") + token), false},
             Row{handOver(QStringLiteral("?code=%2B") + token), false},
             Row{handOver(QStringLiteral("?code=") + token).replace(QStringLiteral("/start"), QStringLiteral("/stop")),
                 false},
             Row{handOver(QStringLiteral("/x?code=") + token), false},
             Row{QStringLiteral("https://shop.example/api/support/widget/shopify-checkout/start?code=") + token, false},
             Row{QStringLiteral("https://back.example:8443/api/support/widget/shopify-checkout/start?code=") + token,
                 false},
         }) {
        const QUrl url(row.url);
        EXPECT_EQ(isAllowedInCheckout(url, hosts), row.isAllowed)
            << row.url.left(120).toStdString() << ' ' << url.toEncoded().size();
    }
    // Without a host nothing is allowed by mistake.
    EXPECT_FALSE(isAllowedInCheckout(QUrl(checkout), checkoutHosts({}, {})));
    EXPECT_FALSE(isAllowedInCheckout(QUrl(QStringLiteral("https:/checkouts/c")), checkoutHosts({}, {})));
}

TEST(CheckoutRulesTest, ACheckoutMayBeginAtTheCartsOwnAddress)
{
    struct Row {
        QString url;
        bool mayStart;
    };
    const QString cart = QStringLiteral("https://shop.example/cart/c/a?key=");
    for (const Row& row : {
             Row{cart + QStringLiteral("1%2F%20ü"), true},
             Row{QStringLiteral("https://shop.example/checkouts/c/1"), true},
             Row{padded(cart, 8192), true},
             Row{padded(cart, 8193), false},
             Row{QStringLiteral("https://shop.example:443/cart/c/a"), false},
             Row{QStringLiteral("https://me@shop.example/cart/c/a"), false},
             Row{QStringLiteral("https://shop.example/cart/c/a#"), false},
             Row{QStringLiteral("javascript:alert(1)"), false},
             Row{QStringLiteral("https://shop example/cart"), false},
             Row{QString(), false},
         })
        EXPECT_EQ(mayStartCheckoutAt(QUrl(row.url)), row.mayStart) << row.url.left(120).toStdString();
}

TEST(CheckoutRulesTest, ATokenHasItsForm)
{
    struct Row {
        QString token;
        bool isToken;
    };
    const QString all = QStringLiteral("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-");
    for (const Row& row : {
             Row{all, true},
             Row{QString(31, QLatin1Char('a')), false},
             Row{QString(32, QLatin1Char('a')), true},
             Row{QString(256, QLatin1Char('a')), true},
             Row{QString(257, QLatin1Char('a')), false},
             Row{QString(32, QLatin1Char('a')) + QLatin1Char('+'), false},
             Row{QString(32, QLatin1Char('a')) + QLatin1Char('\n'), false},
             Row{QString(32, QChar(u'é')), false},
             Row{QString(32, QChar(0x0661)), false}, // a digit elsewhere
             Row{QString(), false},
         })
        EXPECT_EQ(isHandOverToken(row.token), row.isToken) << row.token.toStdString();
    EXPECT_EQ(handOverAddress(hosts, all).toEncoded(),
              "https://back.example/api/support/widget/shopify-checkout/start?code=" + all.toLatin1());
    for (const char* const bad : {"+", "a&b=c", "a#b"})
        EXPECT_FALSE(isAllowedInCheckout(handOverAddress(hosts, token + QLatin1String(bad)), hosts)) << bad;
}

TEST(CheckoutRulesTest, APageThatConfirmsAnOrderIsKnownByItsPath)
{
    struct Row {
        const char* url;
        bool isOrder;
    };
    for (const Row& row : {
             Row{"https://shop.example/checkouts/c/1/thank-you", true},
             Row{"https://shop.example/checkouts/c/1/thank_you?x=1", true},
             Row{"https://shop.example/CHECKOUTS/1/Thank-You", true},
             Row{"https://shop.example/checkouts/1/orders/0123456789abcdef", true},
             Row{"https://shop.example/checkouts/1/ORDERS/0123456789ABCDEF0", true},
             Row{"https://shop.example/1/orders/0123456789abcde", false},
             Row{"https://shop.example/1/orders/0123456789abcde-f", false},
             Row{"https://shop.example/1/orders0123456789abcdef", false},
             Row{"https://shop.example/checkouts/1?next=thank-you", false},
             Row{"https://thank-you.example/checkouts/1", false},
             Row{"http://shop.example/thank-you", false},
             Row{"", false},
         })
        EXPECT_EQ(isOrderPage(QUrl(QString::fromLatin1(row.url))), row.isOrder) << row.url;
}

TEST(CheckoutRulesTest, TheNumberOfAnOrderIsFoundInManySpellings)
{
    struct Row {
        const char* text;
        const char* number;
    };
    for (const Row& row : {
             Row{"Order #1042", "1042"},
             Row{"Thank you!\nOrder number: LST1042\nBye", "LST1042"},
             Row{"ORDER NO. #LS1042", "LS1042"},
             Row{"Order:1042", "1042"},
             Row{"Order \n number \t: \n # 1042", "1042"},
             Row{"Order #ABCDE123", nullptr},
             Row{"Order #12", nullptr},
             Row{"Reorder #1042", nullptr},
             Row{"Order 1042", nullptr},
             Row{"Confirmation #X7K2P9QQ", "X7K2P9QQ"},
             Row{"confirmation number: x7k2p9", "x7k2p9"},
             Row{"Confirmation #AB12C", nullptr},
             Row{"Confirmation #AAAAAA and order #1042", "1042"}, // the order's comes first
             Row{"Order #12, confirmation #AAAAAA", "AAAAAA"},
             Row{"Merci ! Commande n\u00b0 1042", nullptr},
             Row{"\u8a02\u55ae\u7de8\u865f\uff1a1042", nullptr},
             Row{"", nullptr},
         }) {
        const auto number = orderNumber(QString::fromUtf8(row.text));
        EXPECT_EQ(number, row.number ? std::optional(QString::fromUtf8(row.number)) : std::nullopt) << row.text;
    }
}

TEST(CheckoutRulesTest, HostileTextCostsLittleAndIsNoNumber)
{
    constexpr qsizetype huge = 10'000'000;
    QElapsedTimer timer;
    timer.start();
    const QString spaces(huge, QLatin1Char(' '));
    EXPECT_EQ(orderNumber(QStringLiteral("order") + spaces + QLatin1Char('x')), std::nullopt);
    EXPECT_EQ(orderNumber(QStringLiteral("order:") + spaces + QLatin1Char('x')), std::nullopt);
    EXPECT_EQ(orderNumber(QStringLiteral("order  \n ").repeated(huge / 9)), std::nullopt);
    EXPECT_EQ(orderNumber(QStringLiteral("order ") + spaces + QStringLiteral("#1042")), QStringLiteral("1042"));
    EXPECT_EQ(orderNumber(QString(huge, QLatin1Char('x')) + QStringLiteral(" Order #1042")), QStringLiteral("1042"));
    EXPECT_EQ(orderNumber(QStringLiteral("Order #") + QString(huge, QLatin1Char('9'))), std::nullopt);
    EXPECT_EQ(orderNumber(QStringLiteral("Confirmation #") + QString(huge, QLatin1Char('A'))), std::nullopt);
    EXPECT_LT(timer.elapsed(), 15'000); // whole texts in linear time; anything else would take hours
}

} // namespace
