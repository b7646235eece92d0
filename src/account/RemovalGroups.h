#pragma once

#include <QStringList>

namespace loom
{

/// Files of the data folder that belong to an account.
struct RemovalGroups {
    /// The stylist's: removed whenever somebody signs in or out.
    [[nodiscard]] static const QStringList& stylist();
    /// The account's: removed when it is signed out of, and when another account signs in.
    [[nodiscard]] static const QStringList& account();
    /// The shopper's own: removed only when another account signs in.
    [[nodiscard]] static const QStringList& shopper();
};

} // namespace loom
