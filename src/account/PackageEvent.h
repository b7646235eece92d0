#pragma once

#include <QDateTime>
#include <QString>

namespace loom
{

/// Something that happened to a package on its way.
struct PackageEvent {
    QDateTime at; ///< UTC
    QString text;
    QString place;

    bool operator==(const PackageEvent&) const = default;
};

} // namespace loom
