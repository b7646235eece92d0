#pragma once

#include "catalog/CollectionFilter.h"
#include "catalog/CollectionInfo.h"
#include "catalog/ProductListItem.h"

#include <QJsonArray>

#include <array>

namespace loom
{

/// The orders a collection can be shown in; the place in the enumeration is the place in the menu.
enum class CollectionSort { Featured, Newest, PriceLow, PriceHigh, BestSelling };

/// How an order is stored, asked for and named.
struct CollectionSortOrder {
    CollectionSort sort;
    const char* rawValue;
    const char* label; ///< English; translate it where it is shown
    const char* sortKey;
    bool reverse;
};

inline constexpr std::array<CollectionSortOrder, 5> collectionSortOrders{{
    {CollectionSort::Featured, "featured", QT_TRANSLATE_NOOP("Loomstreet", "Featured"), "COLLECTION_DEFAULT", false},
    {CollectionSort::Newest, "newest", QT_TRANSLATE_NOOP("Loomstreet", "Newest"), "CREATED", true},
    {CollectionSort::PriceLow, "priceLow", QT_TRANSLATE_NOOP("Loomstreet", "Price: Low to High"), "PRICE", false},
    {CollectionSort::PriceHigh, "priceHigh", QT_TRANSLATE_NOOP("Loomstreet", "Price: High to Low"), "PRICE", true},
    {CollectionSort::BestSelling, "bestSelling", QT_TRANSLATE_NOOP("Loomstreet", "Best Selling"), "BEST_SELLING",
     false},
}};

[[nodiscard]] constexpr const CollectionSortOrder& orderOf(CollectionSort sort)
{
    return collectionSortOrders.at(static_cast<std::size_t>(sort));
}

/// One page of a collection to ask for.
struct CollectionRequest {
    QString handle;
    int first = 0;
    std::optional<QString> after;
    QJsonArray filters; ///< ProductFilter inputs
    CollectionSort sort = CollectionSort::Featured;
};

/// One answer. Without a collection there is none in this market.
struct CollectionPage {
    std::optional<CollectionInfo> collection;
    std::vector<ProductListItem> products;
    bool hasNextPage = false;
    std::optional<QString> endCursor;
    std::vector<CollectionFilter> filters;
    std::optional<qint64> exactCount;

    bool operator==(const CollectionPage&) const = default;
};

[[nodiscard]] CollectionPage decodeCollectionPage(const JsonReader& data);

} // namespace loom
