#pragma once

#include "account/AccountRemoval.h"
#include "account/AlertsStore.h"
#include "account/AuthStore.h"
#include "account/OrderModel.h"
#include "account/OrdersModel.h"
#include "account/OrdersStore.h"
#include "account/ProductAlerts.h"
#include "account/ProfileStore.h"
#include "account/SignInModel.h"
#include "account/TrackingModel.h"
#include "app/AppCommands.h"
#include "app/AppConfig.h"
#include "app/AppSession.h"
#include "app/AppSettings.h"
#include "app/CallDesk.h"
#include "app/ClosedTabs.h"
#include "app/NewsDesk.h"
#include "app/SavedWindows.h"
#include "app/WindowServices.h"
#include "app/WindowSession.h"
#include "base/Announcements.h"
#include "base/TextChanges.h"
#include "catalog/BrandsModel.h"
#include "catalog/CollectionModel.h"
#include "catalog/CollectionTilesModel.h"
#include "catalog/DateFormat.h"
#include "catalog/MarketChoicesModel.h"
#include "catalog/MarketStore.h"
#include "catalog/MoneyFormat.h"
#include "catalog/ProductModel.h"
#include "catalog/RecentSearches.h"
#include "catalog/SearchModel.h"
#include "catalog/StorefrontAPI.h"
#include "commerce/BuyModel.h"
#include "commerce/CartModel.h"
#include "commerce/CheckoutStarter.h"
#include "commerce/CompareModel.h"
#include "commerce/PriceDropsModel.h"
#include "commerce/RecentlyViewedStore.h"
#include "commerce/SuggestionsModel.h"
#include "commerce/WishlistStore.h"
#include "discovery/BrandCounters.h"
#include "discovery/HomeModel.h"
#include "discovery/NotInterested.h"
#include "discovery/ProductCompanions.h"
#include "discovery/RecoRail.h"
#include "discovery/RecoSaving.h"
#include "net/CallerIdentity.h"
#include "net/HttpTransport.h"
#include "net/Tracker.h"
#include "notify/NotificationsModel.h"
#include "services/CrashReporter.h"
#include "services/RemoteConfig.h"
#include "services/ToolsModel.h"
#include "services/update/AppUpdater.h"
#include "storage/ChosenSecureStore.h"
#include "storage/DataFolder.h"
#include "storage/Preferences.h"
#include "stylist/MeasurementsModel.h"
#include "stylist/MiraAPI.h"
#include "stylist/MiraChatModel.h"
#include "stylist/MiraLookModel.h"
#include "stylist/MiraSizeAPI.h"
#include "stylist/MiraWeatherStore.h"
#include "stylist/SizeAdviceModel.h"
#include "stylist/voice/VoiceDevicesModel.h"
#include "support/SupportAPI.h"
#include "support/SupportChatModel.h"

#include <QSet>

namespace loom
{

class WindowHost;

/// What the application takes from the system it runs on. Everything outlives the model.
struct AppPlatform {
    Clock& clock;
    Random& random;
    NetworkStatus& network;
    QString dataFolder;
    SystemLocale locale;
    std::function<void(const QUrl&)> openExternally;
    std::function<Qt::KeyboardModifiers()> heldKeys;
    /// Makes the system's credential store; null, or nothing to make one, where there is none.
    std::function<std::unique_ptr<SecureStore>()> makeSystemSecrets;
    LocationSource& location;
    DesktopNotifications& desktopNotifications;
    LauncherBadge& launcherBadge;
    VoiceAudio& voiceAudio;
    GlobalKey& muteKey;
    UpdatePlatform updates;
    /// Starts without what the last start left that may be in its way: neither its windows nor what the store changed
    /// of the application. Both stay for the next start.
    bool isSafeMode = false;
};

/// The root: creates every long-lived client and store once, in order, hands each what it needs, and owns the open
/// windows' sessions. The one object the pages receive. Main thread.
class AppModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(loom::AuthStore* auth READ auth CONSTANT)
    Q_PROPERTY(loom::SignInModel* signIn READ signIn CONSTANT)
    Q_PROPERTY(loom::OrdersStore* orders READ orders CONSTANT)
    Q_PROPERTY(loom::ProfileStore* profile READ profile CONSTANT)
    Q_PROPERTY(loom::AlertsStore* alerts READ alerts CONSTANT)
    Q_PROPERTY(loom::MarketStore* market READ market CONSTANT)
    Q_PROPERTY(loom::AppSettings* settings READ settings CONSTANT)
    Q_PROPERTY(loom::CartModel* cart READ cart CONSTANT)
    Q_PROPERTY(loom::CheckoutStarter* checkout READ checkout CONSTANT)
    Q_PROPERTY(loom::WishlistStore* wishlist READ wishlist CONSTANT)
    Q_PROPERTY(loom::RecentlyViewedStore* recentlyViewed READ recentlyViewed CONSTANT)
    Q_PROPERTY(loom::RemoteConfig* remoteConfig READ remoteConfig CONSTANT)
    Q_PROPERTY(loom::AppUpdater* updater READ updater CONSTANT)
    Q_PROPERTY(loom::NotInterested* notInterested READ notInterested CONSTANT)
    Q_PROPERTY(loom::MiraChatModel* mira READ mira CONSTANT)
    Q_PROPERTY(loom::MiraVoiceSession* call READ call CONSTANT)
    Q_PROPERTY(loom::MiraWeatherStore* weather READ weather CONSTANT)
    Q_PROPERTY(loom::MeasurementsModel* measurements READ measurements CONSTANT)
    Q_PROPERTY(loom::SupportChatModel* support READ support CONSTANT)
    Q_PROPERTY(loom::DesktopNotifier* notifier READ notifier CONSTANT)
    Q_PROPERTY(loom::NotificationBannerCenter* banners READ banners CONSTANT)
    Q_PROPERTY(loom::NotificationBadge* badge READ badge CONSTANT)
    Q_PROPERTY(loom::NotificationSettings* notificationSettings READ notificationSettings CONSTANT)
    Q_PROPERTY(loom::AppSession* session READ session CONSTANT)
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(QString storeWebAddress READ storeWebAddress CONSTANT)

public:
    AppModel(AppConfig config, AppPlatform platform, QObject* parent = nullptr);
    ~AppModel() override;

