#pragma once

#include "account/Order.h"
#include "account/Refund.h"

#include <QVariantMap>

namespace loom
{

class DateFormat;
class MoneyFormat;

// Orders, packages and refunds in the words of the window.

[[nodiscard]] QString statusText(OrderStatus status);
[[nodiscard]] QString statusText(PackageStatus status);
[[nodiscard]] QString statusText(RefundStatus status);

/// How a status is to be seen: "plain", "accent" while it moves, "success" or "danger".
[[nodiscard]] QString toneOf(OrderStatus status);
[[nodiscard]] QString toneOf(PackageStatus status);
[[nodiscard]] QString toneOf(RefundStatus status);

/// "3 pieces".
[[nodiscard]] QString pieceCountText(const Order& order);
/// What the order holds, in a line: its first piece, and how many more there are.
[[nodiscard]] QString summary(const Order& order);

/// {"number", "carrier", "status", "tone", "expected", "url", "events": {"text", "place", "when"} each}.
[[nodiscard]] QVariantMap describe(const Package& package, const DateFormat& dates);
/// {"status", "tone", "date", "amount", "reason", "rmaNo"}.
[[nodiscard]] QVariantMap describe(const Refund& refund, const DateFormat& dates, const MoneyFormat& money);
/// {"title", "variant", "handle", "picture", "quantity", "price"}; the price is that of all of them.
[[nodiscard]] QVariantMap describe(const OrderLine& line, const MoneyFormat& money);

} // namespace loom
