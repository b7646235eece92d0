#include "catalog/SearchPage.h"

namespace loom
{

SearchPage decodeSearchPage(const JsonReader& data)
{
    const JsonReader search = data.object("search");
    const JsonReader pageInfo = search.object("pageInfo");
    SearchPage page;
    page.products = JsonReader::decodeEach(search.list("nodes"), decodeListItem);
    page.endCursor = pageInfo.optionalText("endCursor");
    // Without a cursor there is no way on, whatever the answer says.
    page.hasNextPage = pageInfo.boolean("hasNextPage") && page.endCursor;
    page.filters = JsonReader::decodeEach(search.optionalList("productFilters"), decodeFilter);
    page.totalCount = search.optionalInteger("totalCount");
    return page;
}

} // namespace loom
