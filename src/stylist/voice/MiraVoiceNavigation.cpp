#include "stylist/voice/MiraVoiceNavigation.h"

#include "base/Overloaded.h"
#include "catalog/DisplayText.h"
#include "navigation/InAppPaths.h"
#include "stylist/MiraRules.h"

namespace loom
{

namespace
{

using Place = std::optional<std::variant<Route, SidebarItem>>;

constexpr qsizetype longestQuery = 200;

Place search(const QString& text)
{
    const QString query = displayLine(text, longestQuery);
    return query.isEmpty() ? Place() : Route(ShopRoute{ShopRoute::Search{.query = query}});
}

/// Where a link leads within the application.
Place linked(const QString& link, const LinkResolver& resolver)
{
    if (const auto page = inAppPage(link))
        return std::visit([](const auto& known) { return Place(known); }, *page);
    return std::visit(
        Overloaded{[](const LinkResolver::Product& target) {
                       return MiraRules::isHandle(target.handle) ? productRoute({.handle = target.handle, .item = {}})
                                                                 : Place();
                   },
                   [](const LinkResolver::Collection& target) {
                       return MiraRules::isHandle(target.handle)
                                  ? Route(ShopRoute{ShopRoute::Collection{.handle = target.handle, .title = {}}})
                                  : Place();
                   },
                   [](const LinkResolver::Search& target) { return search(target.query); },
                   [](const LinkResolver::Brands&) -> Place { return SidebarItem::Brands; },
                   [](const LinkResolver::Starlook&) -> Place { return SidebarItem::Starlook; },
                   [](const LinkResolver::Cart&) -> Place { return SidebarItem::Cart; },
                   [](const LinkResolver::Account&) -> Place { return SidebarItem::Account; },
                   [](const LinkResolver::External&) { return Place(); },
                   [](const LinkResolver::None&) {
                       return Place();
                   }},
        resolver.resolve(link));
}

/// Where the kind leads, as far as it and the handle say it.
Place named(const QString& kind, const QString& handle, const LinkResolver& resolver)
{
    if (kind == QLatin1String("product") && MiraRules::isHandle(handle))
        return linked(QStringLiteral("/products/") + handle, resolver);
    if (kind == QLatin1String("collection") && MiraRules::isHandle(handle))
        return linked(QStringLiteral("/collections/") + handle, resolver);
    if (kind == QLatin1String("search"))
        return search(handle);
    if (kind == QLatin1String("wishlist"))
        return SidebarItem::Wishlist;
    if (kind == QLatin1String("brands"))
        return SidebarItem::Brands;
    if (kind == QLatin1String("orders"))
        return SidebarItem::Orders;
    if (kind == QLatin1String("returns"))
        return Route(OrdersRoute{OrdersRoute::Returns{}});
    if (kind == QLatin1String("coupons"))
        return Route(AccountRoute{AccountRoute::Coupons{}});
    if (kind == QLatin1String("membership"))
        return Route(AccountRoute{AccountRoute::Membership{}});
    return std::nullopt;
}

/// A collection that stands in the sidebar is called as it is there.
QString collectionName(const QString& handle)
{
    for (const SidebarEntry& entry : sidebarEntries) {
        if (collectionHandle(entry.item) == handle)
            return entry.title.translated();
    }
    return {};
}

QString pageName(const ShopRoute& route)
{
    if (const auto* const collection = std::get_if<ShopRoute::Collection>(&route.page))
        return collectionName(collection->handle);
    if (const auto* const search = std::get_if<ShopRoute::Search>(&route.page))
        return QStringLiteral("“%1”").arg(search->query);
    return {};
}

QString pageName(const AccountRoute& route)
{
    if (std::holds_alternative<AccountRoute::Coupons>(route.page))
        return QCoreApplication::translate("Loomstreet", "Coupons");
    if (std::holds_alternative<AccountRoute::Membership>(route.page))
        return QCoreApplication::translate("Loomstreet", "Membership");
    if (std::holds_alternative<AccountRoute::Profile>(route.page))
        return QCoreApplication::translate("Loomstreet", "Profile");
    if (std::holds_alternative<AccountRoute::Alerts>(route.page))
        return QCoreApplication::translate("Loomstreet", "Alerts");
    return {};
}

QString pageName(const OrdersRoute& route)
{
    return std::holds_alternative<OrdersRoute::Returns>(route.page)
               ? QCoreApplication::translate("Loomstreet", "Returns")
               : QString();
}

QString pageName(const SidebarItem& item)
{
    return entryOf(item).title.translated();
}

QString pageName(const Route& route)
{
    return std::visit(Overloaded{[](const ShopRoute& page) { return pageName(page); },
                                 [](const AccountRoute& page) { return pageName(page); },
                                 [](const OrdersRoute& page) { return pageName(page); },
                                 [](const auto&) {
                                     return QString();
                                 }},
                      route);
}

} // namespace

std::optional<MiraVoiceDestination> miraVoiceDestination(const MiraVoiceEvent::Navigation& request,
                                                         const LinkResolver& resolver)
{
    Place place = named(request.kind.trimmed().toLower(), request.handle.trimmed(), resolver);
    if (!place)
        place = linked(request.path, resolver);
    if (!place)
        return std::nullopt;
    QString name = std::visit([](const auto& known) { return pageName(known); }, *place);
    return MiraVoiceDestination{.place = *std::move(place), .name = std::move(name)};
}

} // namespace loom