    [[nodiscard]] const AppConfig& config() const { return m_config; }
    [[nodiscard]] StorefrontAPI& storefront() { return m_storefront; }
    [[nodiscard]] WidgetClient& widget() { return m_auth.widget(); }
    [[nodiscard]] AuthStore* auth() { return &m_auth; }
    [[nodiscard]] SignInModel* signIn() { return &m_signIn; }
    [[nodiscard]] OrdersStore* orders() { return &m_orders; }
    [[nodiscard]] ProfileStore* profile() { return &m_profile; }
    [[nodiscard]] AlertsStore* alerts() { return &m_alerts; }
    [[nodiscard]] MiraChatModel* mira() { return &m_mira; }
    [[nodiscard]] MiraVoiceSession* call() { return &m_calls.session(); }
    [[nodiscard]] MiraWeatherStore* weather() { return &m_weather; }
    [[nodiscard]] MeasurementsModel* measurements() { return &m_measurements; }
    [[nodiscard]] SupportChatModel* support() { return &m_support; }
    [[nodiscard]] DesktopNotifier* notifier() { return &m_news.notifier(); }
    [[nodiscard]] NotificationBannerCenter* banners() { return &m_news.banners(); }
    [[nodiscard]] NotificationBadge* badge() { return &m_news.badge(); }
    [[nodiscard]] NotificationSettings* notificationSettings() { return &m_news.settings(); }
    [[nodiscard]] AppSession* session() { return &m_session; }
    [[nodiscard]] RemoteConfig* remoteConfig() { return &m_remoteConfig; }
    [[nodiscard]] AppUpdater* updater() { return &m_updater; }
    [[nodiscard]] CrashReporter& crashReporter() { return m_crashReporter; }
    [[nodiscard]] NotInterested* notInterested() { return &m_notInterested; }
    [[nodiscard]] MarketStore* market() { return &m_market; }
    [[nodiscard]] AppSettings* settings() { return &m_settings; }
    [[nodiscard]] CartModel* cart() { return &m_cartModel; }
    [[nodiscard]] CartStore& cartStore() { return m_cart; }
    [[nodiscard]] CheckoutStarter* checkout() { return &m_checkout; }
    [[nodiscard]] WishlistStore* wishlist() { return &m_wishlist; }
    [[nodiscard]] RecentlyViewedStore* recentlyViewed() { return &m_recentlyViewed; }
    [[nodiscard]] Announcements& announcements() { return m_announcements; }
    [[nodiscard]] Preferences& preferences() { return m_preferences; }
    [[nodiscard]] Tracker& tracker() { return m_tracker; }
    /// The address of the store's own site.
    [[nodiscard]] const QString& storeWebAddress() const { return m_config.storeWebURL; }
    [[nodiscard]] static QString version() { return AppConfig::appVersion(); }

    /// True for the first who asks in this process.
    [[nodiscard]] bool claim(const QString& key);

    /// The windows speak another language now.
    void retranslate();

    /// What has to be begun once per process, however many windows are opened.
    void bootstrap();
    [[nodiscard]] bool didBootstrap() const { return m_didBootstrap; }

    /// The anonymous identifier of this installation.
    [[nodiscard]] QString visitorID();

