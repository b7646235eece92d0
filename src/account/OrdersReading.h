#pragma once

#include "account/OrdersAPI.h"

namespace loom
{

class JsonReader;

// What the backend says of orders. An order, piece, package, event or refund that lacks what it needs is left out by
// itself; texts come out as lines that can be put anywhere, lists no longer than anybody reads, the newest first.

[[nodiscard]] OrdersAnswer decodeOrders(const JsonReader& json);
[[nodiscard]] TrackingAnswer decodeTracking(const JsonReader& json);

} // namespace loom
