#include "net/HttpTransport.h"

#include "base/Clock.h"
#include "base/Log.h"
#include "net/NetworkStatus.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <qcoro/qcoronetworkreply.h>

#include <algorithm>
#include <utility>

namespace loom
{

namespace
{

/// No answer of the store comes near it; an endless one must not fill the memory.
constexpr qint64 maximumBodyBytes = 64LL * 1024 * 1024;

/// What Qt takes from a device at a time.
constexpr qint64 uploadStepBytes = 16LL * 1024;

enum class Ending { ByItself, TimedOut, TooLarge, SentAgain };

/// Aborts a reply that is silent or slow for too long, or is about to do what it must not. The reply is aborted, never
/// deleted, while it is awaited.
class Watchdog
{
public:
    Watchdog(Clock& clock, const HttpRequest& request, QNetworkReply* reply)
        : m_clock(clock)
        , m_reply(reply)
        , m_silence(request.silence)
        , m_started(clock.elapsed())
        , m_lastActivity(m_started)
    {
        if (request.total)
            m_deadline = m_started + *request.total;
        // Not downloadProgress, which Qt holds back when much arrives.
        QObject::connect(reply, &QNetworkReply::readyRead, reply, [this] {
            noteActivity();
            if (m_reply->bytesAvailable() > maximumBodyBytes)
                end(Ending::TooLarge);
        });
        QObject::connect(reply, &QNetworkReply::metaDataChanged, reply, [this] { noteActivity(); });
        QObject::connect(reply, &QNetworkReply::uploadProgress, reply, [this](qint64 sent, qint64) {
            noteActivity();
            // Less than before: the connection was lost, and Qt has begun to send a big body again.
            if (sent > 0 && std::exchange(m_sent, sent) > sent)
                end(Ending::SentAgain);
        });
        static_cast<void>(watch(m_stop.get_token()));
    }
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;
    ~Watchdog()
    {
        m_reply->disconnect(m_reply);
        m_stop.request_stop();
    }

    [[nodiscard]] Ending ending() const { return m_ending; }

private:
    void noteActivity() { m_lastActivity = m_clock.elapsed(); }

    [[nodiscard]] std::optional<std::chrono::milliseconds> due() const
    {
        if (m_silence && m_deadline)
            return std::min(m_lastActivity + *m_silence, *m_deadline);
        return m_silence ? std::optional(m_lastActivity + *m_silence) : m_deadline;
    }

    QCoro::Task<> watch(std::stop_token stop)
    {
        while (const auto moment = due()) {
            const auto remaining = *moment - m_clock.elapsed();
            if (remaining <= std::chrono::milliseconds::zero()) {
                end(Ending::TimedOut);
                co_return;
            }
            co_await m_clock.sleep(remaining, stop);
            if (stop.stop_requested())
                co_return;
        }
    }

    void end(Ending ending)
    {
        m_ending = ending;
        m_reply->abort();
    }

