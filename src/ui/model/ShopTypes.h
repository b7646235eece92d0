#pragma once

#include "catalog/BrandsModel.h"
#include "catalog/CollectionModel.h"
#include "catalog/CollectionTilesModel.h"
#include "catalog/FilterModel.h"
#include "catalog/FilterValuesModel.h"
#include "catalog/MarketChoicesModel.h"
#include "catalog/MarketStore.h"
#include "catalog/ProductListModel.h"
#include "catalog/ProductListing.h"
#include "catalog/ProductModel.h"
#include "catalog/SearchModel.h"
#include "commerce/BuyModel.h"
#include "commerce/CartModel.h"
#include "commerce/CheckoutModel.h"
#include "commerce/CheckoutStarter.h"
#include "commerce/CompareModel.h"
#include "commerce/KeptPieces.h"
#include "commerce/KeptPiecesModel.h"
#include "commerce/PieceListModel.h"
#include "commerce/PriceDropsModel.h"
#include "commerce/RecentlyViewedStore.h"
#include "commerce/SuggestionSlots.h"
#include "commerce/SuggestionsModel.h"
#include "commerce/WishlistStore.h"

#include <QtQml/qqmlregistration.h>

// Declares to pages the types of the catalog, the bag and what the shopper keeps. None of them is made in QML.

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

struct RecentlyViewedStoreForQml {
    Q_GADGET
    QML_FOREIGN(loom::RecentlyViewedStore)
    QML_NAMED_ELEMENT(RecentlyViewedStore)
    QML_UNCREATABLE("made by the application model")
};

struct SearchModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::SearchModel)
    QML_NAMED_ELEMENT(SearchModel)
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

struct WishlistStoreForQml {
    Q_GADGET
    QML_FOREIGN(loom::WishlistStore)
    QML_NAMED_ELEMENT(WishlistStore)
    QML_UNCREATABLE("made by the application model")
};