    /// Who shows windows; must be set before the first is opened, and outlive the model's use.
    void setWindowHost(WindowHost* host) { m_windows = host; }
    WindowSession& openWindow(const WindowSeed& seed);
    /// As it was saved; `state` has a tab at least.
    WindowSession& openSavedWindow(const WindowState& state);
    /// Opens what was open last, with a link in front of it, if there is one. False where there was nothing, and in
    /// safe mode.
    bool restoreWindows(const std::optional<QString>& link = {});
    /// What is open now is what the next start opens; nothing that closes from here on counts.
    void saveWindowsForNextStart() { m_savedWindows.saveAndEnd(); }
    /// The session's window is gone.
    Q_INVOKABLE void closeWindow(loom::WindowSession* session);
    /// The session's window came to the front.
    Q_INVOKABLE void windowBecameKey(loom::WindowSession* session);
    /// The window in front, or the one that was last; null when there is none.
    [[nodiscard]] WindowSession* keySession() const;
    [[nodiscard]] const std::vector<std::unique_ptr<WindowSession>>& windows() const { return m_sessions; }

    /// The models of pages; each belongs to `owner` and ends with it.
    [[nodiscard]] Q_INVOKABLE loom::CollectionModel* makeCollection(QObject* owner, const QString& handle,
                                                                    const QString& fallbackTitle);
    [[nodiscard]] Q_INVOKABLE loom::ProductModel* makeProduct(QObject* owner, const QString& handle,
                                                              const QVariant& item);
    [[nodiscard]] Q_INVOKABLE loom::SuggestionsModel* makeSuggestions(QObject* owner);
    [[nodiscard]] Q_INVOKABLE loom::MarketChoicesModel* makeCountries(QObject* owner);
    [[nodiscard]] Q_INVOKABLE loom::MarketChoicesModel* makeLanguages(QObject* owner);
    [[nodiscard]] Q_INVOKABLE loom::SearchModel* makeSearch(QObject* owner, const QString& query);
    /// The collections of a department, or with an empty id those of all departments.
    [[nodiscard]] Q_INVOKABLE loom::CollectionTilesModel* makeDepartment(QObject* owner, const QString& id);
    [[nodiscard]] Q_INVOKABLE loom::BrandsModel* makeBrands(QObject* owner);
    [[nodiscard]] Q_INVOKABLE loom::HomeModel* makeHome(QObject* owner);
    /// A page of recommendations: `kind` as links write it, `handle` of a collection where it is of one.
    [[nodiscard]] Q_INVOKABLE loom::RecoRail* makeRecommendations(QObject* owner, const QString& kind,
                                                                  const QString& handle, const QString& title);
    [[nodiscard]] Q_INVOKABLE loom::ProductCompanions* makeCompanions(QObject* owner, const QString& handle);
    [[nodiscard]] Q_INVOKABLE loom::BrandCounters* makeBrandCounters(QObject* owner, const QString& vendor);
    [[nodiscard]] Q_INVOKABLE loom::ToolsModel* makeTools(QObject* owner);
    /// The ways to buy what a product's page shows; its `product` belongs to the page too.
    [[nodiscard]] Q_INVOKABLE loom::BuyModel* makeBuying(QObject* owner, loom::ProductModel* product);
    /// What such a page offers to tell the shopper of.
    [[nodiscard]] Q_INVOKABLE loom::ProductAlerts* makeProductAlerts(QObject* owner, loom::ProductModel* product);
    /// A look of these pieces on its way into the bag.
    [[nodiscard]] Q_INVOKABLE loom::MiraLookModel* makeLook(QObject* owner, const QStringList& handles);
    /// The size for the shopper beside those of a product's page.
    [[nodiscard]] Q_INVOKABLE loom::SizeAdviceModel* makeSizeAdvice(QObject* owner, loom::ProductModel* product);
    [[nodiscard]] Q_INVOKABLE loom::KeptPiecesModel* makeWishlist(QObject* owner);
    [[nodiscard]] Q_INVOKABLE loom::KeptPiecesModel* makeRecentlyViewed(QObject* owner);
    [[nodiscard]] Q_INVOKABLE loom::PriceDropsModel* makePriceDrops(QObject* owner);
    [[nodiscard]] Q_INVOKABLE loom::CompareModel* makeCompare(QObject* owner, const QStringList& handles);
    [[nodiscard]] Q_INVOKABLE loom::AccountRemoval* makeAccountRemoval(QObject* owner);
    /// Those of a tab, as OrdersModel knows it by name.
    [[nodiscard]] Q_INVOKABLE loom::OrdersModel* makeOrders(QObject* owner, const QString& tab);
    [[nodiscard]] Q_INVOKABLE loom::OrderModel* makeOrder(QObject* owner, const QString& id);
    /// Both may be empty.
    [[nodiscard]] Q_INVOKABLE loom::TrackingModel* makeTracking(QObject* owner, const QString& number,
                                                                const QString& carrier);
    [[nodiscard]] Q_INVOKABLE loom::NotificationsModel* makeInbox(QObject* owner);
    [[nodiscard]] Q_INVOKABLE loom::VoiceDevicesModel* makeVoiceDevices(QObject* owner);
    [[nodiscard]] Q_INVOKABLE loom::AppCommands* makeCommands(QObject* owner, loom::WindowSession* session);

