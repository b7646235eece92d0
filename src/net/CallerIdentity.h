#pragma once

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

} // namespace loom
