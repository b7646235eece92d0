#include "catalog/Product.h"

#include "catalog/StorefrontReading.h"

namespace loom
{

namespace
{

ProductOption decodeOption(const JsonReader& json)
{
    ProductOption option{.name = json.text("name"), .values = {}};
    for (const JsonReader& value : json.optionalList("optionValues")) {
        if (auto name = value.optionalText("name"))
            option.values.append(*name);
    }
    return option;
}

ProductVariant decodeVariant(const JsonReader& json)
{
    ProductVariant variant;
    variant.id = json.text("id");
    variant.title = json.optionalText("title").value_or(QString());
    variant.availableForSale = json.optionalBoolean("availableForSale").value_or(false);
    variant.price = decodeMoney(json.object("price"));
    variant.compareAtPrice = decodeOptionalMoney(json, "compareAtPrice");
    for (const JsonReader& option : json.optionalList("selectedOptions"))
        variant.selectedOptions.append({.name = option.text("name"), .value = option.text("value")});
    variant.imageURL = readImageAddress(json, "image");
    variant.quantityAvailable = json.optionalInteger("quantityAvailable");
    return variant;
}

Metafield decodeMetafield(const JsonReader& json)
{
    return {.nameSpace = json.text("namespace"),
            .key = json.text("key"),
            .type = json.optionalText("type").value_or(QString()),
            .value = json.text("value")};
}

} // namespace

Product decodeProduct(const JsonReader& json)
{
    Product product;
    product.item = decodeListItem(json);
    product.description = json.optionalText("description").value_or(QString());
    product.descriptionHTML = json.optionalText("descriptionHtml").value_or(QString());
    product.productType = json.optionalText("productType").value_or(QString());
    for (const JsonReader& collection : readNodes(json, "collections")) {
        if (auto handle = collection.optionalText("handle"))
            product.collectionHandles.append(*handle);
    }
    for (const JsonReader& image : readNodes(json, "images")) {
        if (auto address = readImageAddress(image))
            product.images.append(*address);
    }
    product.options = JsonReader::decodeEach(json.optionalList("options"), decodeOption);
    product.variants = JsonReader::decodeEach(readNodes(json, "variants"), decodeVariant);
    // An identifier the product lacks is answered with null, which decodeEach() leaves out.
    product.metafields = JsonReader::decodeEach(json.optionalList("metafields"), decodeMetafield);
    return product;
}

} // namespace loom
