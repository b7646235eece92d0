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
    server.proceed();
    EXPECT_EQ(applying.result(), Outcome(CodeOutcome::Applied));
    EXPECT_FALSE(store->isApplyingCode());
    EXPECT_EQ(shown(), "one:2"); // adopted
    EXPECT_EQ(codesSent(1), QJsonArray{QStringLiteral("ten")});
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
