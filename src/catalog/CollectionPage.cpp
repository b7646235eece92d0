#include "catalog/CollectionPage.h"

#include "catalog/StorefrontReading.h"

namespace loom
{

namespace
{

CollectionFilter::Value decodeValue(const JsonReader& json)
{
    return {.id = json.text("id"),
            .label = json.text("label"),
            .count = json.optionalInteger("count").value_or(0),
            .input = json.text("input")};
}

CollectionFilter decodeFilter(const JsonReader& json)
{
    CollectionFilter filter;
    filter.id = json.text("id");
    filter.label = json.text("label");
    const QString kind = json.text("type");
    if (kind == QLatin1String("PRICE_RANGE"))
        filter.kind = CollectionFilter::Kind::PriceRange;
    else if (kind == QLatin1String("BOOLEAN"))
        filter.kind = CollectionFilter::Kind::Boolean;
    else if (kind != QLatin1String("LIST"))
        json.fail(QStringLiteral("a filter of an unknown kind"));
    filter.values = JsonReader::decodeEach(json.optionalList("values"), decodeValue);
    return filter;
}

} // namespace

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
