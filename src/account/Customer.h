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

/// What tells this customer from any other: the platform's number, or where that is not known what stands for the
/// address, which is not to be had from it.
[[nodiscard]] QString accountIDOf(const Customer& customer);

} // namespace loom
