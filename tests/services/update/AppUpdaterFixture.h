#pragma once

#include "net/WidgetClient.h"
#include "release/FolderExchange.h"
#include "release/InstallJob.h"
#include "release/InstallLock.h"
#include "release/TrialRun.h"
#include "services/update/AppUpdater.h"
#include "storage/DataFolder.h"
#include "storage/Preferences.h"

#include "support/FakeFeatures.h"
#include "support/Json.h"
#include "support/NetworkFixture.h"
#include "support/Running.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThreadPool>

namespace loom
{

// Two images and their signatures, made with minisign.
inline const QByteArray publisherKey = "RWRNmKIEp73BgQlbrr9VXUN2dOZmWrhZUZNiS+exgX6n5cIxn0rnUxwb";
inline const QByteArray image15 = "the image of 1.5.0";
inline const QByteArray signature15 =
    "untrusted comment: signature from minisign secret key\n"
    "RURNmKIEp73BgWfAhgi50BkgBB5Mh9DVmfefvbHHXA5HkusW6vI00i55Ji/Z/MBccjiFOyJI8oJ4E2erY3qSvvEKMMYnmp8CTgk=\n"
    "trusted comment: loomstreet 1.5.0\n"
    "aRCQDuanPwi90VLN2jEa3ywp3DMkMhbj+T99j1QoP7QgbT62SRvZeS+ezCculkZ63MQVEkNBLDtx2jvHYv4MCw==\n";
inline const QByteArray image16 = "the image of 1.6.0, which is newer";
inline const QByteArray signature16 =
    "untrusted comment: signature from minisign secret key\n"
    "RURNmKIEp73BgQylX1hhv8BRJ266/L5ZGUs5Pn58sMtbuYQZmc/hry/ffE0XRf/iWps35bDrPieK7lbw1qHha8ugAnfho8/nJwc=\n"
    "trusted comment: loomstreet 1.6.0\n"
    "7ATMWcevNuQwPDnpBOUChSgrK4kx6tUob8Y0Jd8+LamYDOGrIFmIA6z93V4Db3yQr4fpI/NWzH1n02GaWbz0Cg==\n";
inline const QString sha15 = QStringLiteral("f30141f8671bb7025c6cc66ecc507599479970bf68d2b96aad1d4655c04bd013");

/// The updater of an application 1.4.2 (312) that lies in a folder of its own, and a store that announces releases.
class AppUpdaterFixture : public NetworkFixture
{
protected:
    using Phase = AppUpdater::Phase;
    using Action = AppUpdater::Action;
    using Check = AppUpdater::Check;

    AppUpdaterFixture()
    {
        QDir().mkpath(application);
        QDir().mkpath(working);
    }

    /// The application starts anew over what the run before left on the disk.
    void launch()
    {
        quit();
        data.emplace(directory.path());
        preferences.emplace(*data);
        updater.emplace(AppUpdater::Services{.widget = widget,
                                             .preferences = *preferences,
                                             .features = features,
                                             .network = network,
                                             .clock = clock,
                                             .random = random},
                        AppUpdater::Identity{.version = version,
                                             .build = build,
                                             .publicKey = key,
                                             .languageCode =
                                                 [] {
                                                     return QStringLiteral("de");
                                                 }},
                        UpdatePlatform{.workingFolder = working,
                                       .program = application + QStringLiteral("/bin/loomstreet"),
                                       .folder = folder,
                                       .startDetached =
                                           [this](const QString& program, const QStringList& arguments) {
                                               started.append(program + QLatin1Char(' ') +
                                                              arguments.join(QLatin1Char(' ')));
                                               return canStart;
                                           },
                                       .openExternally = [this](const QUrl& url) { opened.append(url); },
                                       .trial = trial ? &*trial : nullptr});
        QObject::connect(&*updater, &AppUpdater::updateFailed, &*updater, [this] { ++notices; });
        QObject::connect(&*updater, &AppUpdater::quitRequested, &*updater, [this] { ++quitRequests; });
        QObject::connect(&*updater, &AppUpdater::terminateReplied, &*updater, [this] { ++replies; });
    }
    void start()
    {
        launch();
        updater->start();
        updater->beginChecking();
        settle();
    }
    void quit()
    {
        updater.reset();
        settle();
        preferences.reset();
        data.reset();
    }
    /// Lets the workers end, and whoever waits for them go on.
    static void settle()
    {
        for (int step = 0; step < 5; ++step) {
            while (!QThreadPool::globalInstance()->waitForDone(5))
                drainEvents();
            drainEvents();
        }
    }
    void await(Phase phase)
    {
        waitUntil([this, phase] { return updater->phase() == phase; }, "the updater comes as far as that");
        settle();
    }

