#pragma once

#include "navigation/LinkResolver.h"
#include "net/AppLanguage.h"
#include "stylist/voice/MiraVoiceSession.h"

namespace loom
{

class AuthStore;
class MiraChatModel;
class MiraWeatherStore;
class OrdersStore;
class RemoteConfig;
class WishlistStore;

/// The call with the stylist and what it takes from the rest of the application, put together. One per process; main
/// thread; owned by the application model.
class CallDesk final : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::seconds writingTime{2};

    struct Services {
        VoiceAudio& audio;
        GlobalKey& muteKey;
        AuthStore& auth;
        OrdersStore& orders;
        CartStore& cart;
        WishlistStore& wishlist;
        MiraChatModel& chat;
        MiraWeatherStore& weather;
        RemoteConfig& features;
        StorefrontAPI& storefront;
        MarketStore& market;
        const MoneyFormat& money;
        Preferences& preferences;
        Clock& clock;
        SystemLocale locale;
        QString supportBase;
        QString storeHost;
        std::function<QString()> visitorID;
    };

    explicit CallDesk(Services services, QObject* parent = nullptr);

    [[nodiscard]] MiraVoiceSession& session() { return m_session; }

private:
    [[nodiscard]] MiraVoiceServices sessionServices();
    /// Who calls, with what they own, keep and are about to buy.
    [[nodiscard]] MiraVoiceOpening opening() const;
    /// Once the service had time to write down what was said.
    [[nodiscard]] QCoro::Task<> followChat();

    Services m_services;
    LinkResolver m_resolver;
    MiraVoiceSession m_session;
    Work m_following;
};

} // namespace loom
