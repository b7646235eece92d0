#include "commerce/CartAPI.h"

#include "CartFixture.h"
#include "commerce/CartQueries.h"

using namespace loom;
using namespace std::chrono_literals;

namespace
{

const QString line = QStringLiteral("gid://shopify/CartLine/1?cart=a");
const QString variant = QStringLiteral("gid://shopify/ProductVariant/2");

class CartAPITest : public CartFixture
{
protected:
    struct Change {
        const char* operation;
        const char* variables; ///< as sent
        std::function<QCoro::Task<ApiResult<Cart>>()> send;
    };
    std::vector<Change> changes()
    {
        return {
            Change("CartCreate",
                   R"({"country":"US","input":{"attributes":[{"key":"source","value":"app"},{"key":"platform",)"
                   R"("value":"macos"}],"buyerIdentity":{"countryCode":"US"}},"language":"EN"})",
                   [this] { return cartAPI.create({}, {}); }),
            Change("CartLinesAdd",
                   R"({"cartId":"gid://shopify/Cart/a?key=1","country":"US","language":"EN","lines":[{"merchandiseId":)"
                   R"("gid://shopify/ProductVariant/2","quantity":1}]})",
                   [this] { return cartAPI.addLines(cartA, {{.merchandiseId = variant, .quantity = 1}}, {}); }),
            Change("CartLinesUpdate",
                   R"({"cartId":"gid://shopify/Cart/a?key=1","country":"US","language":"EN","lines":[{"id":)"
                   R"("gid://shopify/CartLine/1?cart=a","quantity":5}]})",
                   [this] { return cartAPI.updateLine(cartA, line, 5, {}); }),
            Change("CartLinesRemove",
                   R"({"cartId":"gid://shopify/Cart/a?key=1","country":"US","language":"EN","lineIds":[)"
                   R"("gid://shopify/CartLine/1?cart=a"]})",
                   [this] { return cartAPI.removeLine(cartA, line, {}); }),
            Change("ApplyDiscount",
                   R"({"cartId":"gid://shopify/Cart/a?key=1","codes":["TEN"],"country":"US","language":"EN"})",
                   [this] { return cartAPI.applyDiscount(cartA, {QStringLiteral("TEN")}, {}); }),
            Change("CartAppAttribution",
                   R"({"attributes":[{"key":"source","value":"app"},{"key":"platform","value":"macos"}],)"
                   R"("cartId":"gid://shopify/Cart/a?key=1","country":"US","language":"EN"})",
                   [this] { return cartAPI.addAttribution(cartA, {}); }),
            Change("CartBuyerIdentity",
                   R"({"buyerIdentity":{"countryCode":"US"},"cartId":"gid://shopify/Cart/a?key=1","country":"US",)"
                   R"("language":"EN"})",
                   [this] { return cartAPI.updateBuyerIdentity(cartA, {}); }),
        };
    }
};

TEST_F(CartAPITest, EachChangeSendsItsVariablesAndAnswersWithTheCart)
{
    for (const Change& change : changes()) {
        answer(change.operation, changedTo(cartJson({{"one", "v1", 2}})));
        const auto cart = run(change.send());
        ASSERT_TRUE(cart) << change.operation << testing::PrintToString(cart.error());
        EXPECT_EQ(cart->lines.front().quantity, 2);
        EXPECT_EQ(bytes(lastVariables()), change.variables);
    }
}

TEST_F(CartAPITest, OnlyTheReadIsSentAgain)
{
    answer("GetCart", Answer::body("", 503));
    answer("GetCart", graphQLError("Throttled"));
    answerRead(cartJson({{"one", "v1", 1}}));
    Running<ApiResult<std::optional<Cart>>> reading(cartAPI.cart(cartA, {}));
    waitUntil([this] { return clock.nextWake() == 500ms; }, "the first attempt has failed");
    clock.advance(500ms);
    waitUntil([this] { return clock.nextWake() == 1000ms; }, "the second attempt has failed");
    clock.advance(1000ms);
    ASSERT_TRUE(reading.result());
    EXPECT_EQ(reading.result()->value().id, cartA);
    EXPECT_EQ(bytes(lastVariables()), R"({"cartId":"gid://shopify/Cart/a?key=1","country":"US","language":"EN"})");

    for (const Change& change : changes()) {
        answer(change.operation, Answer::body("", 503));
        const std::size_t before = sent();
        EXPECT_EQ(run(change.send()), ApiResult<Cart>(apiFailure(APIError::Http{.status = 503}))) << change.operation;
        EXPECT_EQ(sent(), before + 1);
        EXPECT_EQ(clock.sleepers(), 0);
    }
}

TEST_F(CartAPITest, AChangeWithoutACartFailsWithThePlatformsFirstMessage)
{
    struct Row {
        const char* data;
        QStringList messages;
    };
    for (const Row& row : {
             Row{R"({"c": {"cart": null, "userErrors": [{"message": "no"}, {"message": "never"}]}})",
                 {QStringLiteral("no")}},
             Row{R"({"c": {"cart": null, "userErrors": []}})", {}},
             Row{R"({"c": null})", {}},
         }) {
        answer("CartLinesAdd", json(row.data));
        EXPECT_EQ(run(cartAPI.addLines(cartA, {}, {})), ApiResult<Cart>(apiFailure(APIError::GraphQL{row.messages})))
            << row.data;
    }
    // A cart that came although something was wrong is the cart.
    QJsonValue both = json(R"({"c": {"userErrors": [{"message": "no"}]}})");
    answer("CartLinesAdd", changed(both, QStringLiteral("c.cart"), cartJson({{"one", "v1", 1}})));
    EXPECT_TRUE(run(cartAPI.addLines(cartA, {}, {})));
}

TEST_F(CartAPITest, AnAnswerThatSaysNothingOfTheCartIsNotACartThatIsGone)
{
    for (const char* const data : {R"({})", R"({"cart": "gone"})", R"({"cart": []})", R"({"cart": {}})"}) {
        answer("GetCart", json(data));
        EXPECT_FALSE(run(cartAPI.cart(cartA, {}))) << data;
    }
    answerRead(QJsonValue::Null);
    EXPECT_EQ(run(cartAPI.cart(cartA, {})), ApiResult<std::optional<Cart>>(std::nullopt));
    for (const char* const data :
         {R"({})", R"({"c": "x"})", R"({"c": {"cart": 1}})", R"({"c": {"cart": {"id": "a"}}})"}) {
        answer("CartLinesAdd", json(data));
        const auto cart = run(cartAPI.addLines(cartA, {}, {}));
        ASSERT_FALSE(cart) << data;
        EXPECT_TRUE(cart.error().error().as<APIError::Decoding>()) << data;
    }
}

TEST_F(CartAPITest, OnlyTheJudgementOfThePlatformSaysThatACartIsNoGood)
{
    struct Row {
        Failure failure;
        bool isRefused;
    };
    const auto graphQL = [](const QStringList& messages) {
        return Failure(APIError{APIError::GraphQL{messages}});
    };
    for (const Row& row : {
             Row{graphQL({}), true},
             Row{graphQL({QStringLiteral("The specified cart does not exist.")}), true},
             Row{graphQL({QStringLiteral("Throttled")}), false},
             Row{graphQL({QStringLiteral("a"), QStringLiteral("request THROTTLED, wait")}), false},
             Row{APIError{APIError::Http{.status = 429}}, false},
             Row{APIError{APIError::Http{.status = 404}}, false},
             Row{APIError{APIError::Offline{}}, false},
             Row{APIError{APIError::Decoding{}}, false},
             Row{Cancelled{}, false},
         })
        EXPECT_EQ(isCartRefused(row.failure), row.isRefused) << testing::PrintToString(row.failure);
}

} // namespace
