#pragma once

#include "discovery/BrandCounters.h"
#include "discovery/HomeModel.h"
#include "discovery/NotInterested.h"
#include "discovery/ProductCompanions.h"
#include "discovery/RecoCards.h"
#include "discovery/RecoRail.h"
#include "services/RemoteConfig.h"
#include "services/ToolsModel.h"

#include <QtQml/qqmlregistration.h>

// Declares to pages the types of recommendations and what the store changes from afar. None of them is made in QML.

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
