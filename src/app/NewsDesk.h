#pragma once

#include "account/AccountNotifications.h"
#include "notify/DesktopNotifier.h"
#include "notify/InboxNotices.h"
#include "notify/NotificationBadge.h"
#include "notify/NotificationBannerCenter.h"
#include "notify/NotificationSettings.h"

namespace loom
{

class AuthStore;

/// Everything that tells the shopper news, put together: where it comes from, the notifier that delivers it, the
/// banner, the badge and the switches. One per process; main thread; owned by the application model.
class NewsDesk final : public QObject
{
    Q_OBJECT

public:
    struct Services {
        AuthStore& auth;
        Announcements& announcements;
        DataFolder& folder;
        Preferences& preferences;
        Clock& clock;
        Random& random;
        NetworkStatus& network;
        DesktopNotifications& desktop;
        LauncherBadge& launcher;
        SupportRepliesSource support;
        std::function<bool()> hasOpenWindow;
    };

    explicit NewsDesk(Services services, QObject* parent = nullptr);

    [[nodiscard]] AccountNotifications& account() { return m_account; }
    [[nodiscard]] InboxNotices& inbox() { return m_inbox; }
    [[nodiscard]] NotificationBannerCenter& banners() { return m_banners; }
    [[nodiscard]] DesktopNotifier& notifier() { return m_notifier; }
    [[nodiscard]] NotificationBadge& badge() { return m_badge; }
    [[nodiscard]] NotificationSettings& settings() { return m_settings; }

private:
    void followAccount();

    AuthStore& m_auth;
    AccountNotifications m_account;
    InboxNotices m_inbox;
    NotificationBannerCenter m_banners;
    NotificationBadge m_badge;
    NotificationSettings m_settings;
    DesktopNotifier m_notifier;
};

} // namespace loom
