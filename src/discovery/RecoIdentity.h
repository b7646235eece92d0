#pragma once

#include <QString>

namespace loom
{

/// For whom the store recommends: always the visitor of this machine, and the customer while one is signed in.
struct RecoIdentity {
    QString visitorId;
    QString customer; ///< the customer's number; empty when nobody is signed in, as are those below
    QString email;
    QString name;

    bool operator==(const RecoIdentity&) const = default;
};

} // namespace loom
