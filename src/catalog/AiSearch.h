#pragma once

#include "catalog/ProductListItem.h"
#include "catalog/SearchSuggestions.h"
#include "net/ApiResult.h"

#include <qcoro/qcorotask.h>

#include <functional>
#include <stop_token>

namespace loom
{

/// Results of a search that understands what is meant to ask for.
struct AiSearchRequest {
    QString query;
    int limit = 0;
    int offset = 0;
};

/// One answer.
struct AiSearchPage {
    /// Priced in US dollars, each with the reason it was found; the catalog's numbers are not known.
    std::vector<ProductListItem> products;
    std::vector<SearchSuggestions::Collection> collections;
    QString summary; ///< one line; may be empty
    std::optional<qint64> total;
    bool hasMore = false;
    int nextOffset = 0;
};

/// Who gives them.
using AiSearchSource =
    std::function<QCoro::Task<ApiResult<AiSearchPage>>(AiSearchRequest request, std::stop_token stop)>;

} // namespace loom
