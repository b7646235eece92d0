#pragma once

#include "commerce/CheckoutRules.h"
#include "net/ApiResult.h"

#include <QByteArray>
#include <qcoro/qcorotask.h>

#include <stop_token>

namespace loom
{

class WidgetClient;

/// What the backend prepared for a cart: a token, good once, with which its customer arrives known.
struct PreparedCheckout {
    QString mode;
    QString code;

    bool operator==(const PreparedCheckout&) const = default;
};

/// The hand-over of a signed-in customer to the checkout page. Holds no state; the client must outlive it. Main thread.
class CheckoutAuth
{
public:
    explicit CheckoutAuth(WidgetClient& widget)
        : m_widget(widget)
    {
    }

    /// `locale` as the platform writes languages, "EN" or "PT_BR".
    [[nodiscard]] QCoro::Task<ApiResult<PreparedCheckout>> prepare(QString cartID, QString locale,
                                                                   std::stop_token stop);
    /// No hand-over may outlive the session whose token this is.
    [[nodiscard]] QCoro::Task<ApiResult<QByteArray>> revoke(QString appToken, std::stop_token stop);

private:
    WidgetClient& m_widget;
};

/// Where a checkout begins: at the hand-over, or at the cart's own address where there is none to be had. Nothing when
/// it cannot begin.
[[nodiscard]] std::optional<QUrl> checkoutStart(const ApiResult<PreparedCheckout>& prepared, const QUrl& checkoutURL,
                                                const CheckoutHosts& hosts);

} // namespace loom
