#include "app/CallDesk.h"

#include "account/AuthStore.h"
#include "account/OrdersStore.h"
#include "base/Clock.h"
#include "catalog/MarketStore.h"
#include "commerce/CartStore.h"
#include "commerce/WishlistStore.h"
#include "services/RemoteConfig.h"
#include "storage/Preferences.h"
#include "stylist/MiraChatModel.h"
#include "stylist/MiraRules.h"
#include "stylist/MiraWeatherStore.h"

namespace loom
{

namespace
{

/// Each piece once.
class Pieces
{
public:
    void add(const QString& title, const QString& handle)
    {
        if (!handle.isEmpty() && !m_handles.contains(handle)) {
            m_handles.insert(handle);
            m_pieces.push_back({.title = title, .handle = handle});
        }
    }
    [[nodiscard]] std::vector<MiraVoicePiece> take() { return std::move(m_pieces); }

private:
    std::vector<MiraVoicePiece> m_pieces;
    QSet<QString> m_handles;
};

/// Also one that the store has no texts in: the stylist may speak it all the same.
QString systemLanguage(const SystemLocale& locale)
{
    const AppLanguage language = appLanguageFor(locale);
    return language == AppLanguage::English && !locale.language.isEmpty() ? locale.language : appLanguageCode(language);
}

/// What the shopper owns is what they have bought.
std::vector<MiraVoicePiece> owned(const OrdersStore& orders)
{
    Pieces pieces;
    for (const Order& order : orders.orders()) {
        if (order.status == OrderStatus::Cancelled)
            continue;
        for (const OrderLine& line : order.lines)
            pieces.add(line.title, line.handle);
    }
    return pieces.take();
}

std::vector<MiraVoicePiece> saved(const WishlistStore& wishlist)
{
    Pieces pieces;
    for (const ProductListItem& item : wishlist.items())
        pieces.add(item.title, item.handle);
    return pieces.take();
}

std::vector<MiraVoicePiece> inBag(const CartStore& cart)
{
    Pieces pieces;
    if (cart.cart()) {
        for (const CartLine& line : cart.cart()->lines)
            pieces.add(line.productTitle, line.productHandle);
    }
    return pieces.take();
}

} // namespace

CallDesk::CallDesk(Services services, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_resolver(m_services.storeHost)
    , m_session(sessionServices())
{
    connect(&m_services.features, &RemoteConfig::featuresChanged, &m_session,
            &MiraVoiceSession::featuresMayHaveChanged);
    // The service writes what was said into the conversation.
    connect(&m_session, &MiraVoiceSession::callEnded, this, [this] { static_cast<void>(followChat()); });
}

MiraVoiceServices CallDesk::sessionServices()
{
    return {.devices = m_services.audio,
            .muteKey = m_services.muteKey,
            .cart = m_services.cart,
            .storefront = m_services.storefront,
            .market = m_services.market,
            .money = m_services.money,
            .preferences = m_services.preferences,
            .features = m_services.features,
            .resolver = m_resolver,
            .clock = m_services.clock,
            .supportBase = m_services.supportBase,
            .opening = [this] { return opening(); },
            .guideName =
                [this] {
                    return m_services.chat.guideName();
                }};
}

MiraVoiceOpening CallDesk::opening() const
{
    return {.guideName = m_services.chat.guideName(),
            .visitorId = m_services.visitorID(),
            .visitorToken = m_services.chat.visitorToken(),
            .appToken = m_services.auth.appToken(),
            .language = MiraRules::replyLanguage(m_services.preferences.value(preferences::supportLanguage),
                                                 m_services.market.languageCode()),
            .systemLanguage = systemLanguage(m_services.locale),
            .email = m_services.auth.email(),
            .weather = m_services.weather.shared(),
            .closet = owned(m_services.orders),
            .wishlist = saved(m_services.wishlist),
            .cart = inBag(m_services.cart)};
}

QCoro::Task<> CallDesk::followChat()
{
    const Work::Run run = m_following.begin();
    co_await m_services.clock.sleep(writingTime, run.stop());
    if (!run.isStopped() && m_services.chat.isOpen())
        m_services.chat.retry();
}

} // namespace loom
