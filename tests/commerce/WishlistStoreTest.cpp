#include "commerce/WishlistStore.h"

#include "net/WidgetClient.h"

#include "support/ShopFixture.h"

using namespace loom;
using namespace std::chrono_literals;

namespace
{

class WishlistStoreTest : public ShopFixture
{
protected:
    WishlistStoreTest() { begin(); }

    void begin()
    {
        store.emplace(folder, preferences, widget, session, clock);
        store->load();
    }
    bool add(const char* handle)
    {
        return store->add({.id = {},
                           .handle = QString::fromLatin1(handle),
                           .title = QStringLiteral("Piece"),
                           .price = {.amount = 19.5, .currencyCode = QStringLiteral("EUR")}});
    }
    /// Lets the changes so far travel; answers with the status.
    void tell(int status)
    {
        server.expect("POST /api/support/widget/wishlist-sync", Answer::json({}, status));
        const std::size_t count = server.requests().size() + 1;
        waitUntil([this] { return clock.sleepers() == 1; }, "the changes are gathered");
        clock.advance(2s);
        server.waitForRequests(count);
        waitUntil([this] { return clock.sleepers() == 0; }, "the answer has come");
        drainEvents();
    }
    [[nodiscard]] std::string told() const
    {
        QStringList handles;
        for (const QJsonValue item : server.requests().back().json()[QStringLiteral("items")].toArray())
            handles.append(item[QStringLiteral("handle")].toString());
        return handles.join(QLatin1Char(' ')).toStdString();
    }

    WidgetClient widget{server.base(), QStringLiteral("key-1"), transport, session, random};
    std::optional<WishlistStore> store;
};

TEST_F(WishlistStoreTest, ChangesWithinTwoSecondsTravelAsOneCallWithTheWholeList)
{
    EXPECT_TRUE(add("a"));
    EXPECT_FALSE(add("a"));
    clock.advance(1500ms);
    add("b");
    EXPECT_EQ(server.requests().size(), 0);
    clock.advance(400ms);
    signIn();
    tell(200);
    EXPECT_EQ(server.onlyRequest().json(),
              json(R"({"items": [{"handle": "b", "title": "Piece", "price": 19.5, "currency": "EUR"},
                                 {"handle": "a", "title": "Piece", "price": 19.5, "currency": "EUR"}],
                       "email": "jane@mail.example", "platform": "macos", "publicKey": "key-1", "appToken": "app-1"})")
                  .toObject());
}

TEST_F(WishlistStoreTest, AFailedCallIsMadeGoodByTheNextChangeOrTheNextStart)
{
    store->toggle(QVariant::fromValue(ProductListItem{.handle = QStringLiteral("a")}));
    tell(500);
    EXPECT_FALSE(server.requests().back().json().contains(QStringLiteral("email")));
    add("b");
    tell(500);
    EXPECT_EQ(told(), "b a");
    begin();
    tell(200);
    EXPECT_EQ(told(), "b a");
    begin();
    EXPECT_EQ(clock.sleepers(), 0) << "told again for nothing";
}

} // namespace
