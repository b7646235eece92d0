#pragma once

#include "FakeWindowHost.h"
#include "app/AppModel.h"

#include "support/FakeDesktopNotifications.h"
#include "support/FakeGlobalKey.h"
#include "support/FakeLocation.h"
#include "support/FakeVoiceAudio.h"
#include "support/NetworkFixture.h"
#include "support/Running.h"

#include <QRegularExpression>
#include <QTemporaryDir>

namespace loom
{

/// The whole application but for its windows, in front of a store that has nothing: every query is answered with 404,
/// and noted.
class AppFixture : public NetworkFixture
{
protected:
    AppFixture()
    {
        for (const char* const path : {"app-version", "app-version/config", "reco", "vessa/reco-rails"})
            server.allow(QByteArray("GET /api/support/widget/") + path,
                         [](const ReceivedRequest&) { return Answer::body("", 404); });
        server.allow("POST /api/2025-04/graphql.json", [this](const ReceivedRequest& request) {
            asked.append(describe(request.json()));
            return Answer::body("", 404);
        });
    }

    /// What one start of the application makes.
    void start() { start(config); }
    void start(const AppConfig& with)
    {
        model.reset();
        model.emplace(with, AppPlatform{.clock = clock,
                                        .random = random,
                                        .network = network,
                                        .dataFolder = home.path() + QStringLiteral("/data"),
                                        .locale = locale,
                                        .openExternally = [this](const QUrl& url) { browsed.append(url); },
                                        .heldKeys = [this] { return keys; },
                                        .makeSystemSecrets = {},
                                        .location = location,
                                        .desktopNotifications = desktop,
                                        .launcherBadge = badge,
                                        .voiceAudio = voiceAudio,
                                        .muteKey = muteKey,
                                        .updates = updates,
                                        .isSafeMode = isSafeMode});
        model->setWindowHost(&host);
    }

    /// Waits until that many queries have come and been answered; returns them in the order of the alphabet, because
    /// they travel side by side.
    [[nodiscard]] QStringList queries(qsizetype count)
    {
        const int asleep = model->windows().empty() ? 0 : asleepWithWindows;
        waitUntil([&] { return asked.size() >= count && clock.sleepers() == asleep; }, "every query is answered");
        drainEvents();
        QStringList sorted = std::exchange(asked, {});
        sorted.sort();
        return sorted;
    }

    /// What the windows show is written a moment later, and from time to time the configuration, news and a newer
    /// release are asked for.
    static constexpr int asleepWithWindows = 4;

    FakeLocation location;
    FakeDesktopNotifications desktop;
    FakeLauncherBadge badge;
    FakeVoiceAudio voiceAudio;
    FakeGlobalKey muteKey;
    UpdatePlatform updates;
    SystemLocale locale{.language = QStringLiteral("de"), .script = {}, .region = QStringLiteral("AT")};
    QTemporaryDir home;
    QList<QUrl> browsed;
    Qt::KeyboardModifiers keys;
    bool isSafeMode = false;
    AppConfig config{.shopifyDomain = server.host(),
                     .storefrontToken = QStringLiteral("token-1"),
                     .supportBase = server.base(),
                     .supportKey = QStringLiteral("key-1"),
                     .storeWebURL = QStringLiteral("https://www.loom.example")};
    FakeWindowHost host;
    QStringList asked; ///< such as "CollectionProducts new-in AT DE"
    std::optional<AppModel> model;

private:
    [[nodiscard]] static QString describe(const QJsonObject& body)
    {
        static const QRegularExpression operation(QStringLiteral("\\bquery (\\w+)"));
        const QJsonObject variables = body.value(QStringLiteral("variables")).toObject();
        QString text = operation.match(body.value(QStringLiteral("query")).toString()).captured(1);
        for (const char* const key : {"handle", "country", "language"}) {
            if (const QString value = variables.value(QLatin1String(key)).toString(); !value.isEmpty())
                text += QLatin1Char(' ') + value;
        }
        return text;
    }
};

} // namespace loom
