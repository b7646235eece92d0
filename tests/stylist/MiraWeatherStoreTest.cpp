#include "MiraFixture.h"

using namespace loom;
using namespace std::chrono_literals;

namespace
{

class MiraWeatherStoreTest : public MiraFixture
{
protected:
    MiraWeatherStoreTest()
    {
        preferences.remove(preferences::weatherAsked);
        weatherAnswers.insert(QString(), lisbon(14.4));
        weatherAnswers.insert(QStringLiteral("Oslo"), {{QStringLiteral("city"), QStringLiteral("Oslo")},
                                                       {QStringLiteral("temperature"), -3},
                                                       {QStringLiteral("code"), 71}});
    }
    static QJsonObject lisbon(const QJsonValue& temperature)
    {
        return {{QStringLiteral("city"), QStringLiteral("Lisbon")},
                {QStringLiteral("temperature"), temperature},
                {QStringLiteral("code"), 61}};
    }
    void settleWeather(MiraWeatherStore& store)
    {
        waitUntil([&store] { return !store.isLoading() && !store.isLocating(); }, "the weather");
    }
    [[nodiscard]] MiraWeatherStore::Services weatherServices()
    {
        return {.widget = widget, .location = location, .folder = folder, .preferences = preferences, .clock = clock};
    }
};

} // namespace

TEST_F(MiraWeatherStoreTest, TheDesktopIsAskedOnceAndTheWeatherOfItsPlaceIsKept)
{
    weather.begin();
    EXPECT_TRUE(weather.isLocating());
    location.answer(Coordinates{.latitude = 38.7, .longitude = -9.1});
    waitUntil([this] { return weather.isKnown(); }, "the weather");
    EXPECT_EQ(weather.text(), QStringLiteral("14 °C · Lisbon"));
    EXPECT_EQ(weather.condition(), QStringLiteral("Rainy"));
    EXPECT_EQ(sent("/weather").at(0).value(QStringLiteral("latitude")).toDouble(), 38.7);

    // What is younger than half an hour is not asked for again, what is older is, and shows until the answer.
    MiraWeatherStore other(weatherServices());
    clock.advance(30min - 1s);
    other.begin();
    EXPECT_EQ(other.text(), weather.text());
    settleWeather(other);
    EXPECT_EQ(sent("/weather").size(), 1U);
    clock.advance(1s);
    weatherAnswers[QString()] = lisbon(9);
    other.begin();
    EXPECT_EQ(other.text(), QStringLiteral("14 °C · Lisbon"));
    settleWeather(other);
    EXPECT_EQ(other.text(), QStringLiteral("9 °C · Lisbon"));
    EXPECT_EQ(sent("/weather").at(1).value(QStringLiteral("longitude")).toDouble(), -9.1);
    EXPECT_EQ(location.asked, 1);

    // Weather of long ago is none.
    clock.advance(3h);
    EXPECT_FALSE(other.shared());
    EXPECT_EQ(other.text(), QString());
}

TEST_F(MiraWeatherStoreTest, ADesktopThatDoesNotTellIsNotAskedAgainAndACityCanBeTyped)
{
    weather.begin();
    location.answer(Unexpected(LocationFailure::Refused));
    settleWeather(weather);
    EXPECT_FALSE(weather.failure().isEmpty());
    weather.begin();
    EXPECT_EQ(location.asked, 1);

    weather.setCity(QStringLiteral(" \n "));
    weather.setCity(QStringLiteral("Atlantis"));
    settleWeather(weather);
    EXPECT_EQ(weather.failure(), QStringLiteral("That city isn't known. Try a bigger one nearby."));
    weather.setCity(QStringLiteral(" Oslo\u202e"));
    settleWeather(weather);
    EXPECT_EQ(weather.failure(), QString());
    EXPECT_EQ(weather.text(), QStringLiteral("-3 °C · Oslo"));
    weather.setCity(QStringLiteral("Atlantis"));
    settleWeather(weather);
    EXPECT_EQ(weather.city(), QStringLiteral("Oslo"));

    // Not shared, nothing is told and nothing asked.
    weather.setShared(false);
    clock.advance(1h);
    const auto before = sent("/weather").size();
    MiraWeatherStore other(weatherServices());
    other.begin();
    settleWeather(other);
    EXPECT_FALSE(other.shared());
    EXPECT_EQ(sent("/weather").size(), before);
    weather.forgetPlace();
    EXPECT_EQ(weather.city(), QString());
}

TEST_F(MiraWeatherStoreTest, ConditionsBeyondTheTableAreStormsAndSilenceEndsAfterEightSeconds)
{
    for (const auto& [code, condition] : {std::pair(QJsonValue(250), "Stormy"), std::pair(QJsonValue(1e15), "Stormy"),
                                          std::pair(QJsonValue(-1), "Mild"), std::pair(QJsonValue(), "Mild")}) {
        weatherAnswers[QStringLiteral("Oslo")].insert(QStringLiteral("code"), code);
        weather.setCity(QStringLiteral("Oslo"));
        settleWeather(weather);
        EXPECT_EQ(weather.condition(), QString::fromLatin1(condition));
    }
    on("/weather", [](auto&) { return Answer::silence(); });
    const auto before = server.requests().size();
    weather.setCity(QStringLiteral("Oslo"));
    server.waitForRequests(before + 1);
    clock.advance(8s);
    settleWeather(weather);
    EXPECT_FALSE(weather.failure().isEmpty());
}

TEST_F(MiraWeatherStoreTest, AnAnswerThatIsNoWeatherChangesNothing)
{
    weather.setCity(QStringLiteral("Oslo"));
    settleWeather(weather);
    for (const QJsonValue& temperature : {QJsonValue(1e300), QJsonValue(QStringLiteral("NaN")), QJsonValue(),
                                          QJsonValue(QJsonArray()), QJsonValue(-273.2)}) {
        weatherAnswers.insert(QStringLiteral("Bad"), lisbon(temperature));
        weather.setCity(QStringLiteral("Bad"));
        settleWeather(weather);
        EXPECT_EQ(weather.text(), QStringLiteral("-3 °C · Oslo"));
        EXPECT_FALSE(weather.failure().isEmpty());
    }
}
