#pragma once

#include "base/JsonReader.h"

namespace loom
{

/// The nodes of a connection (Relay cursor connections); none when the connection is absent.
[[nodiscard]] std::vector<JsonReader> readNodes(const JsonReader& json, std::string_view connectionKey);

/// The address of an image object; none rather than empty.
[[nodiscard]] std::optional<QString> readImageAddress(const JsonReader& image);
[[nodiscard]] std::optional<QString> readImageAddress(const JsonReader& json, std::string_view imageKey);

} // namespace loom
