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
    const JsonReader pageInfo = products.object("pageInfo");
    page.endCursor = pageInfo.optionalText("endCursor");
    // Without a cursor there is no way on, whatever the answer says.
    page.hasNextPage = pageInfo.boolean("hasNextPage") && page.endCursor;
    page.filters = JsonReader::decodeEach(products.optionalList("filters"), decodeFilter);
    return page;
}

} // namespace loom
