#pragma once

#include "net/ApiResult.h"

#include <QByteArray>
#include <QList>
#include <QUrl>
#include <qcoro/qcorotask.h>

#include <chrono>
#include <memory>
#include <optional>
#include <stop_token>

class QNetworkAccessManager;
class QNetworkReply;

namespace loom
{

class Clock;
class NetworkStatus;

enum class HttpMethod { Get, Post };

struct HttpRequest {
    HttpMethod method = HttpMethod::Get;
    QUrl url;
    QList<std::pair<QByteArray, QByteArray>> headers;
    QByteArray body;
    /// How long nothing may arrive or be sent.
    std::optional<std::chrono::milliseconds> silence;
    /// How long the whole exchange may take.
    std::optional<std::chrono::milliseconds> total;
};

struct HttpResponse {
    int status = 0;
    QByteArray body;

    bool operator==(const HttpResponse&) const = default;
};

/// The only door to HTTP: time-outs, proxies, redirects, certificate checks and the meaning of transport failures
/// live here and nowhere else. Redirects are followed for reads, within one origin; a POST is not sent twice,
/// whatever happens; nothing is cached and no cookie is kept. One per process, which it must outlive the calls of; main
/// thread.
class HttpTransport
{
public:
    HttpTransport(Clock& clock, const NetworkStatus& network);
    HttpTransport(const HttpTransport&) = delete;
    HttpTransport& operator=(const HttpTransport&) = delete;
    ~HttpTransport();

    /// Any status is a response; what fails is the transport (`network`, `offline`, `timeout`, `invalidResponse`).
    [[nodiscard]] QCoro::Task<ApiResult<HttpResponse>> send(HttpRequest request, std::stop_token stop);

private:
    [[nodiscard]] QNetworkReply* start(const HttpRequest& request);
    [[nodiscard]] APIError transportError(const QNetworkReply& reply) const;

    Clock& m_clock;
    const NetworkStatus& m_network;
    std::unique_ptr<QNetworkAccessManager> m_access;
    bool m_isClosing = false;
};

} // namespace loom
