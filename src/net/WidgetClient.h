#pragma once

#include "net/ApiResult.h"

#include <QJsonObject>
#include <QList>
#include <QUrl>
#include <qcoro/qcorotask.h>

#include <chrono>
#include <stop_token>

namespace loom
{

class HttpTransport;
struct HttpRequest;
class Random;
class SessionSource;

/// The prefix a call goes to: the widget's, with the public key, or the open one, without it.
enum class Audience { Widget, Public };
/// Whether the token of the signed-in customer travels with a call.
enum class Identity { Customer, Anonymous };

/// A file on its way to the backend.
struct UploadFile {
    QString fieldName;
    QString fileName;
    QString mimeType;
    QByteArray bytes;
};

/// All calls to the store's own backend: JSON by POST, reads by GET, files by multipart. Holds configuration, no
/// state; created once. Nothing is retried here. Main thread.
class WidgetClient
{
public:
    static constexpr std::chrono::seconds standardTimeout{20};
    static constexpr std::chrono::seconds uploadSilence{60};

    struct Options {
        Audience audience = Audience::Widget;
        Identity identity = Identity::Customer;
        std::chrono::milliseconds timeout = standardTimeout; ///< of the whole call
    };

    /// `supportBase` without a "/" at its end.
    WidgetClient(QString supportBase, QString supportKey, HttpTransport& transport, SessionSource& session,
                 Random& random);

    /// The bytes of a 2xx answer.
    [[nodiscard]] QCoro::Task<ApiResult<QByteArray>> post(QString path, QJsonObject body, Options options,
                                                          std::stop_token stop);
    /// `options.identity` means nothing here: reads carry no token.
    [[nodiscard]] QCoro::Task<ApiResult<QByteArray>> get(QString path, QList<std::pair<QString, QString>> query,
                                                         Options options, std::stop_token stop);
    /// `silence`: how long nothing may be sent or received.
    [[nodiscard]] QCoro::Task<ApiResult<QByteArray>> upload(QString path, QList<std::pair<QString, QString>> fields,
                                                            UploadFile file, std::stop_token stop,
                                                            std::chrono::milliseconds silence = uploadSilence);

private:
    [[nodiscard]] QCoro::Task<ApiResult<QByteArray>> send(HttpRequest request, std::stop_token stop);
    [[nodiscard]] QUrl address(const QString& path, Audience audience) const;

    QString m_supportBase;
    QString m_supportKey;
    HttpTransport& m_transport;
    SessionSource& m_session;
    Random& m_random;
};

/// The common answer of calls that return no data.
struct OKResponse {
    std::optional<QString> code;
    std::optional<QString> message;

    bool operator==(const OKResponse&) const = default;
};

[[nodiscard]] ApiResult<OKResponse> decodeOKResponse(const QByteArray& body);

/// What a status outside 200 to 299 means, with the body that came with it.
[[nodiscard]] APIError::Http backendError(int status, const QByteArray& body);

/// The backend does not, or no longer, know the session of the call it refused.
[[nodiscard]] bool isRefusedSession(const APIError::Http& error);

/// A multipart/form-data body (RFC 7578): text fields in their order, then the file.
[[nodiscard]] QByteArray multipartBody(const QByteArray& boundary, const QList<std::pair<QString, QString>>& fields,
                                       const UploadFile& file);

} // namespace loom
