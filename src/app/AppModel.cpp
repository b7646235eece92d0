#include "app/AppModel.h"

#include "app/WindowHost.h"
#include "base/Clock.h"
#include "base/Random.h"
#include "catalog/Department.h"
#include "catalog/StorefrontLanguage.h"

#include <QFileInfo>
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
    , m_recentSearches(m_preferences)
    , m_cartAPI(m_storefrontClient)
    , m_cart(m_cartAPI, m_preferences, m_platform.clock)
    , m_cartModel(m_cart, AppConfig::freeShippingThreshold, m_market, m_money, m_platform.clock)
    , m_checkout(m_widget, m_cart, m_config.supportBase,
                 {.clock = m_platform.clock,
                  .announcements = m_announcements,
                  .openExternally = m_platform.openExternally,
                  .appVersion = AppConfig::appVersion()},
                 [this] { return storefrontLanguageCode(m_market.context().language, m_platform.locale.region); })
    , m_wishlist(m_folder, m_preferences, m_widget, m_noSession, m_platform.clock)
    , m_recentlyViewed(m_folder, m_platform.clock)
    , m_closedTabs(m_folder)
    , m_services{.clock = m_platform.clock,
                 .random = m_platform.random,
                 .preferences = m_preferences,
                 .closedTabs = m_closedTabs,
                 .resolver = LinkResolver(StorePages(m_config.storeWebURL).storeHost()),
                 .storePages = StorePages(m_config.storeWebURL),
                 .openExternally = m_platform.openExternally,
                 .heldKeys = m_platform.heldKeys}
    , m_savedWindows(m_folder, m_platform.clock, [this] { return windowStates(); })
{
    connectStores();
    m_wishlist.load();
    m_recentlyViewed.load();
}

AppModel::~AppModel() = default;

void AppModel::connectStores()
{
    connect(&m_market, &MarketStore::revisionChanged, &m_cart, &CartStore::syncBuyerCountry);
    // A rate that grew old while nobody looked is measured again when somebody does.
    connect(&m_session, &AppSession::isActiveChanged, &m_market, [this] {
        if (m_session.isActive() && m_didBootstrap)
            m_market.refreshRate();
    });
    connect(&m_session, &AppSession::isOfflineChanged, &m_market, [this] {
        if (!m_session.isOffline() && m_market.countriesFailure())
            m_market.refreshCountries();
    });
    // The platform ends a cart that was paid for; one that was only looked at may have a new address.
    connect(&m_announcements, &Announcements::posted, &m_cart, [this](Announcement announcement) {
        if (announcement != Announcement::AuthChanged)
            m_cart.refresh();
    });
    connect(&m_announcements, &Announcements::posted, this, [this](Announcement announcement) {
        if (announcement == Announcement::CheckoutCompleted)
            m_tracker.report(Tracker::OrderPlaced{});
    });
    connect(&m_checkout, &CheckoutStarter::opened, this, [this] { m_tracker.report(Tracker::CheckoutOpened{}); });
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
    m_begun.clear();
    return show(std::make_unique<WindowSession>(m_services, seed));
}

WindowSession& AppModel::openSavedWindow(const WindowState& state)
{
    m_begun.clear();
    return show(WindowSession::restored(m_services, state));
}

bool AppModel::restoreWindows(const std::optional<QString>& link)
{
    const std::vector<WindowState> windows = m_savedWindows.load();
    m_begun.clear();
    // The one that was in front comes last, and so to the front.
    for (const WindowState& window : windows) {
        auto session = WindowSession::restored(m_services, window);
        // Before anything is asked for: what the link lies in front of need not be loaded.
        if (link && &window == &windows.back())
            session->openLink(*link);
        show(std::move(session));
    }
    return !windows.empty();
}

std::vector<WindowState> AppModel::windowStates() const
{
    std::vector<WindowState> states;
    for (auto session = m_keyOrder.rbegin(); session != m_keyOrder.rend(); ++session)
        states.push_back((*session)->state());
    return states;
}

WindowSession& AppModel::show(std::unique_ptr<WindowSession> opened)
{
    WindowSession& session = *m_sessions.emplace_back(std::move(opened));
    m_keyOrder.prepend(&session);
    connect(&session, &WindowSession::stateChanged, this, [this] { m_savedWindows.noteChange(); });
    connect(&session, &WindowSession::tabTornOff, this, [this, &session](const TabState& tab) {
        openSavedWindow(WindowState{.tabs = {tab}, .size = session.windowSize()});
    });
    m_savedWindows.noteChange();
    connect(&session, &WindowSession::pendingCheckoutChanged, this, [this, &session] { takePendingCheckout(session); });
    beginFirstPage(session);
    m_windows->show(session);
    bootstrap();
    return session;
}

void AppModel::beginFirstPage(const WindowSession& session)
{
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
    case PageKind::Kind::Search:
        begin(entry.handle, makeSearch(nullptr, entry.handle));
        break;
    case PageKind::Kind::Product:
        begin(entry.handle, makeProduct(nullptr, entry.handle, entry.itemVariant()));
        break;
    default:
        break; // made of what is on this machine, or seldom first
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
    const auto found = std::ranges::find(m_sessions, session, &std::unique_ptr<WindowSession>::get);
    if (found == m_sessions.end())
        return;
    // The tabs of the last window come back with it.
    if (m_sessions.size() == 1) {
        m_savedWindows.save();
    } else if (!m_savedWindows.hasEnded()) {
        for (const TabState& tab : session->state().tabs)
            m_closedTabs.add(tab);
        m_savedWindows.noteChange();
    }
    // The call may come out of the session itself.
    m_keyOrder.removeAll(session);
    WindowSession* const closed = found->release();
    closed->setParent(this);
    closed->deleteLater();
    m_sessions.erase(found);
}

