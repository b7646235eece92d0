#pragma once

#include <array>
#include <utility>

namespace loom
{

/// The cards of the home's dashboard, in the order in which they stand unless the store says otherwise.
enum class DashboardCard { Vessa, Following, Member, Orders, Wishlist, Closet };

/// Each card with the key it has on the wire.
inline constexpr std::array<std::pair<DashboardCard, const char*>, 6> dashboardCardKeys{{
    {DashboardCard::Vessa, "vessa"},
    {DashboardCard::Following, "following"},
    {DashboardCard::Member, "member"},
    {DashboardCard::Orders, "orders"},
    {DashboardCard::Wishlist, "wishlist"},
    {DashboardCard::Closet, "closet"},
}};

} // namespace loom
