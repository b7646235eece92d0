#pragma once

#include "account/AccountContent.h"
#include "account/AccountRemoval.h"
#include "account/AlertsModel.h"
#include "account/AlertsStore.h"
#include "account/AuthStore.h"
#include "account/OrderModel.h"
#include "account/OrdersModel.h"
#include "account/OrdersStore.h"
#include "account/ProductAlerts.h"
#include "account/ProfileStore.h"
#include "account/SignInModel.h"
#include "account/TrackingModel.h"

#include <QtQml/qqmlregistration.h>

// Declares to pages the types of the account. None of them is made in QML.

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

struct AuthStoreForQml {
    Q_GADGET
    QML_FOREIGN(loom::AuthStore)
    QML_NAMED_ELEMENT(AuthStore)
    QML_UNCREATABLE("made by the application model")
};

struct ProductAlertsForQml {
    Q_GADGET
    QML_FOREIGN(loom::ProductAlerts)
    QML_NAMED_ELEMENT(ProductAlerts)
    QML_UNCREATABLE("made by the application model")
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

struct ProfileStoreForQml {
    Q_GADGET
    QML_FOREIGN(loom::ProfileStore)
    QML_NAMED_ELEMENT(ProfileStore)
    QML_UNCREATABLE("made by the application model")
};

struct SignInModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::SignInModel)
    QML_NAMED_ELEMENT(SignInModel)
    QML_UNCREATABLE("made by the application model")
};

struct TrackingModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::TrackingModel)
    QML_NAMED_ELEMENT(TrackingModel)
    QML_UNCREATABLE("made by the application model")
};
