#include "stylist/MiraWeatherStore.h"

#include "base/Clock.h"
#include "base/Overloaded.h"
#include "catalog/DisplayText.h"
#include "net/WidgetClient.h"
#include "storage/DataFolder.h"
#include "storage/Preferences.h"
#include "stylist/WeatherWords.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace loom
{

namespace
{

const QString placeFile = QStringLiteral("lst_wx_coords");
const QString weatherFile = QStringLiteral("snap-mira-weather");

std::optional<Coordinates> readCoordinates(const JsonReader& json)
{
    const auto latitude = json.optionalDecimal("latitude");
    const auto longitude = json.optionalDecimal("longitude");
    if (!latitude || !longitude || !(std::abs(*latitude) <= 90) || !(std::abs(*longitude) <= 180))
        return std::nullopt;
    return Coordinates{.latitude = *latitude, .longitude = *longitude};
}

MiraWeather readWeather(const JsonReader& json)
{
    MiraWeather weather{.city =
                            displayLine(json.optionalText("city").value_or(QString()), MiraWeatherStore::longestCity),
                        .temperature = json.decimal("temperature")};
    if (const auto code = json.optionalInteger("code"))
        weather.code = static_cast<int>(std::clamp<qint64>(*code, -1, 1000)); // beyond, all mean the same
    weather.wind = json.optionalDecimal("wind").value_or(0);
    weather.rainChance = json.optionalDecimal("rainChance").value_or(0);
    if (!(std::abs(weather.temperature) < 100)) // colder and hotter it is nowhere
        json.fail(QStringLiteral("a temperature that is none"));
    return weather;
}

} // namespace

MiraWeatherStore::MiraWeatherStore(Services services, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_loading([this] { Q_EMIT changed(); })
    , m_locating([this] { Q_EMIT changed(); })
{
}

std::optional<MiraWeather> MiraWeatherStore::shared() const
{
    return isShared() && isKnown() ? m_weather : std::nullopt;
}

bool MiraWeatherStore::isKnown() const
{
    return m_weather && isYounger(usefulness);
}

bool MiraWeatherStore::isYounger(std::chrono::seconds age) const
{
    const qint64 seconds = m_savedAt.isValid() ? m_savedAt.secsTo(m_services.clock.now()) : age.count();
    return seconds >= 0 && seconds < age.count();
}

QString MiraWeatherStore::text() const
{
    if (!isKnown())
        return {};
    const QString degrees = QCoreApplication::translate("Loomstreet", "%1 °C").arg(std::lround(m_weather->temperature));
    return m_weather->city.isEmpty() ? degrees : degrees + QStringLiteral(" · ") + m_weather->city;
}

QString MiraWeatherStore::condition() const
{
    return isKnown() ? weatherLabel(m_weather->code).translated() : QString();
}

QString MiraWeatherStore::city() const
{
    if (m_place && !m_place->city.isEmpty())
        return m_place->city;
    return m_weather ? m_weather->city : QString();
}

double MiraWeatherStore::wind() const
{
    return isKnown() ? m_weather->wind : 0;
}

double MiraWeatherStore::rainChance() const
{
    return isKnown() ? m_weather->rainChance : 0;
}

bool MiraWeatherStore::canLocate() const
{
    return m_services.location.isAvailable();
}

QString MiraWeatherStore::failure() const
{
    if (!m_trouble)
        return {};
    return std::visit(
        Overloaded{[](const APIError& error) { return errorDescription(error); },
                   [](LocationFailure failure) {
                       return failure == LocationFailure::Refused
                                  ? QCoreApplication::translate(
                                        "Loomstreet", "LOOMSTREET may not see where you are. Type your city instead.")
                                  : QCoreApplication::translate(
                                        "Loomstreet", "Your location couldn't be found. Type your city instead.");
                   },
                   [](UnknownCity) {
                       return QCoreApplication::translate("Loomstreet",
                                                          "That city isn't known. Try a bigger one nearby.");
                   }},
        *m_trouble);
}

bool MiraWeatherStore::isShared() const
{
    return m_services.preferences.value(preferences::weatherShared);
}

void MiraWeatherStore::setShared(bool isShared)
{
    if (isShared == this->isShared())
        return;
    m_services.preferences.set(preferences::weatherShared, isShared);
    if (isShared) {
        refresh();
    } else {
        m_loading.stop();
        m_locating.stop();
    }
    Q_EMIT changed();
}

void MiraWeatherStore::begin()
{
    restore();
    if (!isShared())
        return;
    if (m_place)
        refresh();
    else if (!m_services.preferences.value(preferences::weatherAsked) && canLocate())
        locate();
}

void MiraWeatherStore::refresh()
{
    restore();
    if (isShared() && m_place && !isYounger(freshness) && !m_loading.isRunning() && !m_locating.isRunning())
        static_cast<void>(fetch(*m_place));
}

void MiraWeatherStore::setCity(const QString& text)
{
    restore();
    const QString city = displayLine(text, longestCity);
    m_locating.stop();
    if (!city.isEmpty())
        static_cast<void>(fetch({.city = city, .coordinates = {}}));
}

void MiraWeatherStore::locate()
{
    restore();
    m_services.preferences.set(preferences::weatherAsked, true);
    static_cast<void>(findPlace());
}

void MiraWeatherStore::forgetPlace()
{
    m_isRestored = true;
    m_loading.stop();
    m_locating.stop();
    m_place.reset();
    m_weather.reset();
    m_savedAt = {};
    m_trouble.reset();
    m_services.folder.remove(placeFile);
    m_services.folder.remove(weatherFile);
    Q_EMIT changed();
}

QCoro::Task<> MiraWeatherStore::findPlace()
{
    const Work::Run run = m_locating.begin();
    setTrouble({});
    const auto found = co_await m_services.location.locate(run.stop());
    if (run.isStopped())
        co_return;
    if (!found) {
        if (found.error() != LocationFailure::Cancelled)
            setTrouble(found.error());
        co_return;
    }
    static_cast<void>(fetch({.city = {}, .coordinates = *found}));
}

QCoro::Task<> MiraWeatherStore::fetch(Place place)
{
    const Work::Run run = m_loading.begin();
    setTrouble({});
    QJsonObject question;
    if (place.city.isEmpty() && place.coordinates) {
        question = {{QStringLiteral("latitude"), place.coordinates->latitude},
                    {QStringLiteral("longitude"), place.coordinates->longitude}};
    } else {
        question = {{QStringLiteral("city"), place.city}};
    }
    const auto body = co_await m_services.widget.post(
        QStringLiteral("/weather"), question, {.identity = Identity::Anonymous, .timeout = timeout}, run.stop());
    if (run.isStopped())
        co_return;
    const auto answer =
        body ? decodedAnswer(decodeJson(*body, decodeAnswer)) : ApiResult<Answer>(Unexpected(body.error()));
    if (answer) {
        adopt(std::move(place), *answer);
    } else if (!answer.error().isCancelled()) {
        const auto* const http = answer.error().error().as<APIError::Http>();
        if (http && http->status == 404 && !place.city.isEmpty())
            setTrouble(UnknownCity());
        else
            setTrouble(answer.error().error());
    }
}

MiraWeatherStore::Answer MiraWeatherStore::decodeAnswer(const JsonReader& json)
{
    return {.weather = readWeather(json), .coordinates = readCoordinates(json)};
}

void MiraWeatherStore::adopt(Place place, const Answer& answer)
{
    if (answer.coordinates && !place.coordinates)
        place.coordinates = answer.coordinates;
    m_place = std::move(place);
    m_weather = answer.weather;
    m_savedAt = m_services.clock.now();
    QJsonObject kept{{QStringLiteral("city"), m_place->city}};
    if (m_place->coordinates) {
        kept.insert(QStringLiteral("latitude"), m_place->coordinates->latitude);
        kept.insert(QStringLiteral("longitude"), m_place->coordinates->longitude);
    }
    m_services.folder.save(placeFile, kept);
    m_services.folder.saveSnapshot(weatherFile, toJson(*m_weather), m_savedAt);
    Q_EMIT changed();
}

void MiraWeatherStore::restore()
{
    if (std::exchange(m_isRestored, true))
        return;
    m_place =
        m_services.folder
            .load(placeFile,
                  [](const JsonReader& json) {
                      return Place{.city = displayLine(json.optionalText("city").value_or(QString()), longestCity),
                                   .coordinates = readCoordinates(json)};
                  })
            .value_or(Place());
    if (m_place->city.isEmpty() && !m_place->coordinates)
        m_place.reset();
    if (const auto kept = m_services.folder.loadSnapshot(weatherFile, readWeather); kept && m_place) {
        m_weather = kept->value;
        m_savedAt = kept->savedAt;
    }
    Q_EMIT changed();
}

void MiraWeatherStore::setTrouble(std::optional<Trouble> trouble)
{
    m_trouble = std::move(trouble);
    Q_EMIT changed();
}

} // namespace loom
