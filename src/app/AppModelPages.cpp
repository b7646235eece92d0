#include "app/AppModel.h"

#include "app/WindowHost.h"
#include "catalog/Department.h"
#include "discovery/RecoSearch.h"

// The models that pages are made of.

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

/// What an owner was given before: a binding of a page asks again whenever texts change.
template <typename Model>
Model* given(const QObject* owner, const QString& name = {})
{
    return owner ? owner->findChild<Model*>(name, Qt::FindDirectChildrenOnly) : nullptr;
}

MarketChoicesModel* choices(QObject* owner, MarketChoicesModel::Kind kind, MarketStore& market)
{
    const QString name =
        kind == MarketChoicesModel::Countries ? QStringLiteral("countries") : QStringLiteral("languages");
    if (auto* const made = given<MarketChoicesModel>(owner, name))
        return made;
    auto* const model = new MarketChoicesModel(kind, market, owner);
    model->setObjectName(name);
    return model;
}

} // namespace

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

CollectionModel* AppModel::makeCollection(QObject* owner, const QString& handle, const QString& fallbackTitle)
{
    if (auto* const begun = takeBegun<CollectionModel>(owner, handle))
        return begun;
    m_tracker.report(Tracker::CollectionViewed{.handle = handle});
    return new CollectionModel(handle, fallbackTitle, m_storefront, m_market, m_money, m_platform.clock, owner);
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

HomeModel* AppModel::makeHome(QObject* owner)
{
    if (auto* const begun = takeBegun<HomeModel>(owner, {}))
        return begun;
    return new HomeModel(recoServices(), m_announcements, m_folder, owner);
}

RecoRail* AppModel::makeRecommendations(QObject* owner, const QString& kind, const QString& handle,
                                        const QString& title)
{
    const RecoAPI::Kind known = recoKindFrom(kind).value_or(RecoAPI::Kind::ForYou);
    // A rail of our own says what it is called in the language of the window.
    const bool isNamed = known == RecoAPI::Kind::Collection;
    return new RecoRail({.kind = known, .handle = handle, .title = isNamed ? title : QString(), .label = {}},
                        recoServices(), owner);
}

ProductCompanions* AppModel::makeCompanions(QObject* owner, const QString& handle)
{
    return new ProductCompanions(handle, recoServices(), m_storefront, owner);
}

BrandCounters* AppModel::makeBrandCounters(QObject* owner, const QString& vendor)
{
    return new BrandCounters(vendor, m_reco, owner);
}

ToolsModel* AppModel::makeTools(QObject* owner)
{
    return new ToolsModel(m_remoteConfig, owner);
}

RecoServices AppModel::recoServices()
{
    return {.api = m_reco,
            .market = m_market,
            .hidden = m_notInterested,
            .cart = m_cart,
            .money = m_money,
            .clock = m_platform.clock,
            .texts = m_texts};
}

CallerIdentity AppModel::callerIdentity()
{
    const std::optional<AuthSession>& session = m_auth.session();
    return {.visitorId = visitorID(),
            .customer = session ? session->customer.numericId : QString(),
            .email = m_auth.email(),
            .name = m_auth.name()};
}

QStringList AppModel::sessionViewed() const
{
    QStringList handles;
    for (const ProductListItem& item : m_recentlyViewed.items())
        handles.append(item.handle);
    return handles;
}

SearchModel* AppModel::makeSearch(QObject* owner, const QString& query)
{
    if (auto* const begun = takeBegun<SearchModel>(owner, query))
        return begun;
    auto* const search = new SearchModel(query, m_storefront, m_market, m_money, m_platform.clock, owner);
    search->setAiSource(recoSearch(m_reco, m_market, m_platform.clock));
    return search;
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
    return choices(owner, MarketChoicesModel::Countries, m_market);
}

MarketChoicesModel* AppModel::makeLanguages(QObject* owner)
{
    return choices(owner, MarketChoicesModel::Languages, m_market);
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
    if (auto* const made = given<BuyModel>(owner))
        return made;
    auto* const buying = new BuyModel(*product, m_cart, m_platform.clock, owner);
    connect(buying, &BuyModel::checkoutWanted, this,
            [this](const QUrl& url) { m_checkout.start({.url = url, .fromCart = false}); });
    connect(buying, &BuyModel::added, this,
            [this, handle = product->handle()] { m_tracker.report(Tracker::CartAdded{.handle = handle}); });
    return buying;
}

ProductAlerts* AppModel::makeProductAlerts(QObject* owner, ProductModel* product)
{
    auto* const made = given<ProductAlerts>(owner);
    return made ? made : new ProductAlerts(*product, m_alerts, owner);
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
    auto* const made = given<KeptPiecesModel>(owner);
    return made ? made : new KeptPiecesModel(m_recentlyViewed, keptServices(), owner);
}

PriceDropsModel* AppModel::makePriceDrops(QObject* owner)
{
    return new PriceDropsModel({&m_wishlist, &m_recentlyViewed}, keptServices(), owner);
}

CompareModel* AppModel::makeCompare(QObject* owner, const QStringList& handles)
{
    return new CompareModel(handles, {&m_wishlist, &m_recentlyViewed}, keptServices(), owner);
}

OrdersModel* AppModel::makeOrders(QObject* owner, const QString& tab)
{
    return new OrdersModel(tab, m_orders, m_money, m_dates, owner);
}

OrderModel* AppModel::makeOrder(QObject* owner, const QString& id)
{
    return new OrderModel(id, m_orders, m_money, m_dates, owner);
}

TrackingModel* AppModel::makeTracking(QObject* owner, const QString& number, const QString& carrier)
{
    return new TrackingModel(number, carrier, m_orders, m_dates, owner);
}

AccountRemoval* AppModel::makeAccountRemoval(QObject* owner)
{
    auto* const made = given<AccountRemoval>(owner);
    return made ? made : new AccountRemoval(m_auth, owner);
}

MiraLookModel* AppModel::makeLook(QObject* owner, const QStringList& handles)
{
    auto* const look = new MiraLookModel(handles,
                                         {.catalog = m_storefront,
                                          .sizes = m_sizeAPI,
                                          .cart = m_cart,
                                          .checkout = m_checkout,
                                          .market = m_market,
                                          .money = m_money},
                                         owner);
    connect(look, &MiraLookModel::added, this, [this](const QStringList& added) {
        for (const QString& handle : added)
            m_tracker.report(Tracker::CartAdded{.handle = handle});
    });
    return look;
}

SizeAdviceModel* AppModel::makeSizeAdvice(QObject* owner, ProductModel* product)
{
    auto* const advice = new SizeAdviceModel(*product, m_sizeAPI, m_market, owner);
    connect(&m_auth, &AuthStore::sessionChanged, advice, &SizeAdviceModel::askAgain);
    return advice;
}

NotificationsModel* AppModel::makeInbox(QObject* owner)
{
    return new NotificationsModel(m_news.account(), m_news.inbox(), m_dates, m_platform.clock, owner);
}

VoiceDevicesModel* AppModel::makeVoiceDevices(QObject* owner)
{
    return new VoiceDevicesModel(m_platform.voiceAudio, m_calls.session(), m_preferences, m_platform.clock, owner);
}

AppCommands* AppModel::makeCommands(QObject* owner, WindowSession* session)
{
    if (auto* const made = given<AppCommands>(owner))
        return made;
    return new AppCommands(*session,
                           {.openWindow = [this] { openWindow(WindowSeed()); },
                            .openSettings = [this] { m_windows->showSettings(); },
                            .quit = [this] { Q_EMIT quitRequested(); },
                            .checkForUpdates =
                                [this] {
                                    m_updater.checkByHand();
                                }},
                           owner);
}

void AppModel::showSettings(const QString& page)
{
    m_settings.setSettingsTab(page);
    m_windows->showSettings();
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
        begin(QString(), makeHome(nullptr));
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

} // namespace loom
