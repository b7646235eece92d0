#pragma once

#include "app/AppModel.h"
#include "app/SystemAppearance.h"
#include "catalog/FilterValuesModel.h"

#include <QtQml/qqmlregistration.h>

// Declares to pages the types they receive from the application model. None of them is made in QML. Written out,
// because moc expands no macro that holds Q_GADGET.

struct AccountContentForQml {
    Q_GADGET
    QML_FOREIGN(loom::AccountContent)
    QML_NAMED_ELEMENT(AccountContent)
    QML_UNCREATABLE("the kinds of it are made by the application model")
};

struct AccountRemovalForQml {
    Q_GADGET
    QML_FOREIGN(loom::AccountRemoval)
    QML_NAMED_ELEMENT(AccountRemoval)
    QML_UNCREATABLE("made by the application model")
};

struct AlertsModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::AlertsModel)
    QML_NAMED_ELEMENT(AlertsModel)
    QML_UNCREATABLE("made by the alerts")
};

struct AlertsStoreForQml {
    Q_GADGET
    QML_FOREIGN(loom::AlertsStore)
    QML_NAMED_ELEMENT(AlertsStore)
    QML_UNCREATABLE("made by the application model")
};

struct AppModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::AppModel)
    QML_NAMED_ELEMENT(AppModel)
    QML_UNCREATABLE("made by the application")
};

struct AppCommandsForQml {
    Q_GADGET
    QML_FOREIGN(loom::AppCommands)
    QML_NAMED_ELEMENT(AppCommands)
    QML_UNCREATABLE("made by the application model")
};

namespace AppCommandForQml
{
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(loom::AppCommand)
QML_NAMED_ELEMENT(AppCommand)
} // namespace AppCommandForQml

struct AppSessionForQml {
    Q_GADGET
    QML_FOREIGN(loom::AppSession)
    QML_NAMED_ELEMENT(AppSession)
    QML_UNCREATABLE("made by the application model")
};

struct AppSettingsForQml {
    Q_GADGET
    QML_FOREIGN(loom::AppSettings)
    QML_NAMED_ELEMENT(AppSettings)
    QML_UNCREATABLE("made by the application model")
};

struct AuthStoreForQml {
    Q_GADGET
    QML_FOREIGN(loom::AuthStore)
    QML_NAMED_ELEMENT(AuthStore)
    QML_UNCREATABLE("made by the application model")
};

struct BrandCountersForQml {
    Q_GADGET
    QML_FOREIGN(loom::BrandCounters)
    QML_NAMED_ELEMENT(BrandCounters)
    QML_UNCREATABLE("made by the application model")
};

struct HomeModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::HomeModel)
    QML_NAMED_ELEMENT(HomeModel)
    QML_UNCREATABLE("made by the application model")
};

struct NotInterestedForQml {
    Q_GADGET
    QML_FOREIGN(loom::NotInterested)
    QML_NAMED_ELEMENT(NotInterested)
    QML_UNCREATABLE("made by the application model")
};

struct ProductCompanionsForQml {
    Q_GADGET
    QML_FOREIGN(loom::ProductCompanions)
    QML_NAMED_ELEMENT(ProductCompanions)
    QML_UNCREATABLE("made by the application model")
};

struct RecoCardsForQml {
    Q_GADGET
    QML_FOREIGN(loom::RecoCards)
    QML_NAMED_ELEMENT(RecoCards)
    QML_UNCREATABLE("made by the application model")
};

struct RecoRailForQml {
    Q_GADGET
    QML_FOREIGN(loom::RecoRail)
    QML_NAMED_ELEMENT(RecoRail)
    QML_UNCREATABLE("made by the application model")
};

struct RemoteConfigForQml {
    Q_GADGET
    QML_FOREIGN(loom::RemoteConfig)
    QML_NAMED_ELEMENT(RemoteConfig)
    QML_UNCREATABLE("made by the application model")
};

struct ToolsModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::ToolsModel)
    QML_NAMED_ELEMENT(ToolsModel)
    QML_UNCREATABLE("made by the application model")
};

struct BrandsModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::BrandsModel)
    QML_NAMED_ELEMENT(BrandsModel)
    QML_UNCREATABLE("made by the application model")
};

struct BuyModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::BuyModel)
    QML_NAMED_ELEMENT(BuyModel)
    QML_UNCREATABLE("made by the application model")
};

struct CartModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::CartModel)
    QML_NAMED_ELEMENT(CartModel)
    QML_UNCREATABLE("made by the application model")
};

struct CheckoutModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::CheckoutModel)
    QML_NAMED_ELEMENT(CheckoutModel)
    QML_UNCREATABLE("made by the application model")
};

struct CheckoutStarterForQml {
    Q_GADGET
    QML_FOREIGN(loom::CheckoutStarter)
    QML_NAMED_ELEMENT(CheckoutStarter)
    QML_UNCREATABLE("made by the application model")
};

