#pragma once

#include "account/Order.h"
#include "account/Refund.h"
#include "net/ApiResult.h"

#include <qcoro/qcorotask.h>

#include <stop_token>

namespace loom
{

class WidgetClient;

/// What the customer ordered and sent back, the newest first.
struct OrdersAnswer {
    std::vector<Order> orders;
    std::vector<Refund> refunds;

    bool operator==(const OrdersAnswer&) const = default;
};

/// An answer, and the bytes it was read from, for whoever keeps it.
struct FetchedOrders {
    OrdersAnswer answer;
    QByteArray json;
};

/// The packages that a number stands for, and the order they are of as far as the backend tells.
struct TrackingAnswer {
    std::vector<Package> packages;
    QString orderId;
    QString orderName;

    bool operator==(const TrackingAnswer&) const = default;
};

/// The calls about orders. Holds no state; the client must outlive it. Main thread; answers are decoded on others.
class OrdersAPI
{
public:
    explicit OrdersAPI(WidgetClient& widget)
        : m_widget(widget)
    {
    }

    /// Those of the signed-in customer.
    [[nodiscard]] QCoro::Task<ApiResult<FetchedOrders>> orders(std::stop_token stop);
    /// `number` is a package's or the name of an order; `carrier` may be empty. Needs no account.
    [[nodiscard]] QCoro::Task<ApiResult<TrackingAnswer>> track(QString number, QString carrier, std::stop_token stop);

private:
    WidgetClient& m_widget;
};

} // namespace loom
