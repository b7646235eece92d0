#pragma once

#include "base/JsonReader.h"

namespace loom
{

/// The nodes of a connection (Relay cursor connections); none when the connection is absent.
[[nodiscard]] std::vector<JsonReader> readNodes(const JsonReader& json, std::string_view connectionKey);

/// Where a page of a connection ends.
struct PageInfo {
    bool hasNextPage = false;
    std::optional<QString> endCursor;
};

/// Without a cursor there is no way on, whatever the answer says.
[[nodiscard]] PageInfo readPageInfo(const JsonReader& connection);

/// The address of an image object; none rather than empty.
[[nodiscard]] std::optional<QString> readImageAddress(const JsonReader& image);
[[nodiscard]] std::optional<QString> readImageAddress(const JsonReader& json, std::string_view imageKey);

} // namespace loom
