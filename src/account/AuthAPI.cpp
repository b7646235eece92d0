#include "account/AuthAPI.h"

#include "base/JsonReader.h"
#include "net/WidgetClient.h"

namespace loom
{

namespace
{

using namespace std::chrono_literals;

constexpr WidgetClient::Options anonymous{.identity = Identity::Anonymous, .timeout = 15s};

/// The backend writes it as a number or as a text.
QString readNumericId(const JsonReader& json)
{
    if (const auto number = json.optionalInteger("numericId"))
        return QString::number(*number);
    return json.optionalText("numericId").value_or(QString());
}

/// `customer` holds the e-mail and the name.
SignedIn decodeFrom(const JsonReader& json, const JsonReader& customer)
{
    SignedIn answer{.token = json.text("token"),
                    .email = customer.optionalText("email").value_or(QString()).trimmed(),
                    .name = customer.optionalText("name").value_or(QString()).trimmed(),
                    .numericId = readNumericId(customer)};
    if (answer.token.isEmpty())
        json.fail(QStringLiteral("expected a token"));
    return answer;
}

SignedIn decodeSignedIn(const JsonReader& json)
{
    return decodeFrom(json, json.object("customer"));
}

SignedIn decodeExchange(const JsonReader& json)
{
    SignedIn answer = decodeFrom(json, json);
    if (answer.email.isEmpty())
        json.fail(QStringLiteral("expected an e-mail"));
    return answer;
}

} // namespace

QCoro::Task<ApiResult<QByteArray>> AuthAPI::requestCode(QString email, std::stop_token stop)
{
    return m_widget.post(QStringLiteral("/app-auth/request-code"), {{QStringLiteral("email"), email}}, anonymous, stop);
}

QCoro::Task<ApiResult<SignedIn>> AuthAPI::signInWithCode(QString email, QString code, std::stop_token stop)
{
    return signedIn(QStringLiteral("/app-auth/login-code"),
                    {{QStringLiteral("email"), email}, {QStringLiteral("code"), code}}, decodeSignedIn, stop);
}

QCoro::Task<ApiResult<SignedIn>> AuthAPI::signIn(QString email, QString password, std::stop_token stop)
{
    return signedIn(QStringLiteral("/app-auth/login"),
                    {{QStringLiteral("email"), email}, {QStringLiteral("password"), password}}, decodeSignedIn, stop);
}

QCoro::Task<ApiResult<SignedIn>> AuthAPI::setPassword(QString email, QString code, QString password, QString name,
                                                      std::stop_token stop)
{
    return signedIn(QStringLiteral("/app-auth/set-password"),
                    {{QStringLiteral("email"), email},
                     {QStringLiteral("code"), code},
                     {QStringLiteral("password"), password},
                     {QStringLiteral("name"), name}},
                    decodeSignedIn, stop);
}

QCoro::Task<ApiResult<SignedIn>> AuthAPI::exchange(QString code, QString verifier, std::stop_token stop)
{
    return signedIn(QStringLiteral("/app-auth/oauth/exchange"),
                    {{QStringLiteral("code"), code}, {QStringLiteral("verifier"), verifier}}, decodeExchange, stop);
}

QCoro::Task<ApiResult<QByteArray>> AuthAPI::deleteAccount(std::stop_token stop)
{
    return m_widget.post(QStringLiteral("/app-auth/delete"), {}, {.timeout = 15s}, stop);
}

QCoro::Task<ApiResult<SignedIn>> AuthAPI::signedIn(QString path, QJsonObject body,
                                                   SignedIn (*decode)(const JsonReader&), std::stop_token stop)
{
    LOOM_CO_TRY(answer, co_await m_widget.post(path, body, anonymous, stop));
    co_return decodedAnswer(decodeJson(answer, decode));
}

} // namespace loom
