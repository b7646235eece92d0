#pragma once

#include "base/FeatureGates.h"
#include "navigation/Routes.h"
#include "navigation/SidebarItem.h"

#include <QObject>
#include <QUrl>

namespace loom
{

class StorePages;

namespace PageKind
{
Q_NAMESPACE

enum class Kind {
    Explore,
    Department, ///< of the department whose id is the handle
    Collection,
    Product,
    Cart,
    Search, ///< for the query that is the handle
    Brands,
    Wishlist,
    RecentlyViewed,
    PriceDrops,
    Rail,    ///< recommendations: the handles are their kind and what they are of
    Compare, ///< the pieces named by the handles
    Account,
    Orders,  ///< those of the tab that is the handle, or all
    Order,   ///< whose id is the handle
    Package, ///< of the number that is the handle; the title is who carries it, if that is known
    Tracking,
    Profile,
    Alerts,
    Tools,
    Mira,          ///< the stylist
    Notifications, ///< what the account was told
    StorePage,     ///< the store's own web page
    Paused,        ///< in the place of a page whose feature the store switched off
    Unknown,
};
Q_ENUM_NS(Kind)
} // namespace PageKind

/// One page of a tab as the window has to build it.
struct PageEntry {
    Q_GADGET
    Q_PROPERTY(loom::PageKind::Kind kind MEMBER kind)
    Q_PROPERTY(QString handle MEMBER handle)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QVariant item READ itemVariant)
    Q_PROPERTY(QUrl address MEMBER address)
    Q_PROPERTY(QStringList handles MEMBER handles)

public:
    PageKind::Kind kind = PageKind::Kind::Unknown;
    QString handle;
    QString title; ///< English or the store's own; until the page knows better
    QString symbol;
    std::optional<ProductListItem> item;
    QUrl address;
    QStringList handles;

    [[nodiscard]] QVariant itemVariant() const { return item ? QVariant::fromValue(*item) : QVariant(); }

    bool operator==(const PageEntry&) const = default;
};

/// The page at the root of a section.
[[nodiscard]] PageEntry pageFor(SidebarItem item, const StorePages& storePages);

/// The page of a pushed route.
[[nodiscard]] PageEntry pageFor(const Route& route, const StorePages& storePages);

/// The feature without which there is no such page; none where the store cannot switch it off.
[[nodiscard]] std::optional<Feature> featureOf(const Route& route);

/// What stands in the place of a page while its feature is switched off; its handle is the feature's key.
[[nodiscard]] PageEntry pausedPage(const PageEntry& page, Feature feature);

} // namespace loom

Q_DECLARE_METATYPE(loom::PageEntry)
