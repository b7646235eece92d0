#include "stylist/WeatherWords.h"

#include <QLocale>

#include <array>
#include <cmath>
#include <limits>

namespace loom
{

namespace
{

struct Condition {
    int first;
    int last;
    KeyedText label;
};

constexpr KeyedText mild = QT_TRANSLATE_NOOP3("Loomstreet", "Mild", "weather.mild");
constexpr std::array<Condition, 10> conditions{{
    {0, 0, QT_TRANSLATE_NOOP3("Loomstreet", "Sunny", "weather.sunny")},
    {1, 2, QT_TRANSLATE_NOOP3("Loomstreet", "Partly cloudy", "weather.partlyCloudy")},
    {3, 3, QT_TRANSLATE_NOOP3("Loomstreet", "Overcast", "weather.overcast")},
    {45, 45, QT_TRANSLATE_NOOP3("Loomstreet", "Foggy", "weather.foggy")},
    {48, 48, QT_TRANSLATE_NOOP3("Loomstreet", "Foggy", "weather.foggy")},
    {51, 57, QT_TRANSLATE_NOOP3("Loomstreet", "Drizzly", "weather.drizzle")},
    {61, 67, QT_TRANSLATE_NOOP3("Loomstreet", "Rainy", "weather.rain")},
    {71, 77, QT_TRANSLATE_NOOP3("Loomstreet", "Snowy", "weather.snow")},
    {80, 82, QT_TRANSLATE_NOOP3("Loomstreet", "Showery", "weather.showers")},
    {95, std::numeric_limits<int>::max(), QT_TRANSLATE_NOOP3("Loomstreet", "Stormy", "weather.storm")},
}};

} // namespace

KeyedText weatherLabel(std::optional<int> code)
{
    for (const Condition& condition : conditions) {
        if (code && *code >= condition.first && *code <= condition.last)
            return condition.label;
    }
    return mild;
}

QString weatherWord(std::optional<int> code)
{
    return QString::fromLatin1(weatherLabel(code).english);
}

QString temperatureText(double celsius)
{
    constexpr double greatestWhole = 1e15;
    if (!std::isfinite(celsius))
        return QStringLiteral("0");
    if (std::trunc(celsius) == celsius && std::abs(celsius) < greatestWhole)
        return QString::number(static_cast<qint64>(celsius)); // so that "-0" is "0"
    return QString::number(celsius, 'g', QLocale::FloatingPointShortest);
}

} // namespace loom
