#include "notify/NotificationType.h"

#include <QHash>

namespace loom
{

namespace
{

constexpr auto system = NotificationCategory::System;
constexpr auto support = NotificationCategory::Support;
constexpr auto vessa = NotificationCategory::Vessa;

/// The first is what an unknown type is taken for.
constexpr std::array types{
    NotificationType{"system", NotifyCategory::System, system, "bell"},
    NotificationType{"security", NotifyCategory::System, system, "lock"},
    NotificationType{"order_confirmed", NotifyCategory::Orders, system, "checkmark.seal"},
    NotificationType{"order_shipped", NotifyCategory::Orders, system, "shippingbox"},
    NotificationType{"order_out", NotifyCategory::Orders, system, "truck"},
    NotificationType{"order_delivered", NotifyCategory::Orders, system, "shippingbox"},
    NotificationType{"order_problem", NotifyCategory::Orders, system, "warning"},
    NotificationType{"order_cancelled", NotifyCategory::Orders, system, "xmark"},
    NotificationType{"refund_approved", NotifyCategory::Refunds, system, "return"},
    NotificationType{"refund_issued", NotifyCategory::Refunds, system, "return"},
    NotificationType{"refund_refused", NotifyCategory::Refunds, system, "return"},
    NotificationType{"support_reply", NotifyCategory::Support, support, "headphones"},
    NotificationType{"restock", NotifyCategory::Restock, system, "hanger"},
    NotificationType{"price_drop", NotifyCategory::Price, system, "chart.down"},
    NotificationType{"vessa_like", NotifyCategory::Vessa, vessa, "heart"},
    NotificationType{"vessa_comment", NotifyCategory::Vessa, vessa, "person.2"},
    NotificationType{"vessa_follow", NotifyCategory::Vessa, vessa, "person.2"},
    NotificationType{"vessa_message", NotifyCategory::Vessa, vessa, "person.2"},
    NotificationType{"membership_tier", NotifyCategory::Membership, system, "crown"},
    NotificationType{"membership_points", NotifyCategory::Membership, system, "star"},
    NotificationType{"coupon", NotifyCategory::Membership, system, "tag"},
    NotificationType{"promotion", NotifyCategory::Promotions, system, "tag"},
    NotificationType{"new_drop", NotifyCategory::Promotions, system, "sparkles"},
    NotificationType{"event", NotifyCategory::Promotions, system, "calendar"},
    // What this application says itself.
    NotificationType{"support", NotifyCategory::Support, support, "headphones"},
    NotificationType{"order", NotifyCategory::Orders, system, "checkmark.seal"},
    NotificationType{"notice", NotifyCategory::System, system, "bell"},
    NotificationType{"preview", NotifyCategory::System, system, "bell.badge"},
};

} // namespace

const NotificationType& notificationType(const QString& name)
{
    static const QHash<QString, const NotificationType*> byName = [] {
        QHash<QString, const NotificationType*> rows;
        for (const NotificationType& type : types)
            rows.insert(QString::fromLatin1(type.name), &type);
        return rows;
    }();
    return *byName.value(name, &types.front());
}

} // namespace loom
