#include "catalog/StorefrontReading.h"

namespace loom
{

std::vector<JsonReader> readNodes(const JsonReader& json, std::string_view connectionKey)
{
    const auto connection = json.optionalObject(connectionKey);
    return connection ? connection->optionalList("nodes") : std::vector<JsonReader>();
}

PageInfo readPageInfo(const JsonReader& connection)
{
    const JsonReader json = connection.object("pageInfo");
    const std::optional<QString> endCursor = json.optionalText("endCursor");
    return {.hasNextPage = json.boolean("hasNextPage") && endCursor, .endCursor = endCursor};
}

std::optional<QString> readImageAddress(const JsonReader& image)
{
    std::optional<QString> address = image.optionalText("url");
    return address && !address->isEmpty() ? address : std::nullopt;
}

std::optional<QString> readImageAddress(const JsonReader& json, std::string_view imageKey)
{
    const auto image = json.optionalObject(imageKey);
    return image ? readImageAddress(*image) : std::nullopt;
}

} // namespace loom
