#include "stylist/MiraFailure.h"

#include <QCoreApplication>

namespace loom
{

MiraFailure miraFailure(const APIError& error)
{
    const QString generic = QStringLiteral("GENERIC_FAILED");
    if (const auto* const http = error.as<APIError::Http>()) {
        const QString code = http->code.value_or(QString());
        return {.code = code.isEmpty() ? generic : code, .status = http->status};
    }
    if (error.as<APIError::Offline>())
        return {.code = QStringLiteral("OFFLINE")};
    if (error.as<APIError::Timeout>())
        return {.code = QStringLiteral("NETWORK_TIMEOUT")};
    return {.code = generic};
}

QString errorDescription(const MiraFailure& failure)
{
    if (failure.code == QLatin1String("OFFLINE"))
        return QCoreApplication::translate("Loomstreet", "You appear to be offline.");
    if (failure.code == QLatin1String("NETWORK_TIMEOUT"))
        return QCoreApplication::translate("Loomstreet", "Mira took too long to respond.");
    if (failure.code == QLatin1String("RATE_LIMITED"))
        return QCoreApplication::translate("Loomstreet", "You're sending messages too quickly. Wait a moment first.");
    if (failure.code == QLatin1String("BAD_INPUT"))
        return QCoreApplication::translate("Loomstreet", "This message couldn't be sent as written.");
    if (failure.status >= 500)
        return QCoreApplication::translate("Loomstreet", "LOOMSTREET is having trouble right now.");
    return QCoreApplication::translate("Loomstreet", "Couldn't reach LOOMSTREET.");
}

} // namespace loom