struct CollectionModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::CollectionModel)
    QML_NAMED_ELEMENT(CollectionModel)
    QML_UNCREATABLE("made by the application model")
};

struct CollectionTilesModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::CollectionTilesModel)
    QML_NAMED_ELEMENT(CollectionTilesModel)
    QML_UNCREATABLE("made by the application model")
};

struct CompareModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::CompareModel)
    QML_NAMED_ELEMENT(CompareModel)
    QML_UNCREATABLE("made by the application model")
};

struct FilterModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::FilterModel)
    QML_NAMED_ELEMENT(FilterModel)
    QML_UNCREATABLE("made by the model of a page")
};

struct FilterValuesModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::FilterValuesModel)
    QML_NAMED_ELEMENT(FilterValuesModel)
    QML_UNCREATABLE("made by the model of a page")
};

struct MarketChoicesModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::MarketChoicesModel)
    QML_NAMED_ELEMENT(MarketChoicesModel)
    QML_UNCREATABLE("made by the application model")
};

struct KeptPiecesForQml {
    Q_GADGET
    QML_FOREIGN(loom::KeptPieces)
    QML_NAMED_ELEMENT(KeptPieces)
    QML_UNCREATABLE("made by the application model")
};

struct KeptPiecesModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::KeptPiecesModel)
    QML_NAMED_ELEMENT(KeptPiecesModel)
    QML_UNCREATABLE("made by the application model")
};

struct MarketStoreForQml {
    Q_GADGET
    QML_FOREIGN(loom::MarketStore)
    QML_NAMED_ELEMENT(MarketStore)
    QML_UNCREATABLE("made by the application model")
};

struct NavigationPathForQml {
    Q_GADGET
    QML_FOREIGN(loom::NavigationPath)
    QML_NAMED_ELEMENT(NavigationPath)
    QML_UNCREATABLE("made by the router")
};

namespace OpenModeForQml
{
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(loom::OpenModes)
QML_NAMED_ELEMENT(OpenModes)
} // namespace OpenModeForQml

struct ProductAlertsForQml {
    Q_GADGET
    QML_FOREIGN(loom::ProductAlerts)
    QML_NAMED_ELEMENT(ProductAlerts)
    QML_UNCREATABLE("made by the application model")
};

struct ProductPreviewForQml {
    Q_GADGET
    QML_FOREIGN(loom::ProductPreview)
    QML_VALUE_TYPE(productPreview)
};

struct OrderModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::OrderModel)
    QML_NAMED_ELEMENT(OrderModel)
    QML_UNCREATABLE("made by the application model")
};

struct OrdersModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::OrdersModel)
    QML_NAMED_ELEMENT(OrdersModel)
    QML_UNCREATABLE("made by the application model")
};

struct OrdersStoreForQml {
    Q_GADGET
    QML_FOREIGN(loom::OrdersStore)
    QML_NAMED_ELEMENT(OrdersStore)
    QML_UNCREATABLE("made by the application model")
};

namespace PageKindForQml
{
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(loom::PageKind)
QML_NAMED_ELEMENT(PageKind)
} // namespace PageKindForQml

struct PageEntryForQml {
    Q_GADGET
    QML_FOREIGN(loom::PageEntry)
    QML_VALUE_TYPE(pageEntry)
};

struct PieceListModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::PieceListModel)
    QML_NAMED_ELEMENT(PieceListModel)
    QML_UNCREATABLE("made by the model of a page")
};

struct PriceDropsModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::PriceDropsModel)
    QML_NAMED_ELEMENT(PriceDropsModel)
    QML_UNCREATABLE("made by the application model")
};

struct ProductListModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::ProductListModel)
    QML_NAMED_ELEMENT(ProductListModel)
    QML_UNCREATABLE("made by the model of a page")
};

struct ProductListingForQml {
    Q_GADGET
    QML_FOREIGN(loom::ProductListing)
    QML_NAMED_ELEMENT(ProductListing)
    QML_UNCREATABLE("made by the application model")
};

struct ProductModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::ProductModel)
    QML_NAMED_ELEMENT(ProductModel)
    QML_UNCREATABLE("made by the application model")
};

struct ProfileStoreForQml {
    Q_GADGET
    QML_FOREIGN(loom::ProfileStore)
    QML_NAMED_ELEMENT(ProfileStore)
    QML_UNCREATABLE("made by the application model")
};

struct RecentlyViewedStoreForQml {
    Q_GADGET
    QML_FOREIGN(loom::RecentlyViewedStore)
    QML_NAMED_ELEMENT(RecentlyViewedStore)
    QML_UNCREATABLE("made by the application model")
};

struct RouterForQml {
    Q_GADGET
    QML_FOREIGN(loom::Router)
    QML_NAMED_ELEMENT(Router)
    QML_UNCREATABLE("made by a window session")
};

