#include "app/NewsDesk.h"

#include "account/AuthStore.h"

namespace loom
{

namespace
{

/// Of who is signed in, empty for a guest; nothing while that is not known.
std::optional<QString> accountID(const AuthStore& auth)
{
    if (auth.phase() == AuthStore::Phase::Unknown)
        return std::nullopt;
    return auth.session() ? accountIDOf(auth.session()->customer) : QString();
}

} // namespace

NewsDesk::NewsDesk(Services services, QObject* parent)
    : QObject(parent)
    , m_auth(services.auth)
    , m_account(services.auth, services.announcements, services.auth.widget(), services.folder, services.clock)
    , m_inbox(services.folder)
    , m_banners(services.clock)
    , m_badge(services.preferences, services.launcher)
    , m_settings(services.preferences)
    , m_notifier({.preferences = services.preferences,
                  .folder = services.folder,
                  .clock = services.clock,
                  .random = services.random,
                  .network = services.network,
                  .banners = m_banners,
                  .desktop = services.desktop,
                  .inbox = m_inbox,
                  .account = {.page =
                                  [this](QString cursor, std::stop_token stop) {
                                      return m_account.page(std::move(cursor), std::move(stop));
                                  },
                              .markRead =
                                  [this](const QString& id) {
                                      m_account.markRead(id);
                                  }},
                  .support = std::move(services.support),
                  .accountID = [this] { return accountID(m_auth); },
                  .hasOpenWindow = std::move(services.hasOpenWindow)})
{
    connect(&m_account, &AccountNotifications::listChanged, this, &NewsDesk::followAccount);
    connect(&m_auth, &AuthStore::sessionChanged, this, [this] {
        m_notifier.accountChanged();
        followAccount();
    });
}

void NewsDesk::followAccount()
{
    m_badge.setUnreadCount(m_auth.isSignedIn() ? m_account.unreadCount() : 0);
}

} // namespace loom
