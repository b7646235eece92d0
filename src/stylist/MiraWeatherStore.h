#pragma once

#include "net/ApiResult.h"
#include "net/Work.h"
#include "stylist/LocationSource.h"
#include "stylist/MiraWeather.h"

#include <QDateTime>
#include <QObject>

#include <chrono>
#include <variant>

namespace loom
{

class Clock;
class DataFolder;
class JsonReader;
class Preferences;
class WidgetClient;

/// The weather where the shopper is: in the city they typed, or where the desktop says this machine is. The desktop is
/// asked once by itself, and then only when the shopper wants it. One per process; main thread.
class MiraWeatherStore final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isKnown READ isKnown NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(QString condition READ condition NOTIFY changed)
    Q_PROPERTY(QString city READ city NOTIFY changed)
    Q_PROPERTY(double wind READ wind NOTIFY changed)
    Q_PROPERTY(double rainChance READ rainChance NOTIFY changed)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed)
    Q_PROPERTY(bool isLocating READ isLocating NOTIFY changed)
    Q_PROPERTY(bool canLocate READ canLocate NOTIFY changed)
    Q_PROPERTY(QString failure READ failure NOTIFY changed)
    Q_PROPERTY(bool isShared READ isShared WRITE setShared NOTIFY changed)

public:
    /// Older weather is asked for anew,
    static constexpr std::chrono::minutes freshness{30};
    /// and weather as old as this says nothing any more.
    static constexpr std::chrono::hours usefulness{3};
    static constexpr qsizetype longestCity = 120;
    static constexpr std::chrono::seconds timeout{8};

    struct Services {
        WidgetClient& widget;
        LocationSource& location;
        DataFolder& folder;
        Preferences& preferences;
        const Clock& clock;
    };

    explicit MiraWeatherStore(Services services, QObject* parent = nullptr);

    /// What the stylist may be told; nothing where it is not known or the shopper does not share it.
    [[nodiscard]] std::optional<MiraWeather> shared() const;
    /// There is weather to show, shared or not.
    [[nodiscard]] bool isKnown() const;
    /// "14 °C · Lisbon"; empty where it is not known.
    [[nodiscard]] QString text() const;
    /// In the language of the window.
    [[nodiscard]] QString condition() const;
    [[nodiscard]] QString city() const;
    [[nodiscard]] double wind() const;
    [[nodiscard]] double rainChance() const;
    [[nodiscard]] bool isLoading() const { return m_loading.isRunning(); }
    [[nodiscard]] bool isLocating() const { return m_locating.isRunning(); }
    [[nodiscard]] bool canLocate() const;
    /// Why the last wish was not granted, in the language of the window; empty otherwise.
    [[nodiscard]] QString failure() const;
    [[nodiscard]] bool isShared() const;
    void setShared(bool isShared);

    /// Somebody looks: reads what is kept, asks for what is older, and asks the desktop for the place if nobody ever
    /// did. Does nothing while the weather is not shared.
    Q_INVOKABLE void begin();
    /// Asks anew if what is known is older than it should be.
    Q_INVOKABLE void refresh();
    Q_INVOKABLE void setCity(const QString& text);
    Q_INVOKABLE void locate();
    /// The place and its weather, for good.
    Q_INVOKABLE void forgetPlace();

Q_SIGNALS:
    void changed();

private:
    struct UnknownCity {
        bool operator==(const UnknownCity&) const = default;
    };
    using Trouble = std::variant<APIError, LocationFailure, UnknownCity>;
    /// Where the weather is asked for: a typed city, or a place.
    struct Place {
        QString city; ///< empty for a place that the desktop told
        std::optional<Coordinates> coordinates;

        bool operator==(const Place&) const = default;
    };
    /// An answer of the backend.
    struct Answer {
        MiraWeather weather;
        std::optional<Coordinates> coordinates;
    };

    [[nodiscard]] static Answer decodeAnswer(const JsonReader& json);
    void restore();
    [[nodiscard]] bool isYounger(std::chrono::seconds age) const;
    [[nodiscard]] QCoro::Task<> fetch(Place place);
    [[nodiscard]] QCoro::Task<> findPlace();
    void adopt(Place place, const Answer& answer);
    void setTrouble(std::optional<Trouble> trouble);

    Services m_services;
    bool m_isRestored = false;
    std::optional<Place> m_place;
    std::optional<MiraWeather> m_weather;
    QDateTime m_savedAt; ///< of the weather
    std::optional<Trouble> m_trouble;
    Work m_loading;
    Work m_locating;
};

} // namespace loom
