#pragma once

#include "base/JsonReader.h"
#include "net/ApiResult.h"
#include "net/AppLanguage.h"

#include <QJsonObject>
#include <QtConcurrent>
#include <qcoro/qcorofuture.h>
#include <qcoro/qcorotask.h>

#include <stop_token>

namespace loom
{

class Clock;
class HttpTransport;

/// Whether a call may be sent again after a failure that may pass. Queries may, mutations may not.
enum class Retry { Never, Transient };

/// Whether the platform refused a call only because there were too many.
[[nodiscard]] bool isThrottled(const APIError::GraphQL& refusal);

/// The one transport to the Storefront GraphQL API. It fills the market's country and the content language into
/// every query that declares them, sends a throttled or failed query up to three times, and decodes answers on a
/// worker thread. Holds configuration and the market, nothing else. Main thread.
class StorefrontClient
{
public:
    /// `domain` is a bare host name.
    StorefrontClient(const QString& domain, const QString& accessToken, SystemLocale locale, HttpTransport& transport,
                     Clock& clock);

    /// ISO 3166-1 alpha-2, in capitals. Takes effect with the next request.
    void setCountry(const QString& code) { m_country = code; }
    [[nodiscard]] const QString& country() const { return m_country; }
    void setLanguage(AppLanguage language) { m_language = language; }

    /// Sends a document and decodes the "data" of its answer. `decode` runs on a worker thread.
    template <typename Record>
    [[nodiscard]] QCoro::Task<ApiResult<Record>> send(QString query, QJsonObject variables, Retry retry,
                                                      Record (*decode)(const JsonReader& data), std::stop_token stop)
    {
        const QByteArray body = requestBody(query, std::move(variables));
        for (int attempt = 0;; ++attempt) {
            ApiResult<Record> result = co_await sendOnce(body, decode, stop);
            if (result || retry == Retry::Never || attempt == maximumRetries || !isTransient(result.error()))
                co_return result;
            co_await pause(attempt + 1, stop);
            if (stop.stop_requested())
                co_return Unexpected(Failure(Cancelled{}));
        }
    }

    /// The body as sent: the document, and its variables with country and language filled in where the document
    /// declares them and the caller named none.
    [[nodiscard]] QByteArray requestBody(const QString& query, QJsonObject variables) const;

    /// The record in an answer's envelope, or what the answer says went wrong.
    template <typename Record>
    [[nodiscard]] static ApiResult<Record> decodeEnvelope(const QByteArray& body,
                                                          Record (*decode)(const JsonReader& data))
    {
        auto document = JsonDocument::parse(body);
        if (!document)
            return apiFailure(APIError::Decoding{document.error()});
        const JsonReader root = document->root();
        if (auto refusal = envelopeError(root))
            return Unexpected(Failure(*std::move(refusal)));
        Record record = decode(root.object("data"));
        if (document->error())
            return apiFailure(APIError::Decoding{*document->error()});
        return record;
    }

private:
    static constexpr int maximumRetries = 2;

    template <typename Record>
    [[nodiscard]] QCoro::Task<ApiResult<Record>> sendOnce(QByteArray body, Record (*decode)(const JsonReader& data),
                                                          std::stop_token stop)
    {
        LOOM_CO_TRY(answer, co_await exchange(body, stop));
        ApiResult<Record> result = co_await QtConcurrent::run(
            [answer, decode]() -> ApiResult<Record> { return decodeEnvelope(answer, decode); });
        if (stop.stop_requested())
            co_return Unexpected(Failure(Cancelled{}));
        co_return result;
    }

    /// The body of a 2xx answer.
    [[nodiscard]] QCoro::Task<ApiResult<QByteArray>> exchange(QByteArray body, std::stop_token stop);
    [[nodiscard]] QCoro::Task<> pause(int retryNumber, std::stop_token stop);
    [[nodiscard]] static bool isTransient(const Failure& failure);
    [[nodiscard]] static std::optional<APIError> envelopeError(const JsonReader& root);

    QUrl m_endpoint;
    QByteArray m_accessToken;
    SystemLocale m_locale;
    QString m_country;
    AppLanguage m_language;
    HttpTransport& m_transport;
    Clock& m_clock;
};

} // namespace loom
