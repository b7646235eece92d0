#pragma once

#include "account/PackageEvent.h"

#include <optional>
#include <vector>

namespace loom
{

enum class PackageStatus { Unknown, Label, Transit, Out, Delivered, Problem };

/// What a carrier says of a package.
struct Package {
    QString number;
    QString carrier;
    PackageStatus status = PackageStatus::Unknown;
    std::optional<QDateTime> expectedAt;
    QString url;                      ///< the carrier's page of it, over https; else empty
    std::vector<PackageEvent> events; ///< the newest first

    bool operator==(const Package&) const = default;
};

} // namespace loom
