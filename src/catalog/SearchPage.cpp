#include "catalog/SearchPage.h"

#include "catalog/StorefrontReading.h"

namespace loom
{

SearchPage decodeSearchPage(const JsonReader& data)
{
    const JsonReader search = data.object("search");
    PageInfo pageInfo = readPageInfo(search);
    SearchPage page;
    page.products = JsonReader::decodeEach(search.list("nodes"), decodeListItem);
    page.hasNextPage = pageInfo.hasNextPage;
    page.endCursor = std::move(pageInfo.endCursor);
    page.filters = JsonReader::decodeEach(search.optionalList("productFilters"), decodeFilter);
    page.totalCount = search.optionalInteger("totalCount");
    return page;
}

} // namespace loom
