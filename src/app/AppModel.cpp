#include "app/AppModel.h"

#include "account/RemovalGroups.h"
#include "app/WindowHost.h"
#include "base/Clock.h"
#include "base/Random.h"
#include "catalog/StorefrontLanguage.h"
#include "storage/FileSecureStore.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace loom
{

namespace
{

/// How long a checkout waits for the word on who is signed in.
constexpr std::chrono::seconds sessionWait{5};

/// Of the release that runs, or else of what was built.
qint64 buildOf(const AppPlatform& platform)
{
    return platform.updates.folder ? platform.updates.folder->build : AppConfig::appBuild();
}

} // namespace

AppModel::AppModel(AppConfig config, AppPlatform platform, QObject* parent)
    : QObject(parent)
    , m_config(std::move(config))
    , m_platform(std::move(platform))
    , m_folder(m_platform.dataFolder)
    , m_preferences(m_folder)
    , m_settings(m_preferences)
    , m_transport(m_platform.clock, m_platform.network)
    , m_secrets(m_preferences, m_platform.makeSystemSecrets ? m_platform.makeSystemSecrets() : nullptr,
                std::make_unique<FileSecureStore>(m_platform.dataFolder))
    , m_auth({.transport = m_transport,
              .secrets = m_secrets,
              .preferences = m_preferences,
              .folder = m_folder,
              .clock = m_platform.clock,
              .random = m_platform.random,
              .announcements = m_announcements,
              .openExternally = m_platform.openExternally,
              .supportBase = m_config.supportBase,
              .supportKey = m_config.supportKey})
    , m_remoteConfig(m_auth.widget(), m_folder, m_platform.clock,
                     m_platform.isSafeMode ? RemoteConfig::Source::BuiltIn : RemoteConfig::Source::Store)
    , m_crashReporter(m_auth.widget(), m_preferences, m_folder, m_remoteConfig, m_platform.clock,
                      {.version = AppConfig::appVersion(),
                       .build = buildOf(m_platform),
                       .visitorID = [this] { return visitorID(); },
                       .hasConsent = [this] { return m_settings.sharesUsage(); },
                       .isOffline =
                           [this] {
                               return m_session.isOffline();
                           }})
    , m_storefrontClient(m_config.shopifyDomain, m_config.storefrontToken, m_platform.locale, m_transport,
                         m_platform.clock)
    , m_storefront(m_storefrontClient)
    , m_tracker(
          m_auth.widget(), m_platform.clock, [this] { return m_settings.sharesUsage(); },
          [this] { return visitorID(); })
    , m_session(m_platform.network)
    , m_money(appLanguageFor(m_platform.locale))
    , m_dates(appLanguageFor(m_platform.locale))
    , m_market({.country = defaultCountry(m_platform.locale), .language = appLanguageFor(m_platform.locale)},
               m_storefrontClient, m_storefront, m_folder, m_preferences, m_platform.clock)
    , m_recentSearches(m_preferences)
    , m_cartAPI(m_storefrontClient)
    , m_cart(m_cartAPI, m_preferences, m_platform.clock)
    , m_cartModel(m_cart, AppConfig::freeShippingThreshold, m_market, m_money, m_platform.clock)
    , m_checkout(
          m_auth.widget(), m_cart, m_config.supportBase,
          {.clock = m_platform.clock,
           .announcements = m_announcements,
           .openExternally = m_platform.openExternally,
           .appVersion = AppConfig::appVersion()},
          {.locale = [this] { return storefrontLanguageCode(m_market.context().language, m_platform.locale.region); },
           .sessionKnown = [this](std::stop_token stop) { return m_auth.known(sessionWait, stop); },
           .mayHandOver = [this] { return m_remoteConfig.isEnabled(Feature::SignedCheckout); },
           .appToken =
               [this] {
                   return m_auth.appToken();
               }})
    , m_wishlist(m_folder, m_preferences, m_auth.widget(), m_auth, m_platform.clock)
    , m_recentlyViewed(m_folder, m_platform.clock)
    , m_notInterested(m_folder)
    , m_reco(
          m_auth.widget(), m_market, [this] { return callerIdentity(); }, [this] { return sessionViewed(); })
    , m_recoSaving(m_wishlist, m_storefront)
    , m_signIn(m_auth, m_platform.clock)
    , m_orders(m_auth, m_announcements, m_auth.widget(), m_folder, m_platform.clock)
    , m_profile(m_auth, m_announcements, m_auth.widget(), m_folder, m_market, m_platform.clock)
    , m_alerts(m_auth, m_announcements, m_auth.widget(), m_money)
    , m_miraAPI(m_auth.widget(), [this] { return callerIdentity(); })
    , m_sizeAPI(m_auth.widget(), [this] { return callerIdentity(); })
    , m_weather({.widget = m_auth.widget(),
                 .location = m_platform.location,
                 .folder = m_folder,
                 .preferences = m_preferences,
                 .clock = m_platform.clock})
    , m_mira({.api = m_miraAPI,
              .storefront = m_storefront,
              .market = m_market,
              .money = m_money,
              .dates = m_dates,
              .cart = m_cart,
              .wishlist = m_wishlist,
              .weather = m_weather,
              .announcements = m_announcements,
              .folder = m_folder,
              .preferences = m_preferences,
              .clock = m_platform.clock,
              .random = m_platform.random})
    , m_measurements(m_folder, m_preferences)
    , m_supportAPI(m_auth.widget(), [this] { return callerIdentity(); })
    , m_support({.api = m_supportAPI,
                 .dates = m_dates,
                 .folder = m_folder,
                 .clock = m_platform.clock,
                 .random = m_platform.random,
                 .language = [this] { return appLanguageCode(m_market.context().language); },
                 .openExternally = m_platform.openExternally})
    , m_news({.auth = m_auth,
              .announcements = m_announcements,
              .folder = m_folder,
              .preferences = m_preferences,
              .clock = m_platform.clock,
              .random = m_platform.random,
              .network = m_platform.network,
              .desktop = m_platform.desktopNotifications,
              .launcher = m_platform.launcherBadge,
              .support = {.replies = [this](std::stop_token stop) { return supportReplies(stop); },
                          .isOnScreen =
                              [this] {
                                  return m_support.isOnScreen();
                              }},
              .hasOpenWindow =
                  [this] {
                      return !m_sessions.empty();
                  }})
    , m_calls({.audio = m_platform.voiceAudio,
               .muteKey = m_platform.muteKey,
               .auth = m_auth,
               .orders = m_orders,
               .cart = m_cart,
               .wishlist = m_wishlist,
               .chat = m_mira,
               .weather = m_weather,
               .features = m_remoteConfig,
               .storefront = m_storefront,
               .market = m_market,
               .money = m_money,
               .preferences = m_preferences,
               .clock = m_platform.clock,
               .locale = m_platform.locale,
               .supportBase = m_config.supportBase,
               .storeHost = StorePages(m_config.storeWebURL).storeHost(),
               .visitorID =
                   [this] {
                       return visitorID();
                   }})
    , m_updater({.widget = m_auth.widget(),
                 .preferences = m_preferences,
                 .features = m_remoteConfig,
                 .network = m_platform.network,
                 .clock = m_platform.clock,
                 .random = m_platform.random},
                {.version = AppConfig::appVersion(),
                 .build = buildOf(m_platform),
                 .publicKey = m_config.updateKey.toLatin1(),
                 .languageCode =
                     [this] {
                         return appLanguageCode(m_market.context().language);
                     }},
                m_platform.updates)
    , m_closedTabs(m_folder)
    , m_services{.clock = m_platform.clock,
                 .random = m_platform.random,
                 .preferences = m_preferences,
                 .closedTabs = m_closedTabs,
                 .features = m_remoteConfig,
                 .resolver = LinkResolver(StorePages(m_config.storeWebURL).storeHost()),
                 .storePages = StorePages(m_config.storeWebURL),
                 .openExternally = m_platform.openExternally,
                 .heldKeys = m_platform.heldKeys}
    , m_savedWindows(m_folder, m_platform.clock, [this] { return windowStates(); })
{
    connectStores();
    connectNews();
    connectCalls();
    connectUpdates();
    if (m_platform.isSafeMode)
        m_savedWindows.end();
    m_wishlist.load();
    m_recentlyViewed.load();
    m_auth.load();
}

AppModel::~AppModel() = default;

void AppModel::connectStores()
{
    connect(&m_market, &MarketStore::countryChanged, &m_cart, &CartStore::syncBuyerCountry);
    connect(&m_market, &MarketStore::languageChanged, &m_cart, &CartStore::refresh); // what its pieces are called
    // What grew old while nobody looked is asked for again when somebody does.
    connect(&m_session, &AppSession::isActiveChanged, this, [this] {
        m_crashReporter.setActive(m_session.isActive());
        if (!m_session.isActive() || !m_didBootstrap)
            return;
        m_market.refreshRate();
        m_remoteConfig.becameActive();
        if (m_mira.isOpen())
            m_weather.refresh();
        m_news.notifier().check();
    });
    connect(&m_session, &AppSession::isOfflineChanged, &m_market, [this] {
        if (m_session.isOffline())
            return;
        if (m_market.countriesFailure())
            m_market.refreshCountries();
        m_recoSaving.complete();
    });
    const auto follow = [this] {
        const AppLanguage language = m_market.context().language;
        m_money.setLanguage(language);
        m_dates.setLanguage(language);
        m_remoteConfig.setLanguage(language);
    };
    follow();
    connect(&m_market, &MarketStore::languageChanged, this, follow);
    // Later: by then the texts are looked up anew.
    connect(&m_remoteConfig, &RemoteConfig::copyChanged, &m_texts, &TextChanges::changed, Qt::QueuedConnection);
    // By then it is known whether the store wants reports, and updates by themselves.
    connect(&m_remoteConfig, &RemoteConfig::fetchingChanged, this, [this] {
        if (m_remoteConfig.fetching())
            return;
        m_crashReporter.sendWaiting();
        m_updater.beginChecking();
    });
    connect(&m_remoteConfig, &RemoteConfig::featuresChanged, this, [this] {
        for (const auto& session : m_sessions)
            session->resolvePagesAgain();
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
    connect(&m_auth, &AuthStore::filesAboutToGo, this, [this](const QStringList& names) {
        for (KeptPieces* const kept : std::initializer_list<KeptPieces*>{&m_wishlist, &m_recentlyViewed}) {
            if (names.contains(kept->fileName()))
                kept->forget();
        }
        m_mira.forget(names);
        m_support.forget(names);
        // Who signs in takes along what they had begun; who leaves leaves nothing of it.
        if (names.contains(RemovalGroups::account().first())) {
            m_mira.forget({QLatin1String(MiraDraft::fileName)});
            m_measurements.forget();
            m_calls.session().forget();
        }
        // What was recommended to a customer is nobody else's affair.
        if (names.contains(RemovalGroups::account().first()))
            m_folder.remove(HomeModel::snapshot);
    });
    connect(&m_auth, &AuthStore::sessionChanged, this, [this] {
        if (!m_auth.isSignedIn())
            return;
        for (const auto& session : m_sessions)
            session->setSignInPresented(false);
    });
    // Of whoever signs in later there is an announcement; not of a session that was kept.
    connect(&m_auth, &AuthStore::sessionChanged, this, [this] { m_mira.followSession(); }, Qt::SingleShotConnection);
    // Back from the browser: to where it began.
    connect(&m_auth, &AuthStore::webAuthFinished, this, [this] {
        if (m_windows && keySession())
            m_windows->raise(*keySession());
    });
    connect(&m_checkout, &CheckoutStarter::opened, this, [this] { m_tracker.report(Tracker::CheckoutOpened{}); });
    connect(&m_checkout, &CheckoutStarter::ready, this, [this](CheckoutModel* checkout) {
        connect(checkout, &CheckoutModel::orderPlaced, &m_news,
                [this](const QString& number) { m_news.notifier().deliverOrderPlaced(number); });
        if (m_windows)
            m_windows->showCheckout(*checkout);
    });
}

void AppModel::connectNews()
{
    connect(&m_support, &SupportChatModel::stateChanged, &m_news, [this] {
        if (m_support.isOnScreen())
            m_news.notifier().supportSeen();
    });
    connect(&m_news.banners(), &NotificationBannerCenter::opened, this,
            [this](const AppNotification& news, int window) {
                if (auto* const session = qobject_cast<WindowSession*>(m_news.banners().hostOf(window)))
                    openNews(*session, news);
            });
    connect(&m_news.notifier(), &DesktopNotifier::opened, this, [this](const AppNotification& news) {
        WindowSession& session = *frontSession();
        m_windows->raise(session);
        openNews(session, news);
    });
    connect(&m_news.notifier(), &DesktopNotifier::settingsRequested, this,
            [this] { showSettings(QStringLiteral("notifications")); });
}

void AppModel::connectCalls()
{
    MiraVoiceSession& call = m_calls.session();
    connect(&call, &MiraVoiceSession::windowRequested, this, [this] { m_windows->showCall(); });
    connect(&call, &MiraVoiceSession::chatRequested, this, &AppModel::dockMira);
    connect(&call, &MiraVoiceSession::opening, this, [this](const MiraVoiceDestination& destination) {
        WindowSession& session = *frontSession();
        Router& tab = *session.selected();
        if (const auto* const item = std::get_if<SidebarItem>(&destination.place))
            tab.select(*item);
        else
            tab.push(std::get<Route>(destination.place));
        m_windows->raise(session); // the shopper may speak from behind other windows
        if (m_calls.session().isWindowShown())
            m_windows->showCall();
    });
}

void AppModel::connectUpdates()
{
    connect(&m_updater, &AppUpdater::quitRequested, this, &AppModel::quitRequested);
    connect(&m_updater, &AppUpdater::terminateReplied, this, &AppModel::quitRequested);
    connect(&m_updater, &AppUpdater::updateFailed, this, [this] { m_news.notifier().deliverUpdateFailed(); });
}

QCoro::Task<ApiResult<std::vector<SupportReply>>> AppModel::supportReplies(std::stop_token stop)
{
    const ApiResult<std::vector<SupportMessage>> messages = co_await m_support.newReplies(stop);
    if (!messages)
        co_return Unexpected(messages.error());
    std::vector<SupportReply> replies;
    for (const SupportMessage& message : *messages)
        replies.push_back({.messageID = message.id, .text = message.body, .date = message.createdAt});
    co_return replies;
}

void AppModel::retranslate()
{
    m_mira.thread()->retranslate();
    m_support.retranslate();
    m_news.settings().retranslate();
    m_calls.session().retranslate();
    m_updater.retranslate();
    for (const auto& session : m_sessions)
        session->retranslate();
}

void AppModel::openNews(WindowSession& session, const AppNotification& news)
{
    if (news.isAboutSupport())
        session.setSupportOpen(true);
    else if (news.isAboutUpdate())
        session.setUpdateOpen(true);
    else if (!news.link.isEmpty())
        session.selected()->openNotice(news.link);
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
    m_remoteConfig.start();
    m_news.notifier().start();
    m_updater.start();
    if (m_platform.isSafeMode)
        m_updater.beginChecking(); // the store has no say, and is not asked
    m_tracker.report(Tracker::AppOpened{});
}

QString AppModel::visitorID()
{
    if (m_preferences.value(preferences::visitorId).isEmpty())
        m_preferences.set(preferences::visitorId, m_platform.random.uuid().toString(QUuid::WithoutBraces));
    return m_preferences.value(preferences::visitorId);
}

QString AppModel::moment(const QDateTime& date) const
{
    return m_dates.moment(date);
}

QString AppModel::screenshotPath() const
{
    const QString name = m_platform.clock.now().toLocalTime().toString(QStringLiteral("yyyy-MM-dd 'at' HH.mm.ss"));
    return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) + QStringLiteral("/LOOMSTREET ") + name +
           QStringLiteral(".png");
}

void AppModel::showFolderOf(const QString& path) const
{
    m_platform.openExternally(QUrl::fromLocalFile(QFileInfo(path).path()));
}

} // namespace loom
