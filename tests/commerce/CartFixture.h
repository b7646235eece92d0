#pragma once

#include "commerce/CartStore.h"

#include "support/ShopFixture.h"

namespace loom
{

/// A line of a cart as a test writes it.
struct Goods {
    const char* line;
    const char* variant;
    int quantity;
};

/// A cart on the Storefront as its answers write it, of an empty one without goods. Each piece costs 20 US dollars.
[[nodiscard]] QJsonObject cartJson(const std::vector<Goods>& goods = {}, const QString& id = {});

/// The cart of most tests; its key belongs to its identifier.
inline const QString cartA = QStringLiteral("gid://shopify/Cart/a?key=1");
inline const QString cartB = QStringLiteral("gid://shopify/Cart/b?key=2");

/// A shop with a cart.
class CartFixture : public ShopFixture
{
protected:
    ~CartFixture() override;

    /// Answers "GetCart" with a cart, or with none.
    void answerRead(const QJsonValue& cart) { answer("GetCart", QJsonObject{{QStringLiteral("cart"), cart}}); }
    /// The answer of a change that leaves `cart`.
    [[nodiscard]] static Answer changedTo(const QJsonValue& cart);
    /// The answer of a change that the platform did not make.
    [[nodiscard]] static Answer refused(const char* message);
    /// The answer of a platform that understood nothing.
    [[nodiscard]] static Answer graphQLError(const char* message);

    /// Makes `goods` the shown cart, as after a start.
    void show(const std::vector<Goods>& goods);
    void remember(const QString& id) { preferences.set(preferences::cartID, id); }
    [[nodiscard]] QString remembered() const { return preferences.value(preferences::cartID); }

    /// Until so many requests have come and all but `held` of them been answered.
    void settle(std::size_t requests, int held = 0);

    /// The lines that are shown, such as "one:2 two:1".
    [[nodiscard]] std::string shown() const;
    [[nodiscard]] std::string lost() const;

    FakeClock time; ///< of what waits for the shopper; the network has its own
    CartAPI cartAPI{client};
    std::unique_ptr<CartStore> store = std::make_unique<CartStore>(cartAPI, preferences, time);
};

} // namespace loom
