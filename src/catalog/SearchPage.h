#pragma once

#include "catalog/CollectionFilter.h"
#include "catalog/ProductListItem.h"

#include <QJsonArray>

#include <array>

namespace loom
{

/// How an order of search results is asked for and named. `Order` of SearchModel is the place in the list.
struct SearchOrder {
    const char* rawValue;
    const char* label; ///< English; translate it where it is shown
    const char* sortKey;
    bool reverse;
};

inline constexpr std::array<SearchOrder, 3> searchOrders{{
    {"bestMatch", QT_TRANSLATE_NOOP("Loomstreet", "Best Match"), "RELEVANCE", false},
    {"priceLow", QT_TRANSLATE_NOOP("Loomstreet", "Price: Low to High"), "PRICE", false},
    {"priceHigh", QT_TRANSLATE_NOOP("Loomstreet", "Price: High to Low"), "PRICE", true},
}};

/// One page of search results to ask for.
struct SearchRequest {
    QString query;
    int first = 0;
    std::optional<QString> after;
    QJsonArray filters; ///< ProductFilter inputs
    SearchOrder order = searchOrders.front();
};

/// One answer.
struct SearchPage {
    std::vector<ProductListItem> products;
    bool hasNextPage = false;
    std::optional<QString> endCursor;
    std::vector<CollectionFilter> filters;
    std::optional<qint64> totalCount;

    bool operator==(const SearchPage&) const = default;
};

[[nodiscard]] SearchPage decodeSearchPage(const JsonReader& data);

} // namespace loom
