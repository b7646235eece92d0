#include "stylist/MiraWeather.h"

namespace loom
{

QJsonObject toJson(const MiraWeather& weather)
{
    QJsonObject json{{QStringLiteral("city"), weather.city},
                     {QStringLiteral("temperature"), weather.temperature},
                     {QStringLiteral("wind"), weather.wind},
                     {QStringLiteral("rainChance"), weather.rainChance}};
    if (weather.code)
        json.insert(QStringLiteral("code"), *weather.code);
    return json;
}

} // namespace loom
