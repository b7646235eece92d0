#include "commerce/CheckoutAuth.h"

#include "net/WidgetClient.h"

#include "support/NetworkFixture.h"

using namespace loom;
using namespace std::chrono_literals;
using Prepared = ApiResult<PreparedCheckout>;

namespace
{

const QString token(40, QLatin1Char('t'));
const QUrl cartAddress(QStringLiteral("https://shop.example/cart/c/a?key=1"));
const CheckoutHosts hosts = checkoutHosts(cartAddress, QStringLiteral("https://back.example"));

class CheckoutAuthTest : public NetworkFixture
{
protected:
    Prepared prepare(const Answer& answer)
    {
        server.expect("POST /api/support/widget/shopify-checkout/prepare", answer);
        return run(auth.prepare(QStringLiteral("gid://shopify/Cart/a?key=1"), QStringLiteral("PT_BR"), {}));
    }

    WidgetClient widget{server.base(), QStringLiteral("key-1"), transport, session, random};
    CheckoutAuth auth{widget};
};

TEST_F(CheckoutAuthTest, AHandOverIsPreparedForWhoeverIsThere)
{
    const Answer ready = Answer::json({{QStringLiteral("mode"), QStringLiteral("m")}, {QStringLiteral("code"), token}});
    EXPECT_EQ(prepare(ready), Prepared(PreparedCheckout{.mode = QStringLiteral("m"), .code = token}));
    EXPECT_EQ(server.requests().back().body, R"({"cartId":"gid://shopify/Cart/a?key=1","locale":"PT_BR",)"
                                             R"("platform":"macos","publicKey":"key-1"})");
    signIn();
    EXPECT_EQ(prepare(Answer::json({{QStringLiteral("code"), token}})),
              Prepared(PreparedCheckout{.mode = {}, .code = token}));
    EXPECT_EQ(server.requests().back().body, R"({"appToken":"app-1","cartId":"gid://shopify/Cart/a?key=1",)"
                                             R"("locale":"PT_BR","platform":"macos","publicKey":"key-1"})");
    for (const char* const broken : {"", "{", "[]", "{}", R"({"code": 5})", R"({"code": null})"})
        EXPECT_TRUE(prepare(Answer::body(broken)).error().error().as<APIError::Decoding>()) << broken;

    server.expect("POST /api/support/widget/shopify-checkout/prepare", Answer::silence());
    Running<Prepared> slow(auth.prepare(QStringLiteral("a"), QStringLiteral("EN"), {}));
    server.waitForRequests(9);
    clock.advance(20s);
    EXPECT_EQ(slow.result(), Prepared(apiFailure(APIError::Timeout{})));
}

TEST_F(CheckoutAuthTest, ATokenIsRevokedByItself)
{
    signIn();
    server.expect("POST /api/support/widget/shopify-checkout/revoke", Answer::body("{}"));
    EXPECT_TRUE(run(auth.revoke(QStringLiteral("app-0"), {})));
    EXPECT_EQ(server.onlyRequest().body, R"({"appToken":"app-0","publicKey":"key-1"})");
}

TEST_F(CheckoutAuthTest, WithoutAHandOverACheckoutBeginsAtTheCart)
{
    struct Row {
        Answer answer;
        bool begins;
    };
    const auto failure = [](int status, const char* code) {
        return Answer::json({{QStringLiteral("code"), QLatin1String(code)}}, status);
    };
    for (const Row& row : {
             Row{failure(404, "ANYTHING"), true},
             Row{failure(503, "CHECKOUT_AUTH_UNAVAILABLE"), true},
             Row{failure(400, "WIDGET_NOT_FOUND"), true},
             Row{Answer::json({{QStringLiteral("code"), token.left(31)}}), true},
             Row{Answer::json({{QStringLiteral("code"), token + QLatin1Char('+')}}), true},
             Row{failure(400, "BAD_INPUT"), false},
             Row{failure(401, "REAUTH"), true},
             Row{Answer::body("", 500), false},
             Row{Answer::drop(), false},
         }) {
        const Prepared prepared = prepare(row.answer);
        EXPECT_EQ(checkoutStart(prepared, cartAddress, hosts), row.begins ? std::optional(cartAddress) : std::nullopt)
            << testing::PrintToString(server.requests().size());
        EXPECT_EQ(checkoutStart(prepared, QUrl(QStringLiteral("https://shop.example:1/cart/c/a")), hosts),
                  std::nullopt);
    }
    EXPECT_EQ(checkoutStart(Unexpected(Failure(Cancelled{})), cartAddress, hosts), std::nullopt);
    EXPECT_EQ(checkoutStart(apiFailure(APIError::Offline{}), cartAddress, hosts), std::nullopt);
}

TEST_F(CheckoutAuthTest, AHandOverIsTakenWhereItMayBeShown)
{
    const Prepared prepared(PreparedCheckout{.mode = {}, .code = token});
    EXPECT_EQ(checkoutStart(prepared, cartAddress, hosts),
              QUrl(QStringLiteral("https://back.example/api/support/widget/shopify-checkout/start?code=") + token));
    for (const char* const base : {"http://back.example", "https://back.example:8443", "https://me@back.example", ""})
        EXPECT_EQ(checkoutStart(prepared, cartAddress, checkoutHosts(cartAddress, QString::fromUtf8(base))),
                  cartAddress)
            << base;
}

} // namespace
