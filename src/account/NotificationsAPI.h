#pragma once

#include "account/NotificationPage.h"
#include "net/ApiResult.h"

#include <QStringList>
#include <qcoro/qcorotask.h>

#include <stop_token>

namespace loom
{

class WidgetClient;

/// The calls about what the signed-in customer was told. Holds no state; the client must outlive it. Main thread;
/// answers are decoded on others.
class NotificationsAPI
{
public:
    /// How many a page holds.
    static constexpr int pageSize = 50;

    explicit NotificationsAPI(WidgetClient& widget)
        : m_widget(widget)
    {
    }

    /// The first page for an empty cursor.
    [[nodiscard]] QCoro::Task<ApiResult<NotificationPage>> page(QString cursor, std::stop_token stop);
    /// How many are left unread.
    [[nodiscard]] QCoro::Task<ApiResult<int>> markRead(QStringList ids, std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<int>> markAllRead(std::stop_token stop);

private:
    [[nodiscard]] QCoro::Task<ApiResult<int>> tellRead(QJsonObject question, std::stop_token stop);

    WidgetClient& m_widget;
};

} // namespace loom
