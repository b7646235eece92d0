#include "catalog/ProductMetafields.h"

#include "catalog/MetafieldReading.h"

namespace loom
{

namespace
{

void readCustom(ProductMetafields& result, const QString& key, const QString& value)
{
    if (key == QLatin1String("specs")) {
        ProductSpecs specs = decodeMetafieldJson(value, decodeProductSpecs);
        result.specs = std::move(specs.rows);
        result.sizeSections = std::move(specs.sizeTables);
    } else if (key == QLatin1String("highlights")) {
        result.highlights = metafieldLines(value);
    } else if (key == QLatin1String("composition")) {
        result.composition = metafieldLines(value);
    } else if (key == QLatin1String("aeo_details")) {
        result.aeoSections = decodeMetafieldJson(value, decodeAeoSections);
    } else if (key == QLatin1String("presale")) {
        result.presale = metafieldText(value);
    } else if (key == QLatin1String("reviews")) {
        BuyerReviewData reviews = decodeMetafieldJson(value, decodeBuyerReviewData);
        if (reviews != BuyerReviewData{})
            result.reviews = std::move(reviews);
    } else if (key == QLatin1String("source_item_id")) {
        result.sourceItemID = metafieldText(value);
    }
}

} // namespace

ProductMetafields productMetafields(const std::vector<Metafield>& metafields)
{
    ProductMetafields result;
    for (const Metafield& field : metafields) {
        if (field.nameSpace == QLatin1String("custom"))
            readCustom(result, field.key, field.value);
        else if (field.nameSpace == QLatin1String("pdp") && field.key == QLatin1String("topcartsize"))
            result.sizeHint = metafieldText(field.value);
        else if (field.nameSpace == QLatin1String("reviews") && field.key == QLatin1String("rating"))
            result.rating = metafieldRating(field.value);
        else if (field.nameSpace == QLatin1String("reviews") && field.key == QLatin1String("rating_count"))
            result.ratingCount = metafieldCount(field.value);
    }
    return result;
}

} // namespace loom
