#include "account/OrdersAPI.h"

#include "account/OrdersReading.h"
#include "net/WidgetClient.h"

#include <QtConcurrentRun>
#include <qcoro/qcorofuture.h>

namespace loom
{

namespace
{

Result<OrdersAnswer, QString> readOrders(const QByteArray& json)
{
    return decodeJson(json, decodeOrders);
}

Result<TrackingAnswer, QString> readTracking(const QByteArray& json)
{
    return decodeJson(json, decodeTracking);
}

} // namespace

QCoro::Task<ApiResult<FetchedOrders>> OrdersAPI::orders(std::stop_token stop)
{
    LOOM_CO_TRY(body, co_await m_widget.post(QStringLiteral("/orders"), {}, {}, stop));
    auto answer = co_await QtConcurrent::run(readOrders, body);
    if (stop.stop_requested())
        co_return Unexpected(Failure(Cancelled()));
    LOOM_CO_TRY(orders, decodedAnswer(std::move(answer)));
    co_return FetchedOrders{.answer = std::move(orders), .json = body};
}

QCoro::Task<ApiResult<TrackingAnswer>> OrdersAPI::track(QString number, QString carrier, std::stop_token stop)
{
    QJsonObject question{{QStringLiteral("number"), number}};
    if (!carrier.isEmpty())
        question.insert(QStringLiteral("carrier"), carrier);
    LOOM_CO_TRY(body, co_await m_widget.post(QStringLiteral("/tracking"), question, {}, stop));
    auto answer = co_await QtConcurrent::run(readTracking, body);
    if (stop.stop_requested())
        co_return Unexpected(Failure(Cancelled()));
    co_return decodedAnswer(std::move(answer));
}

} // namespace loom