    /// Shows the stylist in a window of her own, and brings her back beside the page of the window in front.
    Q_INVOKABLE void showMira();
    Q_INVOKABLE void dockMira();
    /// The window in which to open what a window without pages leads to; made where there is none.
    [[nodiscard]] Q_INVOKABLE loom::WindowSession* frontSession();
    /// Brings that window forward.
    Q_INVOKABLE void showPages();
    /// Opens the settings at the page of this name.
    Q_INVOKABLE void showSettings(const QString& page);
    /// A date and time in the shopper's language and place.
    [[nodiscard]] Q_INVOKABLE QString moment(const QDateTime& date) const;
    /// Where a picture of the window taken now is to be saved.
    [[nodiscard]] Q_INVOKABLE QString screenshotPath() const;
    /// Opens the folder that a file lies in.
    Q_INVOKABLE void showFolderOf(const QString& path) const;

Q_SIGNALS:
    void quitRequested();

private:
    /// Asks for what the first page of a new window shows while the window itself is still being built; the page takes
    /// the models over.
    void beginFirstPage(const WindowSession& session);
    /// Who tells whom.
    void connectStores();
    void connectNews();
    void connectCalls();
    void connectUpdates();
    [[nodiscard]] QCoro::Task<ApiResult<std::vector<SupportReply>>> supportReplies(std::stop_token stop);
    static void openNews(WindowSession& session, const AppNotification& news);
    void takePendingCheckout(WindowSession& session);
    /// What the shopper has seen, then what they keep.
    [[nodiscard]] std::vector<ProductHit> knownPieces() const;
    WindowSession& show(std::unique_ptr<WindowSession> session);
    [[nodiscard]] std::vector<WindowState> windowStates() const;
    [[nodiscard]] RecoServices recoServices();
    [[nodiscard]] CallerIdentity callerIdentity();
    [[nodiscard]] QStringList sessionViewed() const;
    /// What the models of kept pieces need.
    [[nodiscard]] KeptPiecesModel::Services keptServices();
    template <typename Model>
    [[nodiscard]] Model* takeBegun(QObject* owner, const QString& handle);

    AppConfig m_config;
    AppPlatform m_platform;
    DataFolder m_folder;
    Preferences m_preferences;
    AppSettings m_settings;
    HttpTransport m_transport;
    Announcements m_announcements;
    ChosenSecureStore m_secrets;
    AuthStore m_auth;
    RemoteConfig m_remoteConfig;
    CrashReporter m_crashReporter;
    StorefrontClient m_storefrontClient;
    StorefrontAPI m_storefront;
    Tracker m_tracker;
    AppSession m_session;
    QSet<QString> m_claimed;
    MoneyFormat m_money;
    DateFormat m_dates;
    MarketStore m_market;
    RecentSearches m_recentSearches;
    CartAPI m_cartAPI;
    CartStore m_cart;
    CartModel m_cartModel;
    CheckoutStarter m_checkout;
    WishlistStore m_wishlist;
    RecentlyViewedStore m_recentlyViewed;
    NotInterested m_notInterested;
    TextChanges m_texts;
    RecoAPI m_reco;
    RecoSaving m_recoSaving;
    SignInModel m_signIn;
    OrdersStore m_orders;
    ProfileStore m_profile;
    AlertsStore m_alerts;
    MiraAPI m_miraAPI;
    MiraSizeAPI m_sizeAPI;
    MiraWeatherStore m_weather;
    MiraChatModel m_mira;
    MeasurementsModel m_measurements;
    SupportAPI m_supportAPI;
    SupportChatModel m_support;
    NewsDesk m_news;
    CallDesk m_calls;
    AppUpdater m_updater;
    bool m_didBootstrap = false;
    ClosedTabs m_closedTabs;
    WindowServices m_services;
    WindowHost* m_windows = nullptr;
    /// Models of first pages that no page has taken over yet, by what they are of.
    std::vector<std::pair<QString, std::unique_ptr<QObject>>> m_begun;
    std::vector<std::unique_ptr<WindowSession>> m_sessions;
    QList<WindowSession*> m_keyOrder; ///< the one in front first
    SavedWindows m_savedWindows;
};

} // namespace loom
