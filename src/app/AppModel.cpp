#include "app/AppModel.h"

#include "app/WindowHost.h"
#include "base/Clock.h"
#include "base/Random.h"
#include "catalog/Department.h"
#include "catalog/StorefrontLanguage.h"

#include <QStandardPaths>

namespace loom
{

namespace
{

/// Every collection of the built-in departments, each once.
QStringList allCollections()
{
    QStringList handles;
    for (const Department& department : departments())
        handles.append(department.collections);
    handles.removeDuplicates();
    return handles;
}

/// The collections that the Explore page shows a rail of each.
const std::array exploreRails{QStringLiteral("new-in"), QStringLiteral("final-sale")};

} // namespace

AppModel::AppModel(AppConfig config, AppPlatform platform, QObject* parent)
    : QObject(parent)
    , m_config(std::move(config))
    , m_platform(std::move(platform))
    , m_folder(m_platform.dataFolder)
    , m_preferences(m_folder)
    , m_settings(m_preferences)
    , m_transport(m_platform.clock, m_platform.network)
    , m_storefrontClient(m_config.shopifyDomain, m_config.storefrontToken, m_platform.locale, m_transport,
                         m_platform.clock)
    , m_storefront(m_storefrontClient)
    , m_widget(m_config.supportBase, m_config.supportKey, m_transport, m_noSession, m_platform.random)
    , m_tracker(
          m_widget, m_platform.clock, [this] { return m_settings.sharesUsage(); }, [this] { return visitorID(); })
    , m_session(m_platform.network)
    , m_money(appLanguageFor(m_platform.locale))
    , m_market({.country = defaultCountry(m_platform.locale), .language = appLanguageFor(m_platform.locale)},
               m_storefrontClient, m_storefront, m_folder, m_preferences, m_platform.clock)
    , m_cartAPI(m_storefrontClient)
    , m_cart(m_cartAPI, m_preferences, m_platform.clock)
    , m_cartModel(m_cart, AppConfig::freeShippingThreshold, m_market, m_money, m_platform.clock)
    , m_checkout(m_widget, m_cart, m_config.supportBase,
                 {.clock = m_platform.clock,
                  .announcements = m_announcements,
                  .openExternally = m_platform.openExternally,
                  .appVersion = AppConfig::appVersion()},
                 [this] { return storefrontLanguageCode(m_market.context().language, m_platform.locale.region); })
    , m_services{.clock = m_platform.clock,
                 .random = m_platform.random,
                 .resolver = LinkResolver(StorePages(m_config.storeWebURL).storeHost()),
                 .storePages = StorePages(m_config.storeWebURL),
                 .openExternally = m_platform.openExternally,
                 .heldKeys = m_platform.heldKeys}
{
    connectStores();
}

AppModel::~AppModel() = default;

void AppModel::connectStores()
{
    connect(&m_market, &MarketStore::revisionChanged, &m_cart, &CartStore::syncBuyerCountry);
    // The platform ends a cart that was paid for; one that was only looked at may have a new address.
    connect(&m_announcements, &Announcements::posted, &m_cart, [this](Announcement announcement) {
        if (announcement != Announcement::AuthChanged)
            m_cart.refresh();
    });
    connect(&m_checkout, &CheckoutStarter::ready, this, [this](CheckoutModel* checkout) {
        if (m_windows)
            m_windows->showCheckout(*checkout);
    });
}

void AppModel::takePendingCheckout(WindowSession& session)
{
    const std::optional<CheckoutRequest> request = session.pendingCheckout();
    if (!request)
        return;
    session.setPendingCheckout({});
    m_checkout.start(*request);
}

bool AppModel::claim(const QString& key)
{
    if (m_claimed.contains(key))
        return false;
    m_claimed.insert(key);
    return true;
}

void AppModel::bootstrap()
{
    if (std::exchange(m_didBootstrap, true))
        return;
    m_market.load();
    m_cart.refresh();
    m_tracker.report(Tracker::AppOpened{});
}

QString AppModel::visitorID()
{
    if (m_preferences.value(preferences::visitorId).isEmpty())
        m_preferences.set(preferences::visitorId, m_platform.random.uuid().toString(QUuid::WithoutBraces));
    return m_preferences.value(preferences::visitorId);
}

WindowSession& AppModel::openWindow(const WindowSeed& seed)
{
    WindowSession& session = *m_sessions.emplace_back(std::make_unique<WindowSession>(m_services, seed));
    m_keyOrder.prepend(&session);
    connect(&session, &WindowSession::pendingCheckoutChanged, this, [this, &session] { takePendingCheckout(session); });
    beginFirstPage(session);
    m_windows->show(session);
    bootstrap();
    return session;
}

void AppModel::beginFirstPage(const WindowSession& session)
{
    m_begun.clear();
    const auto begin = [this](const QString& handle, auto* model) {
        m_begun.emplace_back(handle, std::unique_ptr<QObject>(model));
        model->load();
    };
    const Router& tab = *session.selected();
    const PageEntry entry = tab.page(tab.depth());
    switch (entry.kind) {
    case PageKind::Kind::Explore:
        begin(QString(), makeDepartment(nullptr, {}));
        for (const QString& handle : exploreRails)
            begin(handle, makeRail(nullptr, handle));
        break;
    case PageKind::Kind::Department:
        begin(entry.handle, makeDepartment(nullptr, entry.handle));
        break;
    case PageKind::Kind::Collection:
        begin(entry.handle, makeCollection(nullptr, entry.handle, entry.title));
        break;
    case PageKind::Kind::Product:
        begin(entry.handle, makeProduct(nullptr, entry.handle, entry.itemVariant()));
        break;
    case PageKind::Kind::Cart:
    case PageKind::Kind::StorePage:
    case PageKind::Kind::Unknown:
        break;
    }
}

template <typename Model>
Model* AppModel::takeBegun(QObject* owner, const QString& handle)
{
    for (auto begun = m_begun.begin(); owner && begun != m_begun.end(); ++begun) {
        auto* const model = qobject_cast<Model*>(begun->second.get());
        if (!model || begun->first != handle)
            continue;
        QObject* const taken = begun->second.release();
        m_begun.erase(begun);
        taken->setParent(owner);
        return model;
    }
    return nullptr;
}

void AppModel::closeWindow(WindowSession* session)
{
    m_keyOrder.removeAll(session);
    const auto found = std::ranges::find(m_sessions, session, &std::unique_ptr<WindowSession>::get);
    if (found == m_sessions.end())
        return;
    // The call may come out of the session itself.
    WindowSession* const closed = found->release();
    closed->setParent(this);
    closed->deleteLater();
    m_sessions.erase(found);
}

void AppModel::windowBecameKey(WindowSession* session)
{
    if (m_keyOrder.removeAll(session) > 0)
        m_keyOrder.prepend(session);
}

WindowSession* AppModel::keySession() const
{
    return m_keyOrder.value(0);
}

CollectionModel* AppModel::makeCollection(QObject* owner, const QString& handle, const QString& fallbackTitle)
{
    if (auto* const begun = takeBegun<CollectionModel>(owner, handle))
        return begun;
    m_tracker.report(Tracker::CollectionViewed{.handle = handle});
    return new CollectionModel(handle, fallbackTitle, m_storefront, m_market, m_money, m_platform.clock, owner);
}

CollectionModel* AppModel::makeRail(QObject* owner, const QString& handle)
{
    if (auto* const begun = takeBegun<CollectionModel>(owner, handle))
        return begun;
    return new CollectionModel(handle, {}, m_storefront, m_market, m_money, m_platform.clock, owner);
}

ProductModel* AppModel::makeProduct(QObject* owner, const QString& handle, const QVariant& item)
{
    if (auto* const begun = takeBegun<ProductModel>(owner, handle))
        return begun;
    m_tracker.report(Tracker::ProductViewed{.handle = handle});
    const auto card = item.canConvert<ProductListItem>() ? std::optional(item.value<ProductListItem>()) : std::nullopt;
    return new ProductModel(handle, card, AppConfig::freeShippingThreshold, m_storefront, m_market, m_preferences,
                            m_money, m_platform.clock, owner);
}

CollectionTilesModel* AppModel::makeDepartment(QObject* owner, const QString& id)
{
    if (auto* const begun = takeBegun<CollectionTilesModel>(owner, id))
        return begun;
    const Department* const department = findDepartment(id);
    return new CollectionTilesModel(department ? department->collections : allCollections(), m_storefront, m_market,
                                    owner);
}

BuyModel* AppModel::makeBuying(QObject* owner, ProductModel* product)
{
    auto* const buying = new BuyModel(*product, m_cart, m_platform.clock, owner);
    connect(buying, &BuyModel::checkoutWanted, this,
            [this](const QUrl& url) { m_checkout.start({.url = url, .fromCart = false}); });
    return buying;
}

QString AppModel::screenshotPath() const
{
    const QString name = m_platform.clock.now().toLocalTime().toString(QStringLiteral("yyyy-MM-dd 'at' HH.mm.ss"));
    return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) + QStringLiteral("/LOOMSTREET ") + name +
           QStringLiteral(".png");
}

AppCommands* AppModel::makeCommands(QObject* owner, WindowSession* session)
{
    return new AppCommands(*session,
                           {.openWindow = [this] { openWindow({}); },
                            .openSettings = [this] { m_windows->showSettings(); },
                            .quit =
                                [this] {
                                    Q_EMIT quitRequested();
                                }},
                           owner);
}

} // namespace loom
