#pragma once

#include <QJsonObject>
#include <QString>

namespace loom
{

/// Who calls a service of the backend: always the visitor of this machine, and the customer while one is signed in.
struct CallerIdentity {
    QString visitorId;
    QString customer; ///< the customer's number; empty when nobody is signed in, as are those below
    QString email;
    QString name;

    bool operator==(const CallerIdentity&) const = default;
};

/// Adds to a body what is known; an empty text is left out.
void insertKnown(QJsonObject& body, const QString& key, const QString& value);

/// Adds "name", "email" and "customer", as far as somebody is signed in.
void insertCustomer(QJsonObject& body, const CallerIdentity& caller);

} // namespace loom
