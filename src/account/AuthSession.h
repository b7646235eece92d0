#pragma once

#include "account/Customer.h"

#include <QDateTime>
#include <QJsonObject>

#include <chrono>

namespace loom
{

class JsonReader;

/// A customer who signed in, and until when. Holds a secret: it is kept in the secure store alone, and never logged.
struct AuthSession {
    /// How long a session lasts from the moment of signing in. It is not prolonged.
    static constexpr std::chrono::seconds lifetime{5'184'000};

    QString token;       ///< what calls to the backend carry as "appToken"
    QDateTime expiresAt; ///< UTC
    Customer customer;

    [[nodiscard]] bool isOver(const QDateTime& now) const { return expiresAt <= now; }
    /// Begun in the future, which tells of a clock that was set back: it would last too long.
    [[nodiscard]] bool isAhead(const QDateTime& now) const { return expiresAt > now.addSecs(lifetime.count()); }

    bool operator==(const AuthSession&) const = default;
};

/// The date as ISO 8601 text in UTC.
[[nodiscard]] QJsonObject toJson(const AuthSession& session);
[[nodiscard]] AuthSession decodeAuthSession(const JsonReader& json);

} // namespace loom
