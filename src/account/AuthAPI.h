#pragma once

#include "net/ApiResult.h"

#include <qcoro/qcorotask.h>

#include <optional>
#include <stop_token>

namespace loom
{

class JsonReader;
class WidgetClient;

/// What the backend answers to somebody who signed in.
struct SignedIn {
    QString token;
    QString email; ///< empty when the answer does not tell
    QString name;
    QString numericId;

    bool operator==(const SignedIn&) const = default;
};

/// The calls of signing in. All but the deletion are anonymous. Holds no state; the client must outlive it. Main
/// thread.
class AuthAPI
{
public:
    explicit AuthAPI(WidgetClient& widget)
        : m_widget(widget)
    {
    }

    [[nodiscard]] QCoro::Task<ApiResult<QByteArray>> requestCode(QString email, std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<SignedIn>> signInWithCode(QString email, QString code, std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<SignedIn>> signIn(QString email, QString password, std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<SignedIn>> setPassword(QString email, QString code, QString password,
                                                               QString name, std::stop_token stop);
    /// `verifier` proves that who brings the provider's code also asked for it.
    [[nodiscard]] QCoro::Task<ApiResult<SignedIn>> exchange(QString code, QString verifier, std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<QByteArray>> deleteAccount(std::stop_token stop);

private:
    [[nodiscard]] QCoro::Task<ApiResult<SignedIn>>
    signedIn(QString path, QJsonObject body, SignedIn (*decode)(const JsonReader&), std::stop_token stop);

    WidgetClient& m_widget;
};

} // namespace loom
