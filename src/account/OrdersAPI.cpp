#include "account/OrdersAPI.h"

#include "account/OrdersReading.h"
#include "net/DecodedAnswer.h"
#include "net/WidgetClient.h"

namespace loom
{

QCoro::Task<ApiResult<FetchedOrders>> OrdersAPI::orders(std::stop_token stop)
{
    LOOM_CO_TRY(body, co_await m_widget.post(QStringLiteral("/orders"), {}, {}, stop));
    LOOM_CO_TRY(orders, co_await decodedElsewhere(body, decodeOrders, stop));
    co_return FetchedOrders{.answer = std::move(orders), .json = body};
}

QCoro::Task<ApiResult<TrackingAnswer>> OrdersAPI::track(QString number, QString carrier, std::stop_token stop)
{
    QJsonObject question{{QStringLiteral("number"), number}};
    if (!carrier.isEmpty())
        question.insert(QStringLiteral("carrier"), carrier);
    LOOM_CO_TRY(body, co_await m_widget.post(QStringLiteral("/tracking"), question, {}, stop));
    co_return co_await decodedElsewhere(body, decodeTracking, stop);
}

} // namespace loom
