#pragma once

#include "catalog/Money.h"

#include <QDateTime>

namespace loom
{

enum class RefundStatus { Unknown, Requested, Approved, Refunded, Refused };

/// A return, and the money that comes back for it.
struct Refund {
    QString id;
    QString orderId;
    QString orderName;
    QDateTime createdAt;
    RefundStatus status = RefundStatus::Unknown;
    Money amount;
    QString rmaNo; ///< the number of the return; empty when it has none
    QString reason;

    bool operator==(const Refund&) const = default;
};

} // namespace loom
