#pragma once

#include "account/OrderLine.h"
#include "account/Package.h"

#include <QStringList>

namespace loom
{

enum class OrderStatus { Unknown, Confirmed, Packed, Shipped, Delivered, Cancelled };

/// What was bought at one time, and where it is by now.
struct Order {
    QString id;
    QString name; ///< what the shopper calls it: "LST10484"
    QDateTime placedAt;
    OrderStatus status = OrderStatus::Unknown;
    std::vector<OrderLine> lines;
    std::vector<Package> packages;
    std::optional<Money> subtotal;
    std::optional<Money> shipping;
    std::optional<Money> discount;
    std::optional<Money> tax;
    Money total;
    QString addressee;
    QStringList addressLines;
    bool canReturn = false;

    bool operator==(const Order&) const = default;
};

} // namespace loom
