#include "services/RemoteConfig.h"

#include "ConfigFixture.h"

#include <QFile>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

class RemoteConfigTest : public ConfigFixture
{
protected:
    /// What changed since it was last asked.
    std::string told() { return std::exchange(m_told, {}); }
    void listen()
    {
        const auto note = [this](const char* what) {
            return [this, what] {
                m_told += m_told.empty() ? what : std::string(" ") + what;
            };
        };
        QObject::connect(&*config, &RemoteConfig::featuresChanged, &*config, note("features"));
        QObject::connect(&*config, &RemoteConfig::copyChanged, &*config, note("copy"));
        QObject::connect(&*config, &RemoteConfig::dashboardChanged, &*config, note("dashboard"));
        QObject::connect(&*config, &RemoteConfig::promoChanged, &*config, note("promo"));
        QObject::connect(&*config, &RemoteConfig::toolsChanged, &*config, note("tools"));
    }
    static QByteArray promo(const QByteArray& bounds)
    {
        return R"({"home": {"promo": {"id": "p", "link": "/x", "title": {"en": "Sale", "de": "Rabatt"})" + bounds +
               "}}}";
    }

private:
    std::string m_told;
};

TEST_F(RemoteConfigTest, WhereOnlyTheBuildHasASayNeitherTheStoreNorWhatItSaidIsAsked)
{
    make();
    fetch(R"({"revision": 5, "features": {"imageSearch": false}})");
    config.reset();
    const auto asked = server.requests().size();
    config.emplace(widget, folder, clock, RemoteConfig::Source::BuiltIn);
    config->start();
    config->refresh();
    config->becameActive();
    clock.advance(RemoteConfig::interval);
    EXPECT_FALSE(config->fetching());
    EXPECT_EQ(server.requests().size(), asked);
    EXPECT_TRUE(config->isEnabled(Feature::ImageSearch));
    make();
    EXPECT_FALSE(config->isEnabled(Feature::ImageSearch)); // it is kept for the next start
}

TEST_F(RemoteConfigTest, ANewerOrEqualRevisionIsAppliedAndOnlyWhatChangedIsTold)
{
    make();
    listen();
    EXPECT_TRUE(config->isEnabled(Feature::ImageSearch));
    EXPECT_EQ(config->dashboardKeys().size(), 6);
    fetch(R"({"revision": 5, "features": {"imageSearch": false}, "tools": {"hidden": ["closet"]}})");
    EXPECT_EQ(server.requests().back().query, "platform=macos&publicKey=key-1");
    EXPECT_EQ(told(), "features tools");
    EXPECT_FALSE(config->isEnabled(Feature::ImageSearch));
    EXPECT_TRUE(config->isEnabled(Feature::AutoUpdate));

    fetch(R"({"revision": 4, "features": {}})");
    EXPECT_EQ(told(), "");
    EXPECT_FALSE(config->isEnabled(Feature::ImageSearch));
    fetch(R"({"revision": 5, "tools": {"hidden": ["closet"]}, "home": {"dashboard": ["orders"]}})");
    EXPECT_EQ(told(), "features dashboard");
    EXPECT_EQ(config->dashboardKeys(), QStringList{QStringLiteral("orders")});
    fetch(R"({"tools": {"hidden": ["closet"]}, "home": {"dashboard": ["orders"]}, "copy": {"a": {"en": "b"}}})");
    EXPECT_EQ(told(), "copy");
    EXPECT_EQ(config->values().revision, 5);
}

TEST_F(RemoteConfigTest, WhatWasAppliedLastHoldsWhileTheBackendIsDown)
{
    make();
    fetch(R"({"revision": 5, "features": {"miraVoice": false}})");
    for (const auto& answer :
         {Answer::drop(), Answer::body("{", 200), Answer::body("{}", 503),
          Answer::redirect(server.url(QStringLiteral("/api/support/widget/app-version/config")))}) {
        folder.waitUntilWritten();
        make();
        EXPECT_FALSE(config->isEnabled(Feature::MiraVoice));
        // A redirection to itself never ends but here.
        server.allow("GET /api/support/widget/app-version/config", [answer](const ReceivedRequest&) { return answer; });
        config->refresh();
        settle();
        EXPECT_TRUE(config->lastFetched());
        EXPECT_EQ(config->values().revision, 5);
    }
    folder.waitUntilWritten();
    QFile cache(directory.filePath(QStringLiteral("remote-config-macos.json")));
    ASSERT_TRUE(cache.open(QIODevice::ReadWrite) && cache.resize(cache.size() / 2));
    cache.close();
    make();
    EXPECT_EQ(config->values(), RemoteConfig::Values());
}

TEST_F(RemoteConfigTest, ItAsksAtTheStartFromTimeToTimeAndOnComingToTheFront)
{
    make();
    say("{}");
    config->start();
    config->refresh(); // it is being asked already
    config->becameActive();
    settle();
    EXPECT_EQ(server.requests().size(), 1U);

    clock.advance(60s);
    config->becameActive();
    EXPECT_FALSE(config->fetching());
    clock.advance(1s);
    server.expect("GET /api/support/widget/app-version/config", Answer::body("", 500));
    config->becameActive();
    settle();
    config->becameActive(); // a failure is an attempt too
    EXPECT_FALSE(config->fetching());

    clock.advance(1738s);
    EXPECT_FALSE(config->fetching());
    say("{}");
    clock.advance(1s);
    EXPECT_TRUE(config->fetching());
    settle();

    clock.setNow(clock.now().addDays(-1));
    say("{}");
    config->becameActive();
    settle();

    server.expect("GET /api/support/widget/app-version/config", Answer::silence());
    config->refresh();
    server.waitForRequests(5);
    config.reset();
    EXPECT_EQ(clock.sleepers(), 0);
}

TEST_F(RemoteConfigTest, APromotionIsShownWithinItsTimeInTheLanguageOfTheShopper)
{
    make();
    fetch(promo(""));
    ASSERT_TRUE(config->promo());
    EXPECT_EQ(config->promo()->title, QStringLiteral("Sale"));
    listen();
    config->setLanguage(AppLanguage::German);
    EXPECT_EQ(config->promo()->title, QStringLiteral("Rabatt"));
    EXPECT_EQ(told(), "promo copy");

    fetch(promo(R"(, "startsAt": "2025-03-09T10:07:06Z", "endsAt": "2025-03-09T11:07:06Z")"));
    EXPECT_EQ(told(), "promo");
    EXPECT_FALSE(config->promo());
    clock.advance(7199s);
    EXPECT_FALSE(config->promo());
    clock.advance(1s);
    EXPECT_TRUE(config->promo());
    clock.advance(3599s);
    EXPECT_TRUE(config->promo());
    clock.advance(1s);
    EXPECT_FALSE(config->promo());
    EXPECT_EQ(told(), "promo promo");
    EXPECT_EQ(clock.sleepers(), 0);

    fetch(promo(R"(, "endsAt": "2025-03-10")"));
    EXPECT_TRUE(config->promo());
    clock.setNow(QDateTime(QDate(2025, 3, 10), QTime(1, 0), Qt::UTC)); // the machine slept
    say("{}");
    config->becameActive();
    EXPECT_FALSE(config->promo());
    settle();
}

} // namespace
