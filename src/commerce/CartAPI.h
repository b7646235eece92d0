#pragma once

#include "catalog/StorefrontClient.h"
#include "commerce/Cart.h"

namespace loom
{

/// A variant to put into a cart, and how many of it.
struct CartLineInput {
    QString merchandiseId;
    qint64 quantity = 0;

    bool operator==(const CartLineInput&) const = default;
};

/// The cart's operations on the Storefront. Every change answers with the whole cart; one that leaves none fails with
/// the platform's first message. Only the read may be sent again after a passing failure. Holds no state. Main thread.
class CartAPI
{
public:
    explicit CartAPI(StorefrontClient& client)
        : m_client(client)
    {
    }

    /// Nothing when the cart no longer exists.
    [[nodiscard]] QCoro::Task<ApiResult<std::optional<Cart>>> cart(QString id, std::stop_token stop);
    /// With the attribution, for the client's market.
    [[nodiscard]] QCoro::Task<ApiResult<Cart>> create(const std::vector<CartLineInput>& lines, std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<Cart>> addLines(const QString& id, const std::vector<CartLineInput>& lines,
                                                        std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<Cart>> updateLine(const QString& id, const QString& lineID, qint64 quantity,
                                                          std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<Cart>> removeLine(const QString& id, const QString& lineID,
                                                          std::stop_token stop);
    /// An empty list clears the codes.
    [[nodiscard]] QCoro::Task<ApiResult<Cart>> applyDiscount(const QString& id, const QStringList& codes,
                                                             std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<Cart>> addAttribution(const QString& id, std::stop_token stop);
    /// Moves the cart to the client's market.
    [[nodiscard]] QCoro::Task<ApiResult<Cart>> updateBuyerIdentity(const QString& id, std::stop_token stop);

private:
    [[nodiscard]] QCoro::Task<ApiResult<Cart>> change(QString document, QJsonObject variables, std::stop_token stop);
    [[nodiscard]] QJsonObject buyerIdentity() const;

    StorefrontClient& m_client;
};

/// Whether a failed addition says that the cart itself is no longer any good: the platform refused it. Whatever may
/// pass, or was never judged by the platform, does not say so.
[[nodiscard]] bool isCartRefused(const Failure& failure);

} // namespace loom
