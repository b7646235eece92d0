#include "account/AuthSession.h"

#include "base/Dates.h"
#include "base/JsonReader.h"

namespace loom
{

QJsonObject toJson(const AuthSession& session)
{
    return {{QStringLiteral("token"), session.token},
            {QStringLiteral("expiresAt"), formatDate(session.expiresAt)},
            {QStringLiteral("customer"), QJsonObject{{QStringLiteral("numericId"), session.customer.numericId},
                                                     {QStringLiteral("email"), session.customer.email},
                                                     {QStringLiteral("displayName"), session.customer.displayName}}}};
}

AuthSession decodeAuthSession(const JsonReader& json)
{
    const JsonReader customer = json.object("customer");
    AuthSession session{.token = json.text("token"),
                        .expiresAt = json.date("expiresAt"),
                        .customer = {.numericId = customer.optionalText("numericId").value_or(QString()),
                                     .email = customer.text("email"),
                                     .displayName = customer.optionalText("displayName").value_or(QString())}};
    if (session.token.isEmpty())
        json.fail(QStringLiteral("expected a token"));
    return session;
}

} // namespace loom