void AppModel::windowBecameKey(WindowSession* session)
{
    if (m_keyOrder.removeAll(session) == 0)
        return;
    m_keyOrder.prepend(session);
    m_savedWindows.noteChange();
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
    auto* const product = new ProductModel(handle, card, AppConfig::freeShippingThreshold, m_storefront, m_market,
                                           m_preferences, m_money, m_platform.clock, owner);
    // Opened once, seen once: at the price that was shown first.
    connect(product, &ProductModel::productChanged, &m_recentlyViewed, [this, product, isSeen = false]() mutable {
        if (product->product() && !std::exchange(isSeen, true))
            m_recentlyViewed.record(product->product()->item);
    });
    return product;
}

SearchModel* AppModel::makeSearch(QObject* owner, const QString& query)
{
    if (auto* const begun = takeBegun<SearchModel>(owner, query))
        return begun;
    return new SearchModel(query, m_storefront, m_market, m_money, m_platform.clock, owner);
}

SuggestionsModel* AppModel::makeSuggestions(QObject* owner)
{
    return new SuggestionsModel(
        m_storefront, m_market, m_recentSearches, [this] { return knownPieces(); }, m_platform.clock, owner);
}

std::vector<ProductHit> AppModel::knownPieces() const
{
    std::vector<ProductHit> pieces;
    pieces.reserve(m_recentlyViewed.items().size() + m_wishlist.items().size());
    for (const KeptPieces* const kept : std::initializer_list<const KeptPieces*>{&m_recentlyViewed, &m_wishlist}) {
        for (const ProductListItem& item : kept->items())
            pieces.push_back({.id = item.id,
                              .handle = item.handle,
                              .title = item.title,
                              .vendor = item.vendor,
                              .imageURL = item.imageURL});
    }
    return pieces;
}

MarketChoicesModel* AppModel::makeCountries(QObject* owner)
{
    return new MarketChoicesModel(MarketChoicesModel::Countries, m_market, owner);
}

MarketChoicesModel* AppModel::makeLanguages(QObject* owner)
{
    return new MarketChoicesModel(MarketChoicesModel::Languages, m_market, owner);
}

CollectionTilesModel* AppModel::makeDepartment(QObject* owner, const QString& id)
{
    if (id == QLatin1String("women"))
        m_market.setGender(ShopGender::Women);
    else if (id == QLatin1String("men"))
        m_market.setGender(ShopGender::Men);
    if (auto* const begun = takeBegun<CollectionTilesModel>(owner, id))
        return begun;
    const Department* const department = findDepartment(id);
    return new CollectionTilesModel(department ? department->collections : allCollections(), m_storefront, m_market,
                                    owner);
}

BrandsModel* AppModel::makeBrands(QObject* owner)
{
    return new BrandsModel(m_storefront, m_market, m_folder, m_platform.clock, owner);
}

BuyModel* AppModel::makeBuying(QObject* owner, ProductModel* product)
{
    auto* const buying = new BuyModel(*product, m_cart, m_platform.clock, owner);
    connect(buying, &BuyModel::checkoutWanted, this,
            [this](const QUrl& url) { m_checkout.start({.url = url, .fromCart = false}); });
    connect(buying, &BuyModel::added, this,
            [this, handle = product->handle()] { m_tracker.report(Tracker::CartAdded{.handle = handle}); });
    return buying;
}

QString AppModel::screenshotPath() const
{
    const QString name = m_platform.clock.now().toLocalTime().toString(QStringLiteral("yyyy-MM-dd 'at' HH.mm.ss"));
    return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) + QStringLiteral("/LOOMSTREET ") + name +
           QStringLiteral(".png");
}

KeptPiecesModel::Services AppModel::keptServices()
{
    return {.api = m_storefront, .market = m_market, .money = m_money, .clock = m_platform.clock};
}

KeptPiecesModel* AppModel::makeWishlist(QObject* owner)
{
    return new KeptPiecesModel(m_wishlist, keptServices(), owner);
}

KeptPiecesModel* AppModel::makeRecentlyViewed(QObject* owner)
{
    return new KeptPiecesModel(m_recentlyViewed, keptServices(), owner);
}

PriceDropsModel* AppModel::makePriceDrops(QObject* owner)
{
    return new PriceDropsModel({&m_wishlist, &m_recentlyViewed}, keptServices(), owner);
}

CompareModel* AppModel::makeCompare(QObject* owner, const QStringList& handles)
{
    return new CompareModel(handles, {&m_wishlist, &m_recentlyViewed}, keptServices(), owner);
}

void AppModel::showFolderOf(const QString& path) const
{
    m_platform.openExternally(QUrl::fromLocalFile(QFileInfo(path).path()));
}

AppCommands* AppModel::makeCommands(QObject* owner, WindowSession* session)
{
    return new AppCommands(*session,
                           {.openWindow = [this] { openWindow(WindowSeed()); },
                            .openSettings = [this] { m_windows->showSettings(); },
                            .quit =
                                [this] {
                                    Q_EMIT quitRequested();
                                }},
                           owner);
}

} // namespace loom
