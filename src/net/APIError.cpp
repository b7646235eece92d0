#include "net/APIError.h"

#include "base/Overloaded.h"

#include <QCoreApplication>

namespace loom
{

namespace
{

QString sentence(const APIError::Http& error)
{
    const QString code = error.code.value_or(QString());
    if (code == QLatin1String("RATE_LIMITED"))
        return QCoreApplication::translate("Loomstreet", "Too many attempts. Wait a moment and try again.");
    if (code == QLatin1String("REAUTH") || code == QLatin1String("UNAUTHORIZED"))
        return QCoreApplication::translate("Loomstreet", "Your session has expired. Sign in again.");
    if (code == QLatin1String("NO_EMAIL"))
        return QCoreApplication::translate("Loomstreet", "Enter your email address.");
    if (code == QLatin1String("BAD_INPUT"))
        return QCoreApplication::translate("Loomstreet",
                                           "Some of the details don't look right. Check them and try again.");
    if (error.status >= 500)
        return QCoreApplication::translate("Loomstreet", "LOOMSTREET is having trouble right now. Try again shortly.");
    return QCoreApplication::translate("Loomstreet", "That didn't work. Try again.");
}

QString unexpectedAnswer()
{
    return QCoreApplication::translate("Loomstreet", "Something unexpected came back. Try again.");
}

} // namespace

QString errorDescription(const APIError& error)
{
    return std::visit(Overloaded{
                          [](const APIError::Network&) {
                              return QCoreApplication::translate("Loomstreet", "Couldn't reach LOOMSTREET. Try again.");
                          },
                          [](const APIError::Http& http) { return sentence(http); },
                          [](const APIError::GraphQL&) { return unexpectedAnswer(); },
                          [](const APIError::Decoding&) { return unexpectedAnswer(); },
                          [](const APIError::InvalidResponse&) { return unexpectedAnswer(); },
                          [](const APIError::NotConfigured&) {
                              return QCoreApplication::translate("Loomstreet", "The app is missing its configuration.");
                          },
                          [](const APIError::Offline&) {
                              return QCoreApplication::translate(
                                  "Loomstreet", "You appear to be offline. Check your connection and try again.");
                          },
                          [](const APIError::Timeout&) {
                              return QCoreApplication::translate("Loomstreet", "The request timed out. Try again.");
                          },
                      },
                      error.value);
}

QString debugDescription(const APIError& error)
{
    return std::visit(
        Overloaded{
            [](const APIError::Network& network) { return QStringLiteral("network: ") + network.description; },
            [](const APIError::Http& http) {
                return QStringLiteral("http %1 %2 %3")
                    .arg(http.status)
                    .arg(http.code.value_or(QString()), http.message.value_or(QString()))
                    .trimmed();
            },
            [](const APIError::GraphQL& graphQL) {
                return QStringLiteral("graphQL: ") + graphQL.messages.join(QStringLiteral(" | "));
            },
            [](const APIError::Decoding& decoding) { return QStringLiteral("decoding: ") + decoding.description; },
            [](const APIError::InvalidResponse&) { return QStringLiteral("invalid response"); },
            [](const APIError::NotConfigured&) { return QStringLiteral("not configured"); },
            [](const APIError::Offline&) { return QStringLiteral("offline"); },
            [](const APIError::Timeout&) { return QStringLiteral("timeout"); },
        },
        error.value);
}

} // namespace loom
