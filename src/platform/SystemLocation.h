#pragma once

#include "stylist/LocationSource.h"

#include <QString>

#include <optional>

namespace loom
{

/// What the desktop's location service (GeoClue) says. Nothing of it is loaded before somebody asks. Main thread.
class SystemLocation final : public LocationSource
{
public:
    /// `desktopID`: by which the desktop knows the application, and asks the shopper on its behalf.
    explicit SystemLocation(QString desktopID);

    [[nodiscard]] bool isAvailable() override;
    [[nodiscard]] QCoro::Task<Result<Coordinates, LocationFailure>> locate(std::stop_token stop) override;

private:
    QString m_desktopID;
    std::optional<bool> m_isAvailable;
};

} // namespace loom
