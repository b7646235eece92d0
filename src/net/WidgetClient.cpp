#include "net/WidgetClient.h"

#include "base/JsonReader.h"
#include "base/Random.h"
#include "net/HttpTransport.h"
#include "net/SessionSource.h"

#include <QJsonDocument>

namespace loom
{

namespace
{

ApiResult<QByteArray> readAnswer(ApiResult<HttpResponse> answer)
{
    LOOM_TRY(response, std::move(answer));
    if (response.status < 200 || response.status > 299)
        return apiFailure(backendError(response.status, response.body));
    return response.body;
}

/// Quotation marks and line ends would end the parameter they stand in (RFC 7578 section 4.2 and the URL Standard's
/// multipart encoding).
QByteArray quoted(const QString& text)
{
    QByteArray bytes = text.toUtf8();
    bytes.replace('"', "%22").replace('\r', "%0D").replace('\n', "%0A");
    return '"' + bytes + '"';
}

} // namespace

WidgetClient::WidgetClient(QString supportBase, QString supportKey, HttpTransport& transport, SessionSource& session,
                           Random& random)
    : m_supportBase(std::move(supportBase))
    , m_supportKey(std::move(supportKey))
    , m_transport(transport)
    , m_session(session)
    , m_random(random)
{
}

QCoro::Task<ApiResult<QByteArray>> WidgetClient::send(HttpRequest request, std::stop_token stop)
{
    if (m_supportBase.isEmpty() || m_supportKey.isEmpty())
        co_return apiFailure(APIError::NotConfigured{});
    co_return readAnswer(co_await m_transport.send(request, stop));
}

QUrl WidgetClient::address(const QString& path, Audience audience) const
{
    const QString prefix =
        audience == Audience::Public ? QStringLiteral("/api/pub/") : QStringLiteral("/api/support/widget/");
    return QUrl(m_supportBase + prefix + (path.startsWith(QLatin1Char('/')) ? path.mid(1) : path));
}

QCoro::Task<ApiResult<QByteArray>> WidgetClient::post(QString path, QJsonObject body, Options options,
                                                      std::stop_token stop)
{
    if (options.audience == Audience::Widget)
        body.insert(QStringLiteral("publicKey"), m_supportKey);
    const QString appToken = options.identity == Identity::Customer ? m_session.appToken() : QString();
    if (!appToken.isEmpty())
        body.insert(QStringLiteral("appToken"), appToken);

    ApiResult<QByteArray> answer = co_await send({.method = HttpMethod::Post,
                                                  .url = address(path, options.audience),
                                                  .headers = {{"Content-Type", "application/json"}},
                                                  .body = QJsonDocument(body).toJson(QJsonDocument::Compact),
                                                  .silence = {},
                                                  .total = options.timeout},
                                                 stop);
    if (!answer && !answer.error().isCancelled() && !appToken.isEmpty()) {
        if (const auto* const http = answer.error().error().as<APIError::Http>(); http && isRefusedSession(*http))
            m_session.tokenRefused(appToken);
    }
    co_return answer;
}

QCoro::Task<ApiResult<QByteArray>> WidgetClient::get(QString path, QList<std::pair<QString, QString>> query,
                                                     Options options, std::stop_token stop)
{
    if (options.audience == Audience::Widget)
        query.append({QStringLiteral("publicKey"), m_supportKey});
    // QUrlQuery leaves "+" as it is, which servers read as a blank.
    QByteArrayList items;
    for (const auto& [name, value] : query)
        items.append(QUrl::toPercentEncoding(name) + '=' + QUrl::toPercentEncoding(value));
    QUrl url = address(path, options.audience);
    if (!items.isEmpty())
        url.setQuery(QString::fromLatin1(items.join('&')), QUrl::StrictMode);
    co_return co_await send(
        {.method = HttpMethod::Get, .url = url, .headers = {}, .body = {}, .silence = {}, .total = options.timeout},
        stop);
}

QCoro::Task<ApiResult<QByteArray>> WidgetClient::upload(QString path, QList<std::pair<QString, QString>> fields,
                                                        UploadFile file, std::stop_token stop,
                                                        std::chrono::milliseconds silence)
{
    const QByteArray boundary = "lst-" + m_random.uuid().toString(QUuid::WithoutBraces).toUpper().toLatin1();
    co_return co_await send({.method = HttpMethod::Post,
                             .url = address(path, Audience::Widget),
                             .headers = {{"Content-Type", "multipart/form-data; boundary=" + boundary}},
                             .body = multipartBody(boundary, fields, file),
                             .silence = silence,
                             .total = {}},
                            stop);
}

ApiResult<OKResponse> decodeOKResponse(const QByteArray& body)
{
    return decodedAnswer(decodeJson(body, [](const JsonReader& json) {
        if (!json.isObject())
            json.fail(QStringLiteral("expected an object"));
        return OKResponse{.code = json.optionalText("code"), .message = json.optionalText("message")};
    }));
}

APIError::Http backendError(int status, const QByteArray& body)
{
    APIError::Http error{.status = status, .code = {}, .message = {}};
    const auto read = decodeJson(body, [&error](const JsonReader& json) {
        error.code = json.optionalText("code");
        error.message = json.optionalText("message");
        if (!error.message)
            error.message = json.optionalText("error");
        return true;
    });
    static_cast<void>(read); // a body that is no JSON object simply says nothing
    if (!error.code && status == 401)
        error.code = QStringLiteral("REAUTH");
    if (!error.code && status == 429)
        error.code = QStringLiteral("RATE_LIMITED");
    return error;
}

bool isRefusedSession(const APIError::Http& error)
{
    return error.code == QLatin1String("REAUTH") || error.code == QLatin1String("UNAUTHORIZED");
}

QByteArray multipartBody(const QByteArray& boundary, const QList<std::pair<QString, QString>>& fields,
                         const UploadFile& file)
{
    QByteArray body;
    for (const auto& [name, value] : fields) {
        body += "--" + boundary + "\r\nContent-Disposition: form-data; name=" + quoted(name) + "\r\n\r\n" +
                value.toUtf8() + "\r\n";
    }
    body += "--" + boundary + "\r\nContent-Disposition: form-data; name=" + quoted(file.fieldName) +
            "; filename=" + quoted(file.fileName) + "\r\nContent-Type: " + file.mimeType.toUtf8() + "\r\n\r\n" +
            file.bytes + "\r\n";
    body += "--" + boundary + "--\r\n";
    return body;
}

} // namespace loom
