#include "catalog/SearchSuggestions.h"

#include "catalog/StorefrontReading.h"

namespace loom
{

namespace
{

ProductHit decodeHit(const JsonReader& json)
{
    return {.id = json.text("id"),
            .handle = json.text("handle"),
            .title = json.text("title"),
            .vendor = json.optionalText("vendor").value_or(QString()),
            .imageURL = readImageAddress(json, "featuredImage")};
}

SearchSuggestions::Collection decodeCollection(const JsonReader& json)
{
    return {.handle = json.text("handle"), .title = json.text("title")};
}

} // namespace

SearchSuggestions decodeSuggestions(const JsonReader& data)
{
    SearchSuggestions suggestions;
    const auto found = data.optionalObject("predictiveSearch");
    if (!found)
        return suggestions;
    for (const JsonReader& query : found->optionalList("queries")) {
        if (auto text = query.optionalText("text"))
            suggestions.queries.append(*text);
    }
    suggestions.products = JsonReader::decodeEach(found->optionalList("products"), decodeHit);
    suggestions.collections = JsonReader::decodeEach(found->optionalList("collections"), decodeCollection);
    return suggestions;
}

} // namespace loom
