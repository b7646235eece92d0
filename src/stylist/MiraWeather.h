#pragma once

#include <QJsonObject>
#include <QObject>

#include <optional>

namespace loom
{

/// The weather where the shopper is.
struct MiraWeather {
    Q_GADGET
    Q_PROPERTY(QString city MEMBER city)
    Q_PROPERTY(double temperature MEMBER temperature)

public:
    QString city;            ///< empty where it is not known
    double temperature = 0;  ///< in degrees Celsius
    std::optional<int> code; ///< WMO code table 4677, as forecast services give it
    double wind = 0;         ///< in kilometres per hour
    double rainChance = 0;   ///< in percent

    bool operator==(const MiraWeather&) const = default;
};

/// As it is kept, and as the stylist is told of it.
[[nodiscard]] QJsonObject toJson(const MiraWeather& weather);

} // namespace loom

Q_DECLARE_METATYPE(loom::MiraWeather)