    [[nodiscard]] QJsonObject record(const QString& latest = QStringLiteral("1.5.0"),
                                     const QJsonObject& changes = {}) const
    {
        QJsonObject release{{QStringLiteral("latest"), latest},
                            {QStringLiteral("build"), 400},
                            {QStringLiteral("url"), server.url(QLatin1Char('/') + latest).toString()},
                            {QStringLiteral("notes"), QJsonObject{{QStringLiteral("de"), QStringLiteral("Neues")}}}};
        for (auto change = changes.begin(); change != changes.end(); ++change)
            release.insert(change.key(), change.value());
        return release;
    }
    /// The store answers the next question with this release; empty: with none.
    void announce(const QJsonObject& release)
    {
        const QJsonValue announced = release.isEmpty() ? QJsonValue() : QJsonValue(release);
        server.expect("GET /api/support/widget/app-version", Answer::json({{QStringLiteral("macos"), announced}}));
    }
    void serveImage() { server.expect("GET /1.5.0", Answer::body(image15)); }
    void serveSignature() { server.expect("GET /1.5.0.minisig", Answer::body(signature15)); }
    /// Asks by hand, and waits for the answer.
    void ask(const QJsonObject& release)
    {
        announce(release);
        updater->checkByHand();
        ASSERT_EQ(updater->phase(), Phase::Checking);
        waitUntil([this] { return updater->phase() != Phase::Checking; }, "the store has answered");
    }
    /// Starts, and has 1.5.0 downloaded in the background.
    void startAndGetReady()
    {
        announce(record());
        serveImage();
        serveSignature();
        start();
        await(Phase::Ready);
    }
    /// The updater asks of itself, and has its answer.
    void tick(const QJsonObject& release)
    {
        announce(release);
        const QDateTime before = updater->lastChecked();
        clock.advance(std::chrono::milliseconds(1));
        updater->checkForUpdates(Check::Automatic);
        waitUntil([this, before] { return updater->lastChecked() != before; }, "the store has answered");
    }

    [[nodiscard]] QString file(const QString& name) const { return working + QLatin1Char('/') + name; }
    [[nodiscard]] QString imageFile() const { return file(QStringLiteral("loomstreet-1.5.0-400.squashfs")); }
    static void put(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    /// What an application leaves that has handed 1.5.0 to the helper.
    void leavePending(std::optional<InstallResult::Code> code, bool hasImage = true)
    {
        launch();
        preferences->set(preferences::updatePendingInstall, json(R"({"version": "1.5.0", "build": 400})").toObject());
        if (hasImage)
            put(imageFile(), image15);
        ASSERT_TRUE(write(InstallJob{.version = QStringLiteral("1.5.0"),
                                     .build = 400,
                                     .relaunch = false,
                                     .createdAt = clock.now(),
                                     .processIdentifier = 4711,
                                     .image = imageFile(),
                                     .sha256 = sha15,
                                     .folder = application},
                          working));
        if (code)
            ASSERT_TRUE(write(InstallResult{.code = *code, .path = application, .relaunch = false}, working));
        quit();
    }
    [[nodiscard]] int failures() const
    {
        const auto counts = preferences->value(preferences::updateInPlaceFailures);
        return counts ? counts->value(QStringLiteral("1.5.0-400")).toInt() : 0;
    }
    [[nodiscard]] bool isPending() const { return preferences->value(preferences::updatePendingInstall).has_value(); }

    QTemporaryDir directory;
    QString application = directory.path() + QStringLiteral("/app");
    QString working = directory.path() + QStringLiteral("/updates");
    QString version = QStringLiteral("1.4.2");
    qint64 build = 312;
    QByteArray key = publisherKey;
    std::optional<ApplicationFolder> folder = ApplicationFolder{.path = application, .version = version, .build = 312};
    FakeFeatures features;
    bool canStart = true;
    QStringList started;
    QList<QUrl> opened;
    int notices = 0;
    int quitRequests = 0;
    int replies = 0;
    WidgetClient widget{server.base(), QStringLiteral("key-1"), transport, session, random};
    std::optional<TrialRun> trial;
    std::optional<DataFolder> data;
    std::optional<Preferences> preferences;
    std::optional<AppUpdater> updater;
};

} // namespace loom