struct SearchModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::SearchModel)
    QML_NAMED_ELEMENT(SearchModel)
    QML_UNCREATABLE("made by the application model")
};

struct SignInModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::SignInModel)
    QML_NAMED_ELEMENT(SignInModel)
    QML_UNCREATABLE("made by the application model")
};

struct SuggestionSlotsForQml {
    Q_GADGET
    QML_FOREIGN(loom::SuggestionSlots)
    QML_NAMED_ELEMENT(SuggestionSlots)
    QML_UNCREATABLE("made by the suggestions")
};

struct SuggestionsModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::SuggestionsModel)
    QML_NAMED_ELEMENT(SuggestionsModel)
    QML_UNCREATABLE("made by the application model")
};

struct SystemAppearanceForQml {
    Q_GADGET
    QML_FOREIGN(loom::SystemAppearance)
    QML_NAMED_ELEMENT(SystemAppearance)
    QML_UNCREATABLE("made by the application")
};

struct TabsModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::TabsModel)
    QML_NAMED_ELEMENT(TabsModel)
    QML_UNCREATABLE("made by a window session")
};

struct TrackingModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::TrackingModel)
    QML_NAMED_ELEMENT(TrackingModel)
    QML_UNCREATABLE("made by the application model")
};

struct WishlistStoreForQml {
    Q_GADGET
    QML_FOREIGN(loom::WishlistStore)
    QML_NAMED_ELEMENT(WishlistStore)
    QML_UNCREATABLE("made by the application model")
};

struct WindowSessionForQml {
    Q_GADGET
    QML_FOREIGN(loom::WindowSession)
    QML_NAMED_ELEMENT(WindowSession)
    QML_UNCREATABLE("made by the application model")
};

struct MeasurementsModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::MeasurementsModel)
    QML_NAMED_ELEMENT(MeasurementsModel)
    QML_UNCREATABLE("made by the application model")
};

struct MiraChatModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::MiraChatModel)
    QML_NAMED_ELEMENT(MiraChatModel)
    QML_UNCREATABLE("made by the application model")
};

struct MiraLookModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::MiraLookModel)
    QML_NAMED_ELEMENT(MiraLookModel)
    QML_UNCREATABLE("made by the application model")
};

struct MiraThreadModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::MiraThreadModel)
    QML_NAMED_ELEMENT(MiraThreadModel)
    QML_UNCREATABLE("made by the chat with the stylist")
};

struct MiraTopicsModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::MiraTopicsModel)
    QML_NAMED_ELEMENT(MiraTopicsModel)
    QML_UNCREATABLE("made by the chat with the stylist")
};

struct MiraWeatherStoreForQml {
    Q_GADGET
    QML_FOREIGN(loom::MiraWeatherStore)
    QML_NAMED_ELEMENT(MiraWeatherStore)
    QML_UNCREATABLE("made by the application model")
};

struct SizeAdviceModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::SizeAdviceModel)
    QML_NAMED_ELEMENT(SizeAdviceModel)
    QML_UNCREATABLE("made by the application model")
};

struct WardrobeModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::WardrobeModel)
    QML_NAMED_ELEMENT(WardrobeModel)
    QML_UNCREATABLE("made by the chat with the stylist")
};

struct AccountNotificationsForQml {
    Q_GADGET
    QML_FOREIGN(loom::AccountNotifications)
    QML_NAMED_ELEMENT(AccountNotifications)
    QML_UNCREATABLE("made by the application model")
};

struct DesktopNotifierForQml {
    Q_GADGET
    QML_FOREIGN(loom::DesktopNotifier)
    QML_NAMED_ELEMENT(DesktopNotifier)
    QML_UNCREATABLE("made by the application model")
};

struct NotificationBadgeForQml {
    Q_GADGET
    QML_FOREIGN(loom::NotificationBadge)
    QML_NAMED_ELEMENT(NotificationBadge)
    QML_UNCREATABLE("made by the application model")
};

struct NotificationBannerCenterForQml {
    Q_GADGET
    QML_FOREIGN(loom::NotificationBannerCenter)
    QML_NAMED_ELEMENT(NotificationBannerCenter)
    QML_UNCREATABLE("made by the application model")
};

struct NotificationSettingsForQml {
    Q_GADGET
    QML_FOREIGN(loom::NotificationSettings)
    QML_NAMED_ELEMENT(NotificationSettings)
    QML_UNCREATABLE("made by the application model")
};

struct NotificationsModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::NotificationsModel)
    QML_NAMED_ELEMENT(NotificationsModel)
    QML_UNCREATABLE("made by the application model")
};

struct SupportChatModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::SupportChatModel)
    QML_NAMED_ELEMENT(SupportChatModel)
    QML_UNCREATABLE("made by the application model")
};

struct SupportThreadModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::SupportThreadModel)
    QML_NAMED_ELEMENT(SupportThreadModel)
    QML_UNCREATABLE("made by the chat with customer service")
};
