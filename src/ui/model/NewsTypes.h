#pragma once

#include "account/AccountNotifications.h"
#include "notify/DesktopNotifier.h"
#include "notify/NotificationBadge.h"
#include "notify/NotificationBannerCenter.h"
#include "notify/NotificationSettings.h"
#include "notify/NotificationsModel.h"

#include <QtQml/qqmlregistration.h>

// Declares to pages the types of news. None of them is made in QML.

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
