#include "commerce/CartStore.h"

#include "CartFixture.h"

using namespace loom;
using namespace std::chrono_literals;
using Outcome = ApiResult<CodeOutcome>;

namespace
{

class CartStoreCodeTest : public CartFixture
{
protected:
    static QJsonValue withCodes(const char* codes, int quantity = 1)
    {
        return changed(cartJson({{"one", "v1", quantity}}), QStringLiteral("discountCodes"), json(codes));
    }
    Outcome apply(const char* text) { return run(store->applyCode(QString::fromUtf8(text))); }
    [[nodiscard]] QJsonArray codesSent(std::size_t request) const
    {
        return variables(request).value(QStringLiteral("codes")).toArray();
    }
};

TEST_F(CartStoreCodeTest, ACodeIsTrimmedAndKnownInAnyCase)
{
    EXPECT_EQ(apply("TEN"), Outcome(CodeOutcome::Ignored)); // no cart
    show({{"one", "v1", 1}});
    for (const char* const nothing : {"", " ", "\n\t "})
        EXPECT_EQ(apply(nothing), Outcome(CodeOutcome::Ignored));
    EXPECT_EQ(sent(), 1U);

    answer("ApplyDiscount",
           changedTo(withCodes(R"([{"code": "OLD", "applicable": false}, {"code": "TEN", "applicable": true}])", 2))
               .pauseAfter(0));
    Running<Outcome> applying(store->applyCode(QStringLiteral("  ten\r\n")));
    EXPECT_TRUE(store->isApplyingCode());
    server.waitForRequests(2);
    EXPECT_EQ(bytes(lastVariables()), R"({"cartId":"gid://shopify/Cart/a?key=1","codes":["ten"],"country":"US",)"
                                      R"("language":"EN"})");
    server.proceed();
    EXPECT_EQ(applying.result(), Outcome(CodeOutcome::Applied));
    EXPECT_FALSE(store->isApplyingCode());
    EXPECT_EQ(shown(), "one:2"); // adopted
    EXPECT_EQ(sent(), 2U);

    answer("ApplyDiscount", changedTo(withCodes("[]", 3)));
    store->removeCode();
    EXPECT_TRUE(store->isApplyingCode());
    settle(3);
    EXPECT_EQ(codesSent(2), QJsonArray());
    EXPECT_TRUE(lastVariables().contains(QStringLiteral("codes")));
    EXPECT_EQ(shown(), "one:3");
    EXPECT_FALSE(store->isApplyingCode());
}

TEST_F(CartStoreCodeTest, ADeadCodeDoesNotStayOnTheCart)
{
    show({{"one", "v1", 1}});
    for (const char* const codes :
         {R"([{"code": "TEN", "applicable": false}])", "[]", R"([{"code": "TEN2", "applicable": true}])"}) {
        const std::size_t before = sent();
        answer("ApplyDiscount", changedTo(withCodes(codes, 7)));
        answer("ApplyDiscount", changedTo(withCodes("[]", 2)));
        EXPECT_EQ(apply("TEN"), Outcome(CodeOutcome::NotApplicable));
        EXPECT_EQ(sent(), before + 2);
        EXPECT_EQ(codesSent(before), QJsonArray{QStringLiteral("TEN")});
        EXPECT_EQ(codesSent(before + 1), QJsonArray());
        EXPECT_EQ(shown(), "one:2"); // only the second answer
        EXPECT_TRUE(store->cart()->discountCodes.empty());
        EXPECT_FALSE(store->isApplyingCode());
    }
}

TEST_F(CartStoreCodeTest, AFailureEndsTheAttemptAndIsReported)
{
    show({{"one", "v1", 1}});
    answer("ApplyDiscount", Answer::body("", 500));
    EXPECT_EQ(apply("TEN"), Outcome(apiFailure(APIError::Http{.status = 500})));
    EXPECT_FALSE(store->isApplyingCode());

    answer("ApplyDiscount", changedTo(withCodes("[]", 7)));
    answer("ApplyDiscount", refused("no"));
    EXPECT_EQ(apply("TEN"), Outcome(apiFailure(APIError::GraphQL{{QStringLiteral("no")}})));
    EXPECT_FALSE(store->isApplyingCode());
    EXPECT_EQ(shown(), "one:7"); // what the platform has
    EXPECT_EQ(remembered(), cartA);

    answer("ApplyDiscount", Answer::body("", 500));
    store->removeCode();
    settle(5);
    EXPECT_FALSE(store->isApplyingCode());
    EXPECT_EQ(store->errorMessage(), errorDescription({APIError::Http{.status = 500}}));
    EXPECT_EQ(shown(), "one:7");
}

TEST_F(CartStoreCodeTest, TheLatestAttemptCounts)
{
    show({{"one", "v1", 1}});
    answer("ApplyDiscount", changedTo(withCodes(R"([{"code": "A", "applicable": true}])")).pauseAfter(0));
    Running<Outcome> first(store->applyCode(QStringLiteral("A")));
    server.waitForRequests(2);
    answer("ApplyDiscount", changedTo(withCodes(R"([{"code": "B", "applicable": true}])", 4)));
    EXPECT_EQ(apply("B"), Outcome(CodeOutcome::Applied));
    EXPECT_EQ(first.result(), Outcome(Unexpected(Failure(Cancelled{}))));
    settle(3);
    EXPECT_EQ(store->cart()->discountCodes.front().code, QStringLiteral("B"));
    EXPECT_EQ(shown(), "one:4");
}

TEST_F(CartStoreCodeTest, ACartThatWasGivenUpDoesNotComeBackWithItsCode)
{
    show({{"one", "v1", 1}});
    answer("ApplyDiscount", changedTo(withCodes("[]")).pauseAfter(0));
    Running<Outcome> applying(store->applyCode(QStringLiteral("TEN")));
    server.waitForRequests(2);
    answer("CartLinesAdd", refused("no"));
    answer("CartCreate", changedTo(cartJson({{"two", "v2", 1}}, cartB)));
    EXPECT_TRUE(run(store->add(QStringLiteral("v2"), 1)));
    answer("ApplyDiscount", changedTo(withCodes("[]", 9))); // the old cart, cleaned
    answerRead(cartJson({{"two", "v2", 1}}, cartB));
    server.proceed();
    EXPECT_EQ(applying.result(), Outcome(CodeOutcome::NotApplicable));
    settle(6);
    EXPECT_EQ(shown(), "two:1");
    EXPECT_EQ(store->cart()->id, cartB);
    EXPECT_EQ(remembered(), cartB);
}

} // namespace
