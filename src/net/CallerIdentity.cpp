#include "net/CallerIdentity.h"

namespace loom
{

void insertKnown(QJsonObject& body, const QString& key, const QString& value)
{
    if (!value.isEmpty())
        body.insert(key, value);
}

void insertCustomer(QJsonObject& body, const CallerIdentity& caller)
{
    insertKnown(body, QStringLiteral("name"), caller.name);
    insertKnown(body, QStringLiteral("email"), caller.email);
    insertKnown(body, QStringLiteral("customer"), caller.customer);
}

} // namespace loom
