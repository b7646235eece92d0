#pragma once

#include "catalog/Money.h"

#include <QDateTime>
#include <QMetaType>
#include <QStringList>

#include <optional>

namespace loom
{

/// One product card. Addresses of pictures stay texts until something loads them.
struct ProductListItem {
    Q_GADGET
    Q_PROPERTY(QString handle MEMBER handle)
    Q_PROPERTY(QString title MEMBER title)

public:
    QString id; ///< "gid://shopify/Product/" and a number
    QString handle;
    QString title;
    QString vendor; ///< the designer; empty when the Storefront gives none
    std::optional<QString> imageURL;
    Money price;
    std::optional<Money> compareAtPrice; ///< the former price; none rather than zero
    QStringList tags;
    std::optional<QDateTime> createdAt;
    QStringList styleImages;              ///< one per variant that has a picture, the first ten
    QStringList cardImages;               ///< the first four of the product
    std::optional<bool> availableForSale; ///< absent means unknown
    std::optional<QString> recoReason;
    std::optional<double> seenPrice;
    std::optional<QDateTime> seenAt;
    std::optional<QString> seenCurrency;

    bool operator==(const ProductListItem&) const = default;
};

/// Reads the "ListItem" fragment of a Storefront answer.
[[nodiscard]] ProductListItem decodeListItem(const JsonReader& json);

/// Reads and writes an item as it is kept on this machine, under its field names.
[[nodiscard]] ProductListItem decodeStoredItem(const JsonReader& json);
[[nodiscard]] QJsonObject toJson(const ProductListItem& item);

/// The former price a card strikes through: only one above the price, in the same currency.
[[nodiscard]] std::optional<Money> formerPrice(const Money& price, const std::optional<Money>& compareAtPrice);

} // namespace loom

Q_DECLARE_METATYPE(loom::ProductListItem)
