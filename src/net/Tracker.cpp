#include "net/Tracker.h"

#include "base/Clock.h"
#include "base/Dates.h"
#include "net/WidgetClient.h"

namespace loom
{

namespace
{

struct Name {
    QString operator()(const Tracker::AppOpened&) const { return QStringLiteral("app_opened"); }
    QString operator()(const Tracker::CollectionViewed&) const { return QStringLiteral("collection_viewed"); }
    QString operator()(const Tracker::ProductViewed&) const { return QStringLiteral("product_viewed"); }
    QString operator()(const Tracker::CartAdded&) const { return QStringLiteral("cart_added"); }
    QString operator()(const Tracker::CheckoutOpened&) const { return QStringLiteral("checkout_opened"); }
    QString operator()(const Tracker::OrderPlaced&) const { return QStringLiteral("order_placed"); }
};

struct Handle {
    template <typename Event>
    QString operator()(const Event& event) const
    {
        if constexpr (requires { event.handle; })
            return event.handle;
        else
            return {};
    }
};

} // namespace

Tracker::Tracker(WidgetClient& client, Clock& clock, std::function<bool()> hasConsent,
                 std::function<QString()> visitorId)
    : m_client(client)
    , m_clock(clock)
    , m_hasConsent(std::move(hasConsent))
    , m_visitorId(std::move(visitorId))
{
}

void Tracker::report(const Event& event)
{
    if (m_hasConsent())
        static_cast<void>(send(std::visit(Name{}, event), std::visit(Handle{}, event)));
}

QCoro::Task<> Tracker::send(QString name, QString handle)
{
    QJsonObject body{{QStringLiteral("event"), name},
                     {QStringLiteral("visitorId"), m_visitorId()},
                     {QStringLiteral("platform"), QStringLiteral("macos")},
                     {QStringLiteral("at"), formatDate(m_clock.now())}};
    if (!handle.isEmpty())
        body.insert(QStringLiteral("handle"), handle);
    // A lost report is not worth a second attempt, nor a word to the shopper.
    static_cast<void>(
        co_await m_client.post(QStringLiteral("/track"), body, {.identity = Identity::Anonymous}, m_stop.get_token()));
}

} // namespace loom
