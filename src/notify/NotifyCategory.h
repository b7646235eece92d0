#pragma once

#include "base/KeyedText.h"
#include "storage/Preferences.h"

#include <array>

namespace loom
{

/// What a shopper can switch news on and off by.
enum class NotifyCategory { System, Orders, Refunds, Support, Restock, Price, Vessa, Membership, Promotions };

/// A category as the settings show it.
struct NotifyCategoryEntry {
    NotifyCategory category;
    const char* rawValue;
    KeyedText title;
    KeyedText description;
    Preference<bool> isOn;
};

/// In the order of the settings, which is that of the enumeration.
inline constexpr std::array<NotifyCategoryEntry, 9> notifyCategoryEntries{{
    {NotifyCategory::System,
     "system",
     {QT_TRANSLATE_NOOP("Loomstreet", "System alerts")},
     {QT_TRANSLATE_NOOP("Loomstreet", "Account and service updates")},
     preferences::notifySystem},
    {NotifyCategory::Orders,
     "orders",
     {QT_TRANSLATE_NOOP("Loomstreet", "Order updates")},
     {QT_TRANSLATE_NOOP("Loomstreet", "Order confirmed, shipped and delivered")},
     preferences::notifyOrders},
    {NotifyCategory::Refunds,
     "refunds",
     {QT_TRANSLATE_NOOP("Loomstreet", "Refunds and returns")},
     {QT_TRANSLATE_NOOP("Loomstreet", "Refunds issued and return updates")},
     preferences::notifyRefunds},
    {NotifyCategory::Support,
     "support",
     {QT_TRANSLATE_NOOP("Loomstreet", "Customer service replies")},
     {QT_TRANSLATE_NOOP("Loomstreet", "When customer service answers you")},
     preferences::notifySupport},
    {NotifyCategory::Restock,
     "restock",
     {QT_TRANSLATE_NOOP("Loomstreet", "Back in stock")},
     {QT_TRANSLATE_NOOP("Loomstreet", "Pieces you asked about are available again")},
     preferences::notifyRestock},
    {NotifyCategory::Price,
     "price",
     {QT_TRANSLATE_NOOP("Loomstreet", "Price drops")},
     {QT_TRANSLATE_NOOP("Loomstreet", "Saved or viewed pieces get cheaper")},
     preferences::notifyPrice},
    {NotifyCategory::Vessa,
     "vessa",
     {QT_TRANSLATE_NOOP("Loomstreet", "Vessa activity")},
     {QT_TRANSLATE_NOOP("Loomstreet", "Likes, comments, new followers and messages")},
     preferences::notifyVessa},
    {NotifyCategory::Membership,
     "membership",
     {QT_TRANSLATE_NOOP("Loomstreet", "Membership and coupons")},
     {QT_TRANSLATE_NOOP("Loomstreet", "Tier changes, points and new coupons")},
     preferences::notifyMembership},
    {NotifyCategory::Promotions,
     "promotions",
     {QT_TRANSLATE_NOOP("Loomstreet", "Promotions and events")},
     {QT_TRANSLATE_NOOP("Loomstreet", "Sales, new drops and store events")},
     preferences::notifyPromotions},
}};

[[nodiscard]] constexpr const NotifyCategoryEntry& entryOf(NotifyCategory category)
{
    return notifyCategoryEntries[static_cast<std::size_t>(category)];
}

} // namespace loom