    Clock& m_clock;
    QNetworkReply* m_reply;
    std::optional<std::chrono::milliseconds> m_silence;
    std::optional<std::chrono::milliseconds> m_deadline;
    std::chrono::milliseconds m_started;
    std::chrono::milliseconds m_lastActivity;
    qint64 m_sent = 0;
    Ending m_ending = Ending::ByItself;
    std::stop_source m_stop;
};

/// The body of a POST, which can be sent once. When a connection is lost before the answer, Qt would send the request
/// again, up to three times and without a word; but the server may have carried it out. Not a QBuffer, whose bytes Qt
/// takes without asking; and not for a big body, which HTTP/2 sends far slower in steps than at once.
class SingleUseBody final : public QIODevice
{
public:
    explicit SingleUseBody(QByteArray bytes)
        : m_bytes(std::move(bytes))
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    [[nodiscard]] qint64 size() const override { return m_bytes.size(); }
    /// Qt asks for this before it sends again.
    bool reset() override { return false; }

protected:
    qint64 readData(char* data, qint64 capacity) override
    {
        const qint64 count = std::min(capacity, m_bytes.size() - m_taken);
        std::copy_n(m_bytes.constData() + m_taken, count, data);
        m_taken += count;
        return count;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray m_bytes;
    qint64 m_taken = 0;
};

struct DeleteLater {
    void operator()(QNetworkReply* reply) const { reply->deleteLater(); }
};

} // namespace

HttpTransport::HttpTransport(Clock& clock, const NetworkStatus& network)
    : m_clock(clock)
    , m_network(network)
    , m_access(std::make_unique<QNetworkAccessManager>())
{
}

HttpTransport::~HttpTransport()
{
    // Whoever still waits is told so, instead of never being resumed.
    m_isClosing = true;
    for (QNetworkReply* const reply : m_access->findChildren<QNetworkReply*>())
        reply->abort();
}

QCoro::Task<ApiResult<HttpResponse>> HttpTransport::send(HttpRequest request, std::stop_token stop)
{
    if (stop.stop_requested() || m_isClosing)
        co_return Unexpected(Failure(Cancelled{}));
    const std::unique_ptr<QNetworkReply, DeleteLater> reply(start(request));
    Watchdog watchdog(m_clock, request, reply.get());
    {
        const std::stop_callback abort(stop, [&reply] { reply->abort(); });
        co_await reply.get();
    }
    if (stop.stop_requested())
        co_return Unexpected(Failure(Cancelled{}));
    if (watchdog.ending() == Ending::TimedOut)
        co_return Unexpected(
            Failure(m_network.isOffline() ? APIError{APIError::Offline{}} : APIError{APIError::Timeout{}}));
    if (watchdog.ending() == Ending::SentAgain)
        co_return apiFailure(APIError::Offline{});
    if (watchdog.ending() == Ending::TooLarge)
        co_return apiFailure(APIError::Network{QStringLiteral("the answer is too large")});

    if (reply->error() == QNetworkReply::OperationCanceledError)
        co_return Unexpected(Failure(Cancelled{})); // the transport itself is going

    const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    // Qt reports a 4xx or 5xx answer as an error of its own numbers, and a redirection of what cannot be sent twice as
    // another; for us each is an answer. So is a 407 of the server itself, which came through TLS: a proxy's has no
    // status here.
    const bool isAnswer = (reply->error() >= QNetworkReply::ContentAccessDenied && status.toInt() >= 400) ||
                          (reply->error() == QNetworkReply::ContentReSendError && status.isValid()) ||
                          (reply->error() == QNetworkReply::ProxyAuthenticationRequiredError && status.isValid() &&
                           request.url.scheme() == QLatin1String("https"));
    if (reply->error() != QNetworkReply::NoError && !isAnswer) {
        qCWarning(logNet) << request.url.toString(QUrl::RemoveQuery | QUrl::RemoveFragment) << reply->error();
        co_return Unexpected(Failure(transportError(*reply)));
    }
    if (!status.isValid())
        co_return apiFailure(APIError::InvalidResponse{});
    co_return HttpResponse{.status = status.toInt(), .body = reply->readAll()};
}

QNetworkReply* HttpTransport::start(const HttpRequest& request)
{
    QNetworkRequest message(request.url);
    for (const auto& [name, value] : request.headers)
        message.setRawHeader(name, value);
    message.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    message.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    message.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    message.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    // A redirected POST would be repeated as a GET, and keys must not travel to another origin.
    message.setAttribute(QNetworkRequest::RedirectPolicyAttribute, request.method == HttpMethod::Get
                                                                       ? QNetworkRequest::SameOriginRedirectPolicy
                                                                       : QNetworkRequest::ManualRedirectPolicy);
    if (request.method == HttpMethod::Get)
        return m_access->get(message);
    // Every step, however soon after the one before: the watchdog knows by them that a body is being sent again.
    message.setAttribute(QNetworkRequest::EmitAllUploadProgressSignalsAttribute, true);
    if (request.body.size() > uploadStepBytes)
        return m_access->post(message, request.body);
    auto body = std::make_unique<SingleUseBody>(request.body);
    QNetworkReply* const reply = m_access->post(message, body.get());
    body.release()->setParent(reply);
    return reply;
}

APIError HttpTransport::transportError(const QNetworkReply& reply) const
{
    if (m_network.isOffline())
        return {APIError::Offline{}};
    switch (reply.error()) {
    case QNetworkReply::RemoteHostClosedError:
    case QNetworkReply::ContentReSendError: // what Qt calls a lost connection when it may not send again
    case QNetworkReply::TemporaryNetworkFailureError:
        return {APIError::Offline{}};
    case QNetworkReply::TimeoutError:
    case QNetworkReply::ProxyTimeoutError:
        return {APIError::Timeout{}};
    default:
        return {APIError::Network{reply.errorString()}};
    }
}

} // namespace loom
