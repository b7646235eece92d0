#pragma once

#include "base/Result.h"

#include <qcoro/qcorotask.h>

#include <stop_token>

namespace loom
{

/// A place on earth, in degrees.
struct Coordinates {
    double latitude = 0;
    double longitude = 0;

    bool operator==(const Coordinates&) const = default;
};

enum class LocationFailure {
    Unavailable, ///< the desktop cannot tell, or not now
    Refused,     ///< the shopper or the desktop does not allow it
    TimedOut,
    Cancelled,
};

/// Where this machine is, as far as the desktop tells. Main thread.
class LocationSource
{
public:
    LocationSource() = default;
    LocationSource(const LocationSource&) = delete;
    LocationSource& operator=(const LocationSource&) = delete;
    virtual ~LocationSource() = default;

    /// Whether asking makes sense at all.
    [[nodiscard]] virtual bool isAvailable() = 0;
    /// Asks once.
    [[nodiscard]] virtual QCoro::Task<Result<Coordinates, LocationFailure>> locate(std::stop_token stop) = 0;
};

} // namespace loom
