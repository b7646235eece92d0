#pragma once

#include "base/KeyedText.h"

#include <QObject>

#include <array>
#include <optional>

namespace loom
{

/// Carries the enumeration to QML.
class SidebarItems
{
    Q_GADGET

public:
    /// The top-level destinations of a tab, in the order of the sidebar.
    enum class Item {
        Home,
        NewIn,
        Women,
        Men,
        Luxury,
        Bags,
        Accessories,
        FinalSale,
        Brands,
        Starlook,
        Vessa,
        Mira,
        Cart,
        Wishlist,
        Tools,
        Closet,
        Following,
        Orders,
        Notifications,
        Account,
    };
    Q_ENUM(Item)
};

using SidebarItem = SidebarItems::Item;

/// What is known of a destination.
struct SidebarEntry {
    SidebarItem item;
    const char* rawValue;
    KeyedText title;
    const char* symbol;  ///< the icon's identifier
    const char* webPath; ///< its page on the store's own site
};

inline constexpr std::array<SidebarEntry, 20> sidebarEntries{{
    {SidebarItem::Home, "home", {QT_TRANSLATE_NOOP("Loomstreet", "Explore")}, "house", "/"},
    {SidebarItem::NewIn, "newIn", {QT_TRANSLATE_NOOP("Loomstreet", "New In")}, "clock", "/collections/new-in"},
    {SidebarItem::Women,
     "women",
     {QT_TRANSLATE_NOOP("Loomstreet", "Women")},
     "figure.stand.dress",
     "/collections/women"},
    {SidebarItem::Men, "men", {QT_TRANSLATE_NOOP("Loomstreet", "Men")}, "figure.stand", "/collections/men"},
    {SidebarItem::Luxury, "luxury", {QT_TRANSLATE_NOOP("Loomstreet", "Luxury")}, "crown", "/collections/luxury"},
    {SidebarItem::Bags, "bags", {QT_TRANSLATE_NOOP("Loomstreet", "Bags")}, "handbag", "/collections/bags"},
    {SidebarItem::Accessories,
     "accessories",
     {QT_TRANSLATE_NOOP("Loomstreet", "Accessories")},
     "eyeglasses",
     "/collections/accessories"},
    {SidebarItem::FinalSale,
     "finalSale",
     {QT_TRANSLATE_NOOP("Loomstreet", "Final Sale")},
     "tag",
     "/collections/final-sale"},
    {SidebarItem::Brands,
     "brands",
     {QT_TRANSLATE_NOOP("Loomstreet", "Designers")},
     "signature",
     "/pages/brands-at-loomstreet"},
    {SidebarItem::Starlook, "starlook", {QT_TRANSLATE_NOOP("Loomstreet", "Starlook")}, "star", "/pages/starlook"},
    {SidebarItem::Vessa, "vessa", {QT_TRANSLATE_NOOP("Loomstreet", "Vessa")}, "person.2", "/pages/vessa"},
    {SidebarItem::Mira, "mira", {QT_TRANSLATE_NOOP("Loomstreet", "Mira")}, "sparkles", "/pages/mira"},
    {SidebarItem::Cart, "cart", {QT_TRANSLATE_NOOP("Loomstreet", "Cart")}, "bag", "/cart"},
    {SidebarItem::Wishlist, "wishlist", {QT_TRANSLATE_NOOP("Loomstreet", "Wishlist")}, "heart", "/pages/wishlist"},
    {SidebarItem::Tools, "tools", QT_TRANSLATE_NOOP3("Loomstreet", "Tools", "tools.title"), "square.grid.2x2",
     "/pages/tools"},
    {SidebarItem::Closet, "closet", QT_TRANSLATE_NOOP3("Loomstreet", "Closet", "sidebar.closet"), "hanger",
     "/pages/closet"},
    {SidebarItem::Following, "following", QT_TRANSLATE_NOOP3("Loomstreet", "Following", "sidebar.following"),
     "calendar", "/pages/following"},
    {SidebarItem::Orders, "orders", {QT_TRANSLATE_NOOP("Loomstreet", "Orders")}, "shippingbox", "/account/orders"},
    {SidebarItem::Notifications,
     "notifications",
     {QT_TRANSLATE_NOOP("Loomstreet", "Notifications")},
     "bell",
     "/pages/notifications"},
    {SidebarItem::Account, "account", {QT_TRANSLATE_NOOP("Loomstreet", "MyLST")}, "person.crop.circle", "/account"},
}};

[[nodiscard]] constexpr const SidebarEntry& entryOf(SidebarItem item)
{
    return sidebarEntries.at(static_cast<std::size_t>(item));
}

[[nodiscard]] std::optional<SidebarItem> sidebarItemFromRawValue(const QString& rawValue);

/// The heading above an item; an empty text where none begins.
[[nodiscard]] KeyedText headingAbove(SidebarItem item);

/// True where a line sets an item off from the one above.
[[nodiscard]] bool hasLineAbove(SidebarItem item);

/// The collection an item shows; nothing for items that no collection backs.
[[nodiscard]] std::optional<QString> collectionHandle(SidebarItem item);

} // namespace loom
