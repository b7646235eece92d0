#pragma once

#include <QString>

#include <vector>

namespace loom
{

/// What the shopper ordered and sent back of late, as far as a conversation names it.
struct MiraOrdersResponse {
    struct Order {
        QString id;
        QString name;   ///< what the shopper calls it: "LST10484"
        QString status; ///< as the service wrote it: "shipped"

        bool operator==(const Order&) const = default;
    };
    struct Refund {
        QString id;
        QString orderName; ///< empty where the service gave none
        QString status;

        bool operator==(const Refund&) const = default;
    };

    std::vector<Order> orders;
    std::vector<Refund> refunds;

    bool operator==(const MiraOrdersResponse&) const = default;
};

} // namespace loom
