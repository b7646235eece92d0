#include "catalog/CollectionPage.h"

#include "catalog/StorefrontReading.h"

namespace loom
{

CollectionPage decodeCollectionPage(const JsonReader& data)
{
    CollectionPage page;
    const auto collection = data.optionalObject("collection");
    if (!collection)
        return page;
    page.collection = CollectionInfo{.id = collection->text("id"),
                                     .handle = collection->text("handle"),
                                     .title = collection->text("title"),
                                     .imageURL = readImageAddress(*collection, "image")};
    const JsonReader products = collection->object("products");
    page.products = JsonReader::decodeEach(products.list("nodes"), decodeListItem);
    PageInfo pageInfo = readPageInfo(products);
    page.hasNextPage = pageInfo.hasNextPage;
    page.endCursor = std::move(pageInfo.endCursor);
    page.filters = JsonReader::decodeEach(products.optionalList("filters"), decodeFilter);
    return page;
}

} // namespace loom
