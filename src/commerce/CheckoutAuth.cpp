#include "commerce/CheckoutAuth.h"

#include "base/JsonReader.h"
#include "net/WidgetClient.h"

namespace loom
{

namespace
{

/// Answers that mean no more than that the shopper will not arrive signed in. A refused session is one: it has ended,
/// and they check out as anybody.
bool isUnavailable(const Failure& failure)
{
    if (failure.isCancelled())
        return false;
    const auto* const http = failure.error().as<APIError::Http>();
    return http && (http->status == 404 || isRefusedSession(*http) ||
                    http->code == QLatin1String("CHECKOUT_AUTH_UNAVAILABLE") ||
                    http->code == QLatin1String("WIDGET_NOT_FOUND"));
}

PreparedCheckout decodePrepared(const JsonReader& json)
{
    return {.mode = json.optionalText("mode").value_or(QString()), .code = json.text("code")};
}

} // namespace

QCoro::Task<ApiResult<PreparedCheckout>> CheckoutAuth::prepare(QString cartID, QString locale, std::stop_token stop)
{
    LOOM_CO_TRY(body, co_await m_widget.post(QStringLiteral("/shopify-checkout/prepare"),
                                             {{QStringLiteral("cartId"), cartID},
                                              {QStringLiteral("locale"), locale},
                                              {QStringLiteral("platform"), QStringLiteral("macos")}},
                                             {}, stop));
    co_return decodedAnswer(decodeJson(body, decodePrepared));
}

QCoro::Task<ApiResult<QByteArray>> CheckoutAuth::revoke(QString appToken, std::stop_token stop)
{
    return m_widget.post(QStringLiteral("/shopify-checkout/revoke"), {{QStringLiteral("appToken"), appToken}},
                         {.identity = Identity::Anonymous}, stop);
}

std::optional<QUrl> checkoutStart(const ApiResult<PreparedCheckout>& prepared, const QUrl& checkoutURL,
                                  const CheckoutHosts& hosts)
{
    if (prepared) {
        QUrl start = handOverAddress(hosts, prepared->code);
        if (isHandOverToken(prepared->code) && isAllowedInCheckout(start, hosts))
            return start;
    } else if (!isUnavailable(prepared.error())) {
        return std::nullopt;
    }
    return mayStartCheckoutAt(checkoutURL) ? std::optional(checkoutURL) : std::nullopt;
}

} // namespace loom
