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

TEST_F(CartStoreTest, TheFirstLoadIsSeenAndALaterOneIsNot)
{
    remember(cartA);
    answerRead(cartJson({{"one", "v1", 2}}));
    store->refresh();
    EXPECT_TRUE(store->isLoading());
    bool wasTold = false;
    QObject::connect(store.get(), &CartStore::changed, store.get(), [&] { wasTold = !store->isLoading(); });
    settle(1);
    EXPECT_TRUE(wasTold);
    EXPECT_FALSE(store->isLoading());
    EXPECT_EQ(shown(), "one:2");
    EXPECT_EQ(lastVariables().value(QStringLiteral("cartId")), cartA);

    answerRead(cartJson({{"one", "v1", 3}}));
    store->refresh();
    EXPECT_FALSE(store->isLoading());
    EXPECT_EQ(shown(), "one:2");
    settle(2);
    EXPECT_EQ(shown(), "one:3");
    EXPECT_EQ(remembered(), cartA);
}

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

TEST_F(CartStoreTest, AFailedLoadIsShownOnlyWhereThereIsNoCart)
{
    remember(cartA);
    for (const Answer& failure : {Answer::body("", 404), graphQLError("no"),
                                  envelope(QJsonObject{{QStringLiteral("cart"), QStringLiteral("gone")}})}) {
        answer(QStringLiteral("GetCart"), failure);
        store->refresh();
        settle(sent() + 1);
        EXPECT_TRUE(store->loadError());
        EXPECT_FALSE(store->isLoading());
        EXPECT_EQ(remembered(), cartA);
    }
    answerRead(cartJson({{"one", "v1", 1}})); // the retry
    store->refresh();
    settle(sent() + 1);
    EXPECT_FALSE(store->loadError());
    EXPECT_EQ(shown(), "one:1");

    answer("GetCart", graphQLError("no"));
    store->refresh();
    settle(sent() + 1);
    EXPECT_FALSE(store->loadError());
    EXPECT_EQ(shown(), "one:1");
    EXPECT_EQ(store->errorMessage(), QString());

    answerRead(QJsonValue::Null); // its load error must not outlive the cart
    store->refresh();
    settle(sent() + 1);
    EXPECT_FALSE(store->loadError());
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
    answerRead(withoutAttribution(cartB));
    store->refresh();
    settle(6);
    EXPECT_EQ(sent(), 6U);
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
    EXPECT_EQ(bytes(lastVariables()), R"({"buyerIdentity":{"countryCode":"DE"},"cartId":"gid://shopify/Cart/a?key=1",)"
                                      R"("country":"DE","language":"EN"})");

    answer("CartBuyerIdentity", envelope(json(R"({"c": null})")).pauseAfter(0)); // an older market
    store->syncBuyerCountry();
    server.waitForRequests(4);
    client.setCountry(QStringLiteral("JP"));
    answer("CartBuyerIdentity", changedTo(cartJson({{"one", "v1", 3}})));
    store->syncBuyerCountry();
    settle(5);
    EXPECT_EQ(shown(), "one:3");
    EXPECT_EQ(store->errorMessage(), QString());
    answer("CartBuyerIdentity", refused("no"));
    store->syncBuyerCountry();
    settle(6);
    EXPECT_EQ(shown(), "one:3");
    EXPECT_EQ(remembered(), cartA);
}

TEST_F(CartStoreTest, ACartToBuyAtOnceLeavesTheShoppersOwnAlone)
{
    show({{"one", "v1", 1}});
    QJsonValue made = changed(cartJson({{"two", "v2", 1}}, cartB), QStringLiteral("checkoutUrl"),
                              QStringLiteral("https://shop.example/cart/c/b"));
    answer("CartCreate", changedTo(made));
    const auto cart = run(store->createCart({{.merchandiseId = QStringLiteral("v2"), .quantity = 1}}));
    ASSERT_TRUE(cart);
    EXPECT_EQ(cart->id, cartB);
    EXPECT_EQ(remembered(), cartA);
    EXPECT_EQ(shown(), "one:1");
    EXPECT_EQ(store->cartAt(cart->checkoutURL)->id, cartB);
    EXPECT_EQ(store->cartAt(store->cart()->checkoutURL)->id, cartA);
    EXPECT_EQ(store->cartAt(QUrl(QStringLiteral("https://shop.example/cart/c/c"))), nullptr);
    answer("CartCreate", refused("no"));
    EXPECT_FALSE(run(store->createCart({})));
}

} // namespace
