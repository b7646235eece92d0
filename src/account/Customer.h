#pragma once

#include <QString>

namespace loom
{

/// Whose account it is.
struct Customer {
    QString numericId; ///< of the platform; empty when the backend does not tell it
    QString email;
    QString displayName; ///< may be empty

    bool operator==(const Customer&) const = default;
};

} // namespace loom
