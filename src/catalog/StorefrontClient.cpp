#include "catalog/StorefrontClient.h"

#include "base/Clock.h"
#include "base/Log.h"
#include "catalog/StorefrontLanguage.h"
#include "net/HttpTransport.h"

#include <QJsonDocument>

namespace loom
{

namespace
{

constexpr std::chrono::seconds requestSilence{15};
constexpr std::chrono::seconds requestTotal{40};
constexpr std::chrono::milliseconds retryPause{500};

} // namespace

bool isThrottled(const APIError::GraphQL& refusal)
{
    return refusal.messages.join(QLatin1Char('\n')).contains(QLatin1String("throttled"), Qt::CaseInsensitive);
}

StorefrontClient::StorefrontClient(const QString& domain, const QString& accessToken, SystemLocale locale,
                                   HttpTransport& transport, Clock& clock)
    : m_endpoint(QStringLiteral("https://") + domain + QStringLiteral("/api/2025-04/graphql.json"))
    , m_accessToken(accessToken.toUtf8())
    , m_locale(std::move(locale))
    , m_country(defaultCountry(m_locale))
    , m_language(appLanguageFor(m_locale))
    , m_transport(transport)
    , m_clock(clock)
{
}

QByteArray StorefrontClient::requestBody(const QString& query, QJsonObject variables) const
{
    const auto fill = [&](const QString& name, const QString& value) {
        if (query.contains(QLatin1Char('$') + name) && !variables.contains(name))
            variables.insert(name, value);
    };
    fill(QStringLiteral("country"), m_country);
    fill(QStringLiteral("language"), storefrontLanguageCode(m_language, m_locale.region));
    return QJsonDocument(QJsonObject{{QStringLiteral("query"), query}, {QStringLiteral("variables"), variables}})
        .toJson(QJsonDocument::Compact);
}

QCoro::Task<ApiResult<QByteArray>> StorefrontClient::exchange(QByteArray body, std::stop_token stop)
{
    if (m_endpoint.host().isEmpty() || m_accessToken.isEmpty())
        co_return apiFailure(APIError::NotConfigured{});
    LOOM_CO_TRY(response, co_await m_transport.send({.method = HttpMethod::Post,
                                                     .url = m_endpoint,
                                                     .headers = {{"Accept", "application/json"},
                                                                 {"Content-Type", "application/json"},
                                                                 {"X-Shopify-Storefront-Access-Token", m_accessToken}},
                                                     .body = body,
                                                     .silence = requestSilence,
                                                     .total = requestTotal},
                                                    stop));
    if (response.status < 200 || response.status > 299) {
        const auto code = response.status == 429 ? std::optional(QStringLiteral("RATE_LIMITED")) : std::nullopt;
        co_return apiFailure(APIError::Http{.status = response.status, .code = code, .message = {}});
    }
    co_return response.body;
}

QCoro::Task<> StorefrontClient::pause(int retryNumber, std::stop_token stop)
{
    co_await m_clock.sleep(retryNumber * retryPause, stop);
}

bool StorefrontClient::isTransient(const Failure& failure)
{
    if (failure.isCancelled())
        return false;
    const APIError& error = failure.error();
    if (error.as<APIError::Network>() || error.as<APIError::Timeout>())
        return true;
    if (const auto* const http = error.as<APIError::Http>())
        return http->status == 429 || http->status >= 500;
    if (const auto* const graphQL = error.as<APIError::GraphQL>())
        return isThrottled(*graphQL);
    return false;
}

std::optional<APIError> StorefrontClient::envelopeError(const JsonReader& root)
{
    const std::vector<JsonReader> errors = root.optionalList("errors");
    if (!errors.empty()) {
        QStringList messages;
        for (const JsonReader& error : errors)
            messages.append(error.optionalText("message").value_or(QString()));
        qCWarning(logCatalog) << "the Storefront refused:" << messages;
        return APIError{APIError::GraphQL{messages}};
    }
    if (!root.isObject())
        return APIError{APIError::Decoding{QStringLiteral("document: expected an object")}};
    if (!root.has("data"))
        return APIError{APIError::InvalidResponse{}};
    return std::nullopt;
}

} // namespace loom
