#include "commerce/CartStore.h"

#include "CartFixture.h"

using namespace loom;
using namespace std::chrono_literals;

namespace
{

class CartStoreTest : public CartFixture
{
protected:
    /// Reads what is on this machine, as after a restart.
    QString rememberedOnDisk()
    {
        folder.waitUntilWritten();
        DataFolder other(home.path());
        return Preferences(other).value(preferences::cartID);
    }
    QJsonObject withoutAttribution(const QString& id = cartA)
    {
        return changed(cartJson({{"one", "v1", 1}}, id), QStringLiteral("attributes"), QJsonArray()).toObject();
    }
};

TEST_F(CartStoreTest, ACartThatIsGoneIsForgottenWithItsIdentifier)
{
    remember(cartA);
    answerRead(QJsonValue::Null); // with nothing shown yet
    store->refresh();
    settle(1);
    EXPECT_FALSE(store->loadError());
    EXPECT_EQ(remembered(), QString());
    EXPECT_EQ(rememberedOnDisk(), QString());

    show({{"one", "v1", 1}});
    answerRead(QJsonValue::Null);
    store->refresh();
    settle(3);
    EXPECT_EQ(shown(), "none");
    EXPECT_FALSE(store->loadError());
    EXPECT_FALSE(store->isLoading());
    EXPECT_EQ(remembered(), QString());
}

TEST_F(CartStoreTest, WhoeverAsksForACartAtOnceGetsTheSame)
{
    answer("CartCreate", changedTo(cartJson({}, cartA)));
    Running<ApiResult<QString>> first(store->ensureCart());
    Running<ApiResult<QString>> second(store->ensureCart());
    EXPECT_EQ(first.result(), ApiResult<QString>(cartA));
    EXPECT_EQ(second.result(), ApiResult<QString>(cartA));
    EXPECT_EQ(sent(), 1U);
    EXPECT_EQ(rememberedOnDisk(), cartA);
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(run(store->ensureCart()), ApiResult<QString>(cartA));
    EXPECT_EQ(sent(), 1U);
}

TEST_F(CartStoreTest, AnIdentifierIsUsedOnlyOnceItsCartIsKnown)
{
    remember(cartA);
    answer("GetCart", graphQLError("no"));
    EXPECT_FALSE(run(store->ensureCart()));
    EXPECT_EQ(remembered(), cartA);

    answerRead(cartJson({{"one", "v1", 1}}));
    EXPECT_EQ(run(store->ensureCart()), ApiResult<QString>(cartA));
    EXPECT_EQ(shown(), "one:1");

    remember(cartB); // not the one in memory
    answerRead(QJsonValue::Null);
    answer("CartCreate", Answer::body("", 500));
    EXPECT_FALSE(run(store->ensureCart()));
    EXPECT_EQ(remembered(), QString());
    answer("CartCreate", changedTo(cartJson({}, cartA)));
    EXPECT_EQ(run(store->ensureCart()), ApiResult<QString>(cartA));
    EXPECT_EQ(remembered(), cartA);
}

TEST_F(CartStoreTest, WhereACartWasMadeIsAddedOncePerCartAndRun)
{
    remember(cartA);
    answerRead(withoutAttribution());
    answer("CartAppAttribution", changedTo(cartJson({{"one", "v1", 5}})));
    store->refresh();
    settle(2);
    EXPECT_EQ(shown(), "one:5"); // adopted
    EXPECT_EQ(sent(), 2U);

    answerRead(withoutAttribution());
    store->refresh();
    settle(3);
    EXPECT_EQ(sent(), 3U); // not again

    remember(cartB);
    answerRead(withoutAttribution(cartB));
    answer("CartAppAttribution", Answer::body("", 500)); // a failure is not shown, nor is it tried again
    store->refresh();
    settle(5);
    EXPECT_EQ(lastVariables().value(QStringLiteral("cartId")), cartB);
    EXPECT_EQ(store->errorMessage(), QString());
}

TEST_F(CartStoreTest, TheCartMovesWithTheMarket)
{
    store->syncBuyerCountry(); // there is nothing to move
    drainEvents();
    EXPECT_EQ(sent(), 0U);

    remember(cartA);
    answerRead(QJsonValue::Null); // an identifier alone: is there a cart?
    store->syncBuyerCountry();
    settle(1);
    EXPECT_EQ(remembered(), QString());
    show({{"one", "v1", 1}});

    client.setCountry(QStringLiteral("DE"));
    answer("CartBuyerIdentity", changedTo(cartJson({{"one", "v1", 2}})));
    store->syncBuyerCountry();
    settle(3);
    EXPECT_EQ(shown(), "one:2");

    answer("CartBuyerIdentity", envelope(json(R"({"c": null})")).pauseAfter(0)); // an older market
    store->syncBuyerCountry();
    server.waitForRequests(4);
    client.setCountry(QStringLiteral("JP"));
    answer("CartBuyerIdentity", changedTo(cartJson({{"one", "v1", 3}})));
    store->syncBuyerCountry();
    settle(5);
    EXPECT_EQ(shown(), "one:3");
    EXPECT_EQ(store->errorMessage(), QString());
}

} // namespace
