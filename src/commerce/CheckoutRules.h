#pragma once

#include <QString>
#include <QUrl>

#include <optional>

namespace loom
{

/// The addresses that a checkout view may load: the checkout pages of the platform and the start of a hand-over.
struct CheckoutHosts {
    QString checkoutHost; ///< of the cart's own checkout address, in lower case
    QUrl handOverStart;   ///< without a query

    bool operator==(const CheckoutHosts&) const = default;
};

/// `supportBase` is the backend's address, without a "/" at its end.
[[nodiscard]] CheckoutHosts checkoutHosts(const QUrl& checkoutURL, const QString& supportBase);

/// Whether the view may go to an address.
[[nodiscard]] bool isAllowedInCheckout(const QUrl& url, const CheckoutHosts& hosts);

/// Whether the view may begin at a cart's own checkout address, whatever its path.
[[nodiscard]] bool mayStartCheckoutAt(const QUrl& checkoutURL);

/// Whether a hand-over token has the form in which the backend makes them.
[[nodiscard]] bool isHandOverToken(const QString& token);

/// Where a hand-over begins: carries the token as its single query item.
[[nodiscard]] QUrl handOverAddress(const CheckoutHosts& hosts, const QString& token);

/// Whether a page that has loaded confirms an order.
[[nodiscard]] bool isOrderPage(const QUrl& url);

/// The order number in the text of a confirmation, else the confirmation number; none when there is neither.
[[nodiscard]] std::optional<QString> orderNumber(const QString& pageText);

} // namespace loom
