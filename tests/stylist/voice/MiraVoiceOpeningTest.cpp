#include "stylist/voice/MiraVoiceOpening.h"

#include "support/Json.h"
#include "support/Printing.h"

#include <QJsonArray>

#include <array>

using namespace loom;

TEST(MiraVoiceOpeningTest, TheOpeningSaysWhoCallsAndWhatTheyHave)
{
    const MiraVoiceOpening opening{
        .guideName = "Mira",
        .visitorId = "v-1",
        .visitorToken = "t-1",
        .appToken = "app-1",
        .language = "fr",
        .systemLanguage = "de",
        .email = "jane@mail.example",
        .weather = MiraWeather{.city = "Oslo", .temperature = -2.5, .code = 71, .wind = 12, .rainChance = 80},
        .closet = {{.title = "My\n\u202ecoat", .handle = {}}, {}},
        .wishlist = {{.title = "Silk top", .handle = "silk-top"}},
        .cart = {}};
    EXPECT_EQ(
        MiraVoiceFrames::opening(opening),
        R"({"appToken":"app-1","cart":[],"city":"Oslo","closet":[{"handle":"","title":"My coat"}],)"
        R"("email":"jane@mail.example","guideName":"Mira","lang":"fr","sysLang":"de","visitorId":"v-1",)"
        R"("visitorToken":"t-1","weather":{"city":"Oslo","code":71,"rainChance":80,"temperature":-2.5,"wind":12},)"
        R"("wishlist":[{"handle":"silk-top","title":"Silk top"}]})");
    EXPECT_EQ(MiraVoiceFrames::opening({}),
              R"({"appToken":"","cart":[],"closet":[],"guideName":"","lang":"","sysLang":"","visitorId":"",)"
              R"("visitorToken":"","wishlist":[]})");

    MiraVoiceOpening rich;
    rich.cart.assign(100, {.title = "Sock", .handle = "sock"});
    EXPECT_EQ(rich.toJson().value(QStringLiteral("cart")).toArray().size(), 60);
    // The service must be able to read what the weather does not know.
    rich.weather = MiraWeather{};
    EXPECT_EQ(rich.toJson().value(QStringLiteral("city")), QJsonValue(QStringLiteral("")));
    EXPECT_FALSE(rich.toJson().value(QStringLiteral("weather")).toObject().contains(QStringLiteral("code")));
}

TEST(MiraVoiceOpeningTest, SoundAndFarewellHaveTheirFrames)
{
    EXPECT_EQ(MiraVoiceFrames::audio(std::array{0.5F, -0.25F}), R"({"type":"audio","b64":"AAAAPwAAgL4="})");
    EXPECT_EQ(MiraVoiceFrames::hangup(), R"({"type":"hangup"})");
}

TEST(MiraVoiceOpeningTest, TheLineGoesWhereTheBackendIs)
{
    const std::pair<const char*, const char*> rows[] = {
        {"https://help.example", "wss://help.example/api/support/widget/voice/rt"},
        {"HTTPS://help.example:8443/a/", "wss://help.example:8443/a/api/support/widget/voice/rt"},
        {"http://localhost:80", "ws://localhost:80/api/support/widget/voice/rt"},
        {"ftp://help.example", ""},
        {"wss://help.example", ""},
        {"help.example", ""},
        {"https://", ""},
        {"https://help.example/?a=", ""},
        {"https://help.example/#", ""},
        {"https://help example", ""},
        {"", ""},
    };
    for (const auto& [base, address] : rows)
        EXPECT_EQ(MiraVoiceFrames::address(QString::fromUtf8(base)).value_or(QUrl()).toString(), address) << base;
}
