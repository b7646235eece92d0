#include "account/NotificationsAPI.h"

#include "net/DecodedAnswer.h"
#include "net/WidgetClient.h"

#include <QJsonArray>

namespace loom
{

QCoro::Task<ApiResult<NotificationPage>> NotificationsAPI::page(QString cursor, std::stop_token stop)
{
    QJsonObject question{{QStringLiteral("limit"), pageSize}};
    if (!cursor.isEmpty())
        question.insert(QStringLiteral("cursor"), cursor);
    LOOM_CO_TRY(body, co_await m_widget.post(QStringLiteral("/notifications"), question, {}, stop));
    co_return co_await decodedElsewhere(body, decodeNotificationPage, stop);
}

QCoro::Task<ApiResult<int>> NotificationsAPI::markRead(QStringList ids, std::stop_token stop)
{
    co_return co_await tellRead({{QStringLiteral("ids"), QJsonArray::fromStringList(ids)}}, stop);
}

QCoro::Task<ApiResult<int>> NotificationsAPI::markAllRead(std::stop_token stop)
{
    return tellRead({{QStringLiteral("all"), true}}, std::move(stop));
}

QCoro::Task<ApiResult<int>> NotificationsAPI::tellRead(QJsonObject question, std::stop_token stop)
{
    LOOM_CO_TRY(body, co_await m_widget.post(QStringLiteral("/notifications-read"), question, {}, stop));
    const auto decode = [](const JsonReader& json) {
        return static_cast<int>(std::clamp<qint64>(json.integer("unreadCount"), 0, NotificationPage::mostUnread));
    };
    co_return decodedAnswer(decodeJson(body, decode));
}

} // namespace loom
