#include "navigation/StorePages.h"

namespace loom
{

namespace
{

QString encoded(const QString& text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

/// The path on the store's site that shows each page. The last part of a path is always encoded: handles and codes
/// come from links.
struct WebPath {
    QString operator()(const ShopRoute::Product& page) const
    {
        return QStringLiteral("/products/") + encoded(page.handle);
    }
    QString operator()(const ShopRoute::Collection& page) const
    {
        return QStringLiteral("/collections/") + encoded(page.handle);
    }
    QString operator()(const ShopRoute::Category& page) const
    {
        return QStringLiteral("/collections/") + encoded(page.id);
    }
    QString operator()(const ShopRoute::Search& page) const
    {
        return QStringLiteral("/search?q=") + encoded(page.query);
    }
    QString operator()(const ShopRoute::Rail& page) const { return QStringLiteral("/pages/rail-") + encoded(page.key); }
    QString operator()(const ShopRoute::Compare& page) const
    {
        return QStringLiteral("/pages/compare?handles=") + encoded(page.handles.join(QLatin1Char(',')));
    }
    QString operator()(const ShopRoute::Brands&) const { return QStringLiteral("/pages/brands-at-loomstreet"); }
    QString operator()(const ShopRoute::Starlook&) const { return QStringLiteral("/pages/starlook"); }
    QString operator()(const ShopRoute::Wishlist&) const { return QStringLiteral("/pages/wishlist"); }
    QString operator()(const ShopRoute::RecentlyViewed&) const { return QStringLiteral("/pages/recently-viewed"); }
    QString operator()(const ShopRoute::PriceDrops&) const { return QStringLiteral("/pages/price-drops"); }
    QString operator()(const VessaRoute::Note& page) const
    {
        return QStringLiteral("/pages/vessa?note=") + encoded(page.id);
    }
    QString operator()(const VessaRoute::Topic& page) const
    {
        return QStringLiteral("/pages/vessa?topic=") + encoded(page.tag);
    }
    QString operator()(const VessaRoute::Search& page) const
    {
        return QStringLiteral("/pages/vessa?q=") + encoded(page.query);
    }
    QString operator()(const VessaProfileRoute::User& page) const
    {
        return QStringLiteral("/pages/vessa?user=") + encoded(page.code);
    }
    QString operator()(const VessaProfileRoute::Follows& page) const
    {
        return QStringLiteral("/pages/vessa?follows=") + encoded(page.kind);
    }
    QString operator()(const VessaProfileRoute::Collection& page) const
    {
        return QStringLiteral("/pages/vessa?collection=") + encoded(page.id);
    }
    QString operator()(const VessaProfileRoute::Me&) const { return QStringLiteral("/pages/vessa?user=me"); }
    QString operator()(const MiraRoute::Chat&) const { return QStringLiteral("/pages/mira"); }
    QString operator()(const AccountRoute::Membership&) const { return QStringLiteral("/account/membership"); }
    QString operator()(const AccountRoute::Coupons&) const { return QStringLiteral("/account/coupons"); }
    QString operator()(const AccountRoute::Notifications&) const { return QStringLiteral("/pages/notifications"); }
    QString operator()(const AccountRoute::Profile&) const { return QStringLiteral("/account/profile"); }
    QString operator()(const AccountRoute::Alerts&) const { return QStringLiteral("/account/alerts"); }
    QString operator()(const OrdersRoute::List&) const { return QStringLiteral("/account/orders"); }
    QString operator()(const OrdersRoute::Order& page) const
    {
        return QStringLiteral("/account/orders/") + encoded(page.id);
    }
    QString operator()(const OrdersRoute::Package& page) const
    {
        return QStringLiteral("/account/tracking?number=") + encoded(page.number);
    }
    QString operator()(const OrdersRoute::ReturnDetail& page) const
    {
        return QStringLiteral("/account/returns/") + encoded(page.rmaNo);
    }
    QString operator()(const OrdersRoute::Tracking&) const { return QStringLiteral("/account/tracking"); }
    QString operator()(const OrdersRoute::Returns&) const { return QStringLiteral("/account/returns"); }
    QString operator()(const OrdersRoute::Reviews&) const { return QStringLiteral("/account/reviews"); }
    QString operator()(const LensRoute::Search&) const { return QStringLiteral("/pages/image-search"); }
    QString operator()(const LensRoute::Start&) const { return QStringLiteral("/pages/image-search"); }
    QString operator()(const StorePageRoute::Page& page) const { return page.path; }
};

} // namespace

StorePages::StorePages(QString webBase)
    : m_webBase(std::move(webBase))
{
}

QString StorePages::storeHost() const
{
    const QString host = QUrl(m_webBase).host();
    return host.startsWith(QLatin1String("www.")) ? host.mid(4) : host;
}

QUrl StorePages::page(SidebarItem item) const
{
    return page(QString::fromLatin1(entryOf(item).webPath));
}

QUrl StorePages::page(const Route& route) const
{
    return std::visit(
        [this]<typename RouteType>(const RouteType& value) -> QUrl {
            if constexpr (std::is_same_v<RouteType, UnknownRoute>)
                return {};
            else
                return page(std::visit(WebPath{}, value.page));
        },
        route);
}

QUrl StorePages::page(const QString& path) const
{
    // What follows the host at once would become a part of it.
    return QUrl(path.startsWith(QLatin1Char('/')) ? m_webBase + path : m_webBase + QLatin1Char('/') + path);
}

bool StorePages::mayLoad(const QUrl& url) const
{
    const QString host = url.host().toLower();
    const QString store = storeHost();
    return url.scheme() == QLatin1String("https") && url.userInfo().isEmpty() && url.port(443) == 443 &&
           !store.isEmpty() && (host == store || host == QLatin1String("www.") + store);
}

} // namespace loom
