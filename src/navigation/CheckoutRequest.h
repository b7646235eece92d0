#pragma once

#include "base/JsonReader.h"

#include <QHash>
#include <QJsonObject>
#include <QUrl>

namespace loom
{

/// A checkout to open in a window of its own; also what identifies that window.
struct CheckoutRequest {
    QUrl url;
    bool fromCart = false; ///< false for a piece bought directly from its page

    bool operator==(const CheckoutRequest&) const = default;
};

[[nodiscard]] inline std::size_t qHash(const CheckoutRequest& request, std::size_t seed = 0)
{
    return qHashMulti(seed, request.url, request.fromCart);
}

/// An object with exactly the keys "url" and "fromCart".
[[nodiscard]] inline QJsonObject toJson(const CheckoutRequest& request)
{
    return {{QStringLiteral("url"), request.url.toString(QUrl::FullyEncoded)},
            {QStringLiteral("fromCart"), request.fromCart}};
}

[[nodiscard]] inline CheckoutRequest decodeCheckoutRequest(const JsonReader& json)
{
    CheckoutRequest request{.url = QUrl(json.text("url")), .fromCart = json.boolean("fromCart")};
    if (!request.url.isValid())
        json.fail(QStringLiteral("an address that cannot be parsed"));
    return request;
}

} // namespace loom
