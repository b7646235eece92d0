#pragma once

#include "catalog/Money.h"
#include "catalog/Product.h"

#include <QUrl>

namespace loom
{

struct CartAttribute {
    QString key;
    QString value; ///< empty also where the platform says null

    bool operator==(const CartAttribute&) const = default;
};

struct CartDiscountCode {
    QString code;
    bool applicable = false;

    bool operator==(const CartDiscountCode&) const = default;
};

struct CartLine {
    QString id;
    qint64 quantity = 0;
    QString variantID;
    QString variantTitle;
    Money unitPrice;
    std::optional<Money> compareAtPrice; ///< of one piece
    Money lineTotal;
    std::optional<QString> imageURL;
    QString productID;
    QString productTitle;
    QString productHandle;
    QString vendor;
    bool availableForSale = false;
    QList<SelectedOption> selectedOptions;

    bool operator==(const CartLine&) const = default;
};

/// A cart as the platform answered it last. Its identifier is opaque, and is kept and sent exactly as it came: it
/// carries the key without which nobody can read the cart, so it belongs in no log.
struct Cart {
    QString id;
    QUrl checkoutURL;
    std::vector<CartAttribute> attributes;
    qint64 totalQuantity = 0;
    std::vector<CartDiscountCode> discountCodes;
    Money subtotal;
    Money total;
    std::vector<CartLine> lines; ///< in the platform's order, at most 100

    [[nodiscard]] const CartLine* line(const QString& lineID) const;
    [[nodiscard]] const CartLine* lineOfVariant(const QString& wantedVariantID) const;

    bool operator==(const Cart&) const = default;
};

[[nodiscard]] std::size_t qHash(const Cart& cart, std::size_t seed = 0);
[[nodiscard]] std::size_t qHash(const CartLine& line, std::size_t seed = 0);

/// Reads the "CartFields" fragment of a Storefront answer. A line without merchandise is left out.
[[nodiscard]] Cart decodeCart(const JsonReader& json);

/// The same record under its own names.
[[nodiscard]] Cart decodeStoredCart(const JsonReader& json);
[[nodiscard]] QJsonObject toJson(const Cart& cart);

/// What every cart says of where it was made, in this order.
[[nodiscard]] const std::vector<CartAttribute>& appAttribution();
/// Keys count in any case, values exactly.
[[nodiscard]] bool hasAppAttribution(const Cart& cart);

} // namespace loom
