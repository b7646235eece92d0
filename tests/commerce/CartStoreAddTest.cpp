#include "commerce/CartStore.h"

#include "CartFixture.h"

using namespace loom;
using namespace std::chrono_literals;
using Added = ApiResult<AddOutcome>;

namespace
{

const QString v1 = QStringLiteral("v1");
const QString v2 = QStringLiteral("v2");

class CartStoreAddTest : public CartFixture
{
protected:
    Running<Added> add(const QString& variant, qint64 quantity = 1)
    {
        return Running<Added>(store->add(variant, quantity));
    }
    void passHighlight() { time.advance(4s); }
    [[nodiscard]] QString justAdded() const { return store->justAdded().value_or(QStringLiteral("none")); }
};

TEST_F(CartStoreAddTest, WhatThePlatformGivesLessOfIsSaid)
{
    show({{"one", "v1", 1}});
    answer("CartLinesAdd", changedTo(cartJson({{"one", "v1", 2}})));
    EXPECT_EQ(add(v1, 5).result(), Added(AddOutcome::Added));
    EXPECT_TRUE(store->isClamped(store->cart()->lines.front()));
    passHighlight();

    answer("CartLinesAdd", changedTo(cartJson({{"one", "v1", 2}}))); // there are no more
    EXPECT_EQ(add(v1).result(), Added(AddOutcome::SoldOut));
    EXPECT_EQ(justAdded(), QStringLiteral("none"));

    answer("CartLinesAdd", changedTo(cartJson({{"one", "v1", 2}, {"two", "v2", 0}})));
    EXPECT_EQ(add(v2).result(), Added(AddOutcome::SoldOut));
    EXPECT_TRUE(store->isClamped(store->cart()->lines.back()));

    answer("CartLinesAdd", changedTo(cartJson({{"one", "v1", 2}})));
    EXPECT_EQ(add(v2).result(), Added(AddOutcome::SoldOut));
    EXPECT_EQ(shown(), "one:2");
}

TEST_F(CartStoreAddTest, WhatMayPassKeepsTheCartAndIsReported)
{
    show({{"one", "v1", 1}});
    struct Row {
        Answer answer;
        APIError error;
    };
    const auto graphQL = [](const char* message) {
        return APIError{APIError::GraphQL{{QString::fromUtf8(message)}}};
    };
    for (const Row& row : {
             Row{graphQLError("Throttled"), graphQL("Throttled")},
             Row{refused("throttled"), graphQL("throttled")},
             Row{Answer::body("", 500), {APIError::Http{.status = 500}}},
         }) {
        answer(QStringLiteral("CartLinesAdd"), row.answer);
        EXPECT_EQ(add(v2).result(), Added(Unexpected(Failure(row.error))));
        EXPECT_EQ(remembered(), cartA);
        EXPECT_EQ(shown(), "one:1");
        EXPECT_EQ(lost(), "");
    }
}

TEST_F(CartStoreAddTest, ARefusedCartIsMadeAnewWithTheOneLineAndTheOthersAreOffered)
{
    for (const Answer& refusal :
         {refused("The cart is gone"), graphQLError("no such cart"), envelope(json(R"({"c": null})"))}) {
        show({{"one", "v1", 2}, {"two", "v2", 0}, {"three", "v3", 4}});
        answer(QStringLiteral("CartLinesAdd"), refusal);
        answer("CartCreate", changedTo(cartJson({{"four", "v4", 1}}, cartB)));
        EXPECT_EQ(add(QStringLiteral("v4")).result(), Added(AddOutcome::Added));
        EXPECT_EQ(bytes(lastVariables()),
                  R"({"country":"US","input":{"attributes":[{"key":"source","value":"app"},{"key":"platform",)"
                  R"("value":"macos"}],"buyerIdentity":{"countryCode":"US"},"lines":[{"merchandiseId":"v4",)"
                  R"("quantity":1}]},"language":"EN"})");
        EXPECT_EQ(remembered(), cartB);
        EXPECT_EQ(shown(), "four:1");
        EXPECT_EQ(justAdded(), QStringLiteral("four"));
        EXPECT_EQ(lost(), "v1:2 v3:4");
        store->forgetLostLines();
        passHighlight();
    }
}

TEST_F(CartStoreAddTest, WhatIsOfferedBackIsWhatWasShown)
{
    show({{"one", "v1", 2}, {"two", "v2", 1}, {"three", "v3", 4}});
    store->setQuantity(QStringLiteral("one"), 5); // waits for more clicks
    answer("CartLinesRemove", Answer::silence());
    store->remove(QStringLiteral("three"));
    server.waitForRequests(2);
    answer("CartLinesAdd", refused("no"));
    answer("CartCreate", changedTo(cartJson({{"four", "v4", 1}}, cartB)));
    EXPECT_TRUE(add(QStringLiteral("v4")).result());
    EXPECT_EQ(lost(), "v1:5 v2:1");
    EXPECT_TRUE(store->isSettled());
    time.advance(300ms);
    EXPECT_EQ(sent(), 4U); // the change of a line that is gone is not sent
}

TEST_F(CartStoreAddTest, LostLinesComeBackInOneStepOrStayOffered)
{
    EXPECT_EQ(run(store->restoreLostLines()), Added(AddOutcome::SoldOut)); // there are none
    show({{"one", "v1", 2}, {"two", "v2", 1}});
    answer("CartLinesAdd", refused("no"));
    answer("CartCreate", Answer::body("", 500)); // not even a new one can be made
    EXPECT_EQ(add(QStringLiteral("v4")).result(), Added(apiFailure(APIError::Http{.status = 500})));
    EXPECT_EQ(remembered(), QString());
    EXPECT_EQ(shown(), "none");
    EXPECT_EQ(lost(), "v1:2 v2:1");

    answer("CartCreate", changedTo(cartJson({}, cartB)));
    answer("CartLinesAdd", refused("no")); // is not made anew once more
    EXPECT_FALSE(run(store->restoreLostLines()));
    EXPECT_EQ(lost(), "v1:2 v2:1");
    EXPECT_EQ(remembered(), cartB);

    answer("CartLinesAdd", changedTo(cartJson({{"one", "v1", 2}, {"two", "v2", 1}}, cartB)));
    EXPECT_EQ(run(store->restoreLostLines()), Added(AddOutcome::Added));
    EXPECT_EQ(lost(), "");
    EXPECT_EQ(shown(), "one:2 two:1");
}

TEST_F(CartStoreAddTest, TwoRefusedAtOnceMakeOneNewCart)
{
    for (const bool isSecondLate : {false, true}) {
        show({{"one", "v0", 2}});
        const std::size_t before = sent();
        answer("CartLinesAdd", refused("no"));
        answer("CartLinesAdd", refused("no").pauseAfter(0));
        Answer created = changedTo(cartJson({{"a", "v1", 1}}, cartB));
        answer("CartCreate", isSecondLate ? created : created.pauseAfter(0).pauseAfter(1));
        answer("CartLinesAdd", changedTo(cartJson({{"a", "v1", 1}, {"b", "v2", 1}}, cartB)));
        Running<Added> first = add(v1);
        server.waitForRequests(before + 1);
        Running<Added> other = add(v2);
        server.waitForRequests(before + 3);
        if (isSecondLate) {
            EXPECT_TRUE(first.result());
        } else {
            server.proceed();
            settle(before + 3, 1); // the second is refused while the new cart is being made
        }
        server.proceed();
        EXPECT_EQ(first.result(), Added(AddOutcome::Added));
        EXPECT_EQ(other.result(), Added(AddOutcome::Added));
        EXPECT_EQ(sent(), before + 4);
        EXPECT_EQ(shown(), "a:1 b:1");
        EXPECT_EQ(remembered(), cartB);
        EXPECT_EQ(lost(), "v0:2");
        store->forgetLostLines();
        passHighlight();
    }
}

TEST_F(CartStoreAddTest, APieceThatWentIntoACartThatWasGivenUpGoesIntoTheNewOne)
{
    show({{"one", "v0", 2}});
    answer("CartLinesAdd", changedTo(cartJson({{"one", "v0", 2}, {"two", "v2", 1}})).pauseAfter(0));
    Running<Added> late = add(v2);
    server.waitForRequests(2);
    answer("CartLinesAdd", refused("no"));
    answer("CartCreate", changedTo(cartJson({{"a", "v1", 1}}, cartB)));
    EXPECT_TRUE(add(v1).result());
    answer("CartLinesAdd", changedTo(cartJson({{"a", "v1", 1}, {"b", "v2", 1}}, cartB)));
    server.proceed();
    EXPECT_EQ(late.result(), Added(AddOutcome::Added));
    EXPECT_EQ(lastVariables().value(QStringLiteral("cartId")), cartB);
    settle(sent());
    EXPECT_EQ(shown(), "a:1 b:1");
}

TEST_F(CartStoreAddTest, AnswersOutOfOrderTakeNothingAway)
{
    show({{"one", "v1", 1}});
    answer("CartLinesAdd", changedTo(cartJson({{"one", "v1", 2}})).pauseAfter(0));
    Running<Added> first = add(v1);
    server.waitForRequests(2);
    answer("CartLinesAdd", changedTo(cartJson({{"one", "v1", 3}})));
    EXPECT_EQ(add(v1).result(), Added(AddOutcome::Added));
    EXPECT_EQ(shown(), "one:3");
    answerRead(cartJson({{"one", "v1", 3}})); // read anew, silently
    server.proceed();
    EXPECT_EQ(first.result(), Added(AddOutcome::Added));
    EXPECT_EQ(shown(), "one:3");
    EXPECT_FALSE(store->isLoading());
    settle(4);
    EXPECT_FALSE(store->isClamped(store->cart()->lines.front()));
}

} // namespace
