#include "app/AppLifecycle.h"
#include "app/AppModel.h"
#include "base/FeatureGates.h"
#include "base/Random.h"
#include "base/SystemClock.h"
#include "platform/DesktopAppearance.h"
#include "platform/LaunchOptions.h"
#include "platform/SingleInstance.h"
#include "platform/SystemLocaleReading.h"
#include "platform/SystemNetworkStatus.h"
#include "ui/shell/ApplicationSetup.h"
#include "ui/shell/EventLoopProbe.h"
#include "ui/shell/PictureLoading.h"
#include "ui/shell/StartReport.h"
#include "ui/shell/WindowManager.h"
#include "ui/theme/Fonts.h"

#include <QDesktopServices>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QStandardPaths>
#include <QtConcurrent>

using namespace loom;

namespace
{

const QString applicationID = QStringLiteral("com.loomstreet.Loomstreet");

/// Where this user's files of the application live.
QString dataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/LOOMSTREET");
}

QString pictureCacheFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/LOOMSTREET/pictures");
}

int runShop(const AppConfig& config, const LaunchOptions& options, const SingleInstance& instance, QQmlEngine& engine,
            SystemAppearance& appearance)
{
    SystemClock clock;
    SystemRandom random;
    SystemNetworkStatus network;
    AllFeatures features;
    AppModel model(config, {.clock = clock,
                            .random = random,
                            .network = network,
                            .features = features,
                            .dataFolder = dataFolder(),
                            .locale = readSystemLocale(),
                            .openExternally = [](const QUrl& url) { QDesktopServices::openUrl(url); },
                            .heldKeys =
                                [] {
                                    return QGuiApplication::queryKeyboardModifiers();
                                }});
    WindowManager windows(engine, model, appearance);
    model.setWindowHost(&windows);
    AppLifecycle lifecycle(model, windows, clock);

    QObject::connect(&instance, &SingleInstance::activated, &lifecycle, &AppLifecycle::handleReopen);
    QObject::connect(&instance, &SingleInstance::linksOpened, &lifecycle, [&lifecycle](const QStringList& links) {
        for (const QString& link : links)
            lifecycle.handleOpen(link);
    });
    QObject::connect(&model, &AppModel::quitRequested, &lifecycle, [&lifecycle] {
        if (lifecycle.shouldTerminate())
            QCoreApplication::quit();
    });
    QObject::connect(
        qGuiApp, &QGuiApplication::applicationStateChanged, model.session(),
        [&model](Qt::ApplicationState state) { model.session()->setActive(state == Qt::ApplicationActive); });

    std::optional<EventLoopProbe> probe;
    if (!options.eventLoopReportFile.isEmpty())
        probe.emplace();
    lifecycle.didFinishLaunching(
        {.link = options.links.isEmpty() ? std::nullopt : std::optional(options.links.first())});
    for (const QString& link : options.links.mid(1))
        lifecycle.handleOpen(link);
    StartReport report(options.startReportFile, options.screenshotFile);
    if (const WindowSession* const session = model.keySession())
        report.watch(windows.windowOf(*session));
    const int status = QCoreApplication::exec();
    if (probe)
        writeReport(options.eventLoopReportFile, probe->report());
    return status;
}

} // namespace

int main(int argc, char* argv[])
{
    prepareApplication(applicationID);
    QGuiApplication application(argc, argv);
    const LaunchOptions options = readLaunchOptions(QCoreApplication::arguments());
    // Reading certificates takes longer than all the rest of this; they are needed with the first request.
    QFuture<bool> authority =
        QtConcurrent::run([file = options.authorityFile] { return file.isEmpty() || addCertificateAuthority(file); });
    PictureLoading pictures(pictureCacheFolder());
    QQmlEngine engine;
    prepareEngine(engine, pictures);
    const auto preloaded = WindowManager::preload(engine);

    SingleInstance instance(applicationID);
    if (instance.claim(options.links) == SingleInstance::Role::Second)
        return 0;
    registerFonts();
    DesktopAppearance appearance;
    if (!authority.result())
        return 1;
    const std::optional<AppConfig> config = AppConfig::load();
    if (!config) {
        const auto window = WindowManager::showConfigurationMissing(engine, appearance);
        QObject::connect(&instance, &SingleInstance::activated, window.get(), &QWindow::requestActivate);
        QObject::connect(&instance, &SingleInstance::linksOpened, window.get(), &QWindow::requestActivate);
        return QCoreApplication::exec();
    }
    return runShop(*config, options, instance, engine, appearance);
}
