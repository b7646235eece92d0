#pragma once

#include "catalog/Metafield.h"
#include "catalog/ProductListItem.h"

namespace loom
{

struct SelectedOption {
    QString name;
    QString value;

    bool operator==(const SelectedOption&) const = default;
};

struct ProductOption {
    QString name;
    QStringList values;

    bool operator==(const ProductOption&) const = default;
};

struct ProductVariant {
    QString id; ///< "gid://shopify/ProductVariant/" and a number
    QString title;
    bool availableForSale = false;
    Money price;
    std::optional<Money> compareAtPrice;
    QList<SelectedOption> selectedOptions;
    std::optional<QString> imageURL;
    std::optional<qint64> quantityAvailable;

    bool operator==(const ProductVariant&) const = default;
};

/// Everything a product page shows.
struct Product {
    ProductListItem item;
    QString description;
    QString descriptionHTML;
    QString productType;
    QStringList images; ///< up to 30
    std::vector<ProductOption> options;
    std::vector<ProductVariant> variants; ///< up to 100
    std::vector<Metafield> metafields;
    QStringList collectionHandles; ///< up to 10

    bool operator==(const Product&) const = default;
};

/// Reads the "ProductDetail" fragment of a Storefront answer.
[[nodiscard]] Product decodeProduct(const JsonReader& json);

} // namespace loom
