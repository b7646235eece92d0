#include "navigation/InAppPaths.h"

#include <QUrl>

namespace loom
{

namespace
{

std::optional<InAppPage> pageNamed(const QString& name)
{
    for (const SidebarItem item :
         {SidebarItem::Orders, SidebarItem::Wishlist, SidebarItem::Notifications, SidebarItem::Mira, SidebarItem::Tools,
          SidebarItem::Closet, SidebarItem::Following, SidebarItem::Vessa}) {
        if (name == QLatin1String(entryOf(item).rawValue))
            return item;
    }
    if (name == QLatin1String("alerts"))
        return Route(AccountRoute{AccountRoute::Alerts{}});
    if (name == QLatin1String("coupons"))
        return Route(AccountRoute{AccountRoute::Coupons{}});
    if (name == QLatin1String("membership"))
        return Route(AccountRoute{AccountRoute::Membership{}});
    if (name == QLatin1String("profile"))
        return Route(AccountRoute{AccountRoute::Profile{}});
    if (name == QLatin1String("returns"))
        return Route(OrdersRoute{OrdersRoute::Returns{}});
    if (name == QLatin1String("tracking"))
        return Route(OrdersRoute{OrdersRoute::Tracking{}});
    return std::nullopt;
}

std::optional<InAppPage> pageNamed(const QString& name, const QString& key)
{
    if (name == QLatin1String("orders"))
        return Route(OrdersRoute{OrdersRoute::Order{.id = key}});
    if (name == QLatin1String("returns"))
        return Route(OrdersRoute{OrdersRoute::ReturnDetail{.rmaNo = key}});
    if (name == QLatin1String("tracking"))
        return Route(OrdersRoute{OrdersRoute::Package{.number = key, .carrier = {}}});
    return std::nullopt;
}

} // namespace

std::optional<InAppPage> inAppPage(const QString& path)
{
    const QUrl url(path.trimmed());
    // With a scheme or a host it leads elsewhere.
    if (!url.isValid() || !url.isRelative() || !url.host().isEmpty() || !url.path().startsWith(QLatin1Char('/')))
        return std::nullopt;
    // Decoded one by one: a number may itself hold what parts them.
    QStringList parts = url.path(QUrl::FullyEncoded).split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (QString& part : parts)
        part = QUrl::fromPercentEncoding(part.toUtf8());
    if (parts.size() == 1)
        return pageNamed(parts.first().toLower());
    if (parts.size() == 2)
        return pageNamed(parts.first().toLower(), parts.last());
    return std::nullopt;
}

} // namespace loom
