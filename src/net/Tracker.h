#pragma once

#include <QString>
#include <qcoro/qcorotask.h>

#include <functional>
#include <stop_token>
#include <variant>

namespace loom
{

class Clock;
class WidgetClient;

/// Reports what is used to the store, for shoppers who agreed to it. A report that does not arrive is forgotten.
/// Reports carry the anonymous visitor, never the customer. Main thread.
class Tracker
{
public:
    struct AppOpened {
    };
    struct CollectionViewed {
        QString handle;
    };
    struct ProductViewed {
        QString handle;
    };
    struct CartAdded {
        QString handle;
    };
    struct CheckoutOpened {
    };
    struct OrderPlaced {
    };
    using Event = std::variant<AppOpened, CollectionViewed, ProductViewed, CartAdded, CheckoutOpened, OrderPlaced>;

    /// `hasConsent` is asked before every report; `visitorId` only when one is sent.
    Tracker(WidgetClient& client, Clock& clock, std::function<bool()> hasConsent, std::function<QString()> visitorId);
    Tracker(const Tracker&) = delete;
    Tracker& operator=(const Tracker&) = delete;
    ~Tracker() { m_stop.request_stop(); }

    void report(const Event& event);

private:
    [[nodiscard]] QCoro::Task<> send(QString name, QString handle);

    WidgetClient& m_client;
    Clock& m_clock;
    std::function<bool()> m_hasConsent;
    std::function<QString()> m_visitorId;
    std::stop_source m_stop;
};

} // namespace loom
