#include "app/AppLifecycle.h"
#include "app/AppModel.h"
#include "base/Random.h"
#include "base/SystemClock.h"
#include "platform/BrowserOpening.h"
#include "platform/DesktopAppearance.h"
#include "platform/DesktopGlobalKey.h"
#include "platform/EndRequests.h"
#include "platform/FreedesktopNotifications.h"
#include "platform/KeychainSecureStore.h"
#include "platform/LaunchOptions.h"
#include "platform/LauncherEntryBadge.h"
#include "platform/PulseVoiceAudio.h"
#include "platform/SingleInstance.h"
#include "platform/SystemLocaleReading.h"
#include "platform/SystemLocation.h"
#include "platform/SystemNetworkStatus.h"
#include "platform/WindowActivation.h"
#include "release/TrialRun.h"
#include "services/CopyTranslator.h"
#include "ui/shell/ApplicationSetup.h"
#include "ui/shell/EventLoopProbe.h"
#include "ui/shell/PictureLoading.h"
#include "ui/shell/StartReport.h"
#include "ui/shell/WindowLanguage.h"
#include "ui/shell/WindowManager.h"
#include "ui/theme/Fonts.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QStandardPaths>
#include <QThread>
#include <QtConcurrent>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>
#include <span>

using namespace loom;

namespace
{

const QString applicationID = QStringLiteral("com.loomstreet.Loomstreet");
const QString tryHelp = QStringLiteral(" Try \"loomstreet --help\".");

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

/// Where images of releases wait, and what the application and its helper tell each other.
QString updatesFolder()
{
    return dataFolder() + QStringLiteral("/updates");
}

/// Starts a program that outlives this one, and says nothing where this one was started.
bool startDetached(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setWorkingDirectory(QStringLiteral("/"));
    return process.startDetached();
}

/// What another start, or the desktop, asks for.
void obey(const Activation& activation, AppLifecycle& lifecycle)
{
    if (!activation.action.isEmpty())
        lifecycle.handleAction(activation.action, activation.links);
    else if (!activation.links.isEmpty())
        lifecycle.handleOpen(activation.links);
    else
        lifecycle.handleReopen();
}

void launch(const LaunchOptions& options, AppLifecycle& lifecycle)
{
    if (options.isService) {
        lifecycle.didLaunchAsService();
        return;
    }
    const QStringList links = AppLifecycle::acceptable(options.links);
    lifecycle.didFinishLaunching({.link = links.isEmpty() ? std::nullopt : std::optional(links.first())});
    for (const QString& link : links.mid(1))
        lifecycle.handleOpen(link);
    // There is a new window already.
    if (!options.action.isEmpty() && options.action != QLatin1String("new-window"))
        lifecycle.handleAction(options.action);
}

int runShop(const AppConfig& config, const LaunchOptions& options, const UpdatePlatform& updates,
            const SingleInstance& instance, QQmlEngine& engine, SystemAppearance& appearance, WindowLanguage& language)
{
    SystemClock clock;
    SystemRandom random;
    SystemNetworkStatus network;
    SystemLocation location(applicationID);
    FreedesktopNotifications notifications(applicationID);
    LauncherEntryBadge badge(applicationID);
    PulseVoiceAudio voiceAudio(clock, applicationID);
    DesktopGlobalKey muteKey;
    // Connected before the model is, whose windows come forward in the name of the click.
    WindowActivation comingForward;
    const auto followClick = [&comingForward](const QString& token) {
        comingForward.follow(Activation{.links = {}, .action = {}, .startupId = token, .activationToken = token});
    };
    QObject::connect(&notifications, &DesktopNotifications::activated, &notifications,
                     [followClick](const QMap<QString, QString>&, const QString& token) { followClick(token); });
    QObject::connect(&notifications, &DesktopNotifications::settingsRequested, &notifications, followClick);
    AppModel model(config, {.clock = clock,
                            .random = random,
                            .network = network,
                            .dataFolder = dataFolder(),
                            .locale = readSystemLocale(),
                            .openExternally = openInBrowser,
                            .heldKeys = [] { return QGuiApplication::queryKeyboardModifiers(); },
                            .makeSystemSecrets = [] { return std::make_unique<KeychainSecureStore>(); },
                            .location = location,
                            .desktopNotifications = notifications,
                            .launcherBadge = badge,
                            .voiceAudio = voiceAudio,
                            .muteKey = muteKey,
                            .updates = updates,
                            .isSafeMode = options.isSafeMode});
    WindowManager windows(engine, model, appearance);
    model.setWindowHost(&windows);
    language.follow(*model.market());
    // Behind every other translator, so that it is asked first.
    CopyTranslator copy(*model.remoteConfig(), &language.translator());
    QCoreApplication::installTranslator(&copy);
    QObject::connect(&copy, &CopyTranslator::changed, &windows, &WindowManager::retranslate);
    QObject::connect(&language, &WindowLanguage::changed, &windows, &WindowManager::retranslate);
    QObject::connect(&language, &WindowLanguage::directionChanging, &windows, &WindowManager::holdDirection);
    model.retranslate(); // it was made in the system's language
    AppLifecycle lifecycle(model, windows, clock);

    windows.setActivate([&comingForward](QWindow& window) { comingForward.activate(window); });
    QObject::connect(&instance, &SingleInstance::activated, &lifecycle, [&](const Activation& activation) {
        comingForward.follow(activation);
        obey(activation, lifecycle);
    });
    QObject::connect(&model, &AppModel::quitRequested, &lifecycle, [&lifecycle, &model] {
        if (!lifecycle.shouldTerminate())
            return;
        model.call()->hangUp(); // a call whose window closes would ask for the chat, and so for a window
        QCoreApplication::quit();
    });
    QObject::connect(
        qGuiApp, &QGuiApplication::applicationStateChanged, model.session(),
        [&model](Qt::ApplicationState state) { model.session()->setActive(state == Qt::ApplicationActive); });

    // A desktop that ends asks its programs to end, too; that is no accident.
    const EndRequests ends([&model] { Q_EMIT model.quitRequested(); });
    model.crashReporter().start();
    model.crashReporter().setActive(model.session()->isActive());

    std::optional<EventLoopProbe> probe;
    if (!options.eventLoopReportFile.isEmpty())
        probe.emplace();
    launch(options, lifecycle);
    StartReport report(options.startReportFile, options.screenshotFile);
    if (const WindowSession* const session = model.keySession())
        report.watch(windows.windowOf(*session));
    const int status = QCoreApplication::exec();
    model.crashReporter().markCleanExit();
    model.updater()->willTerminate();
    // Who signs out and quits is not to be signed in again at the next start.
    const QDeadlineTimer lastMoment(std::chrono::seconds(2));
    while (model.auth()->isSaving() && !lastMoment.hasExpired()) {
        QCoreApplication::processEvents();
        QThread::msleep(5);
    }
    if (probe)
        writeReport(options.eventLoopReportFile, probe->report());
    return status;
}

int say(std::FILE* file, const QString& text, int status)
{
    std::fputs(qUtf8Printable(text), file);
    return status;
}

/// The exit code of a process that could not do what it was started for.
int complain(const QString& problem)
{
    return say(stderr, QStringLiteral("loomstreet: %1\n").arg(problem), 1);
}

/// Whether there is a display to open windows on, as far as the environment says.
bool mayShowWindows()
{
    return std::ranges::any_of(std::array{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"},
                               [](const char* name) { return !qEnvironmentVariableIsEmpty(name); });
}

/// What needs no window, and so neither a display nor the time it takes to open one.
std::optional<int> answerAtOnce(const LaunchOptions& options, const std::optional<ApplicationFolder>& folder, int argc,
                                char* argv[])
{
    using Purpose = LaunchOptions::Purpose;
    if (options.purpose == Purpose::Help)
        return say(stdout, helpText(), 0);
    if (options.purpose == Purpose::Version)
        return say(stdout, versionText(folder ? folder->version : QStringLiteral(LOOM_VERSION)), 0);
    if (options.purpose != Purpose::Quit)
        return {};
    if (!options.problem.isEmpty())
        return complain(options.problem + tryHelp);
    const QCoreApplication application(argc, argv);
    const auto reached = SingleInstance(applicationID).tell({.links = {}, .action = QStringLiteral("quit")});
    return reached == SingleInstance::Reached::NoAnswer ? complain(QStringLiteral("the instance does not answer.")) : 0;
}

} // namespace

int main(int argc, char* argv[])
{
    const std::span<char*> given(argv, static_cast<std::size_t>(argc));
    QStringList arguments;
    for (const char* const argument : given)
        arguments.append(QString::fromLocal8Bit(argument));
    const LaunchOptions wishes = readLaunchOptions(arguments);
    const QString program = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
    const std::optional<ApplicationFolder> folder = ApplicationFolder::ofProgram(program);
    if (const std::optional<int> status = answerAtOnce(wishes, folder, argc, argv))
        return *status;
    // Before anything that a release may die of. Where there is no display nothing runs, whichever release it is.
    TrialRun trial(updatesFolder(), mayShowWindows() ? folder : std::nullopt);
    if (trial.verdict() == TrialRun::Verdict::Revert && trial.revert()) {
        ::execv(QFile::encodeName(folder->executable()).constData(), argv);
        return complain(QStringLiteral("the release before cannot be started."));
    }
    prepareApplication(applicationID, wishes.isSafeMode ? Rendering::Software : Rendering::Hardware);
    if (folder)
        QCoreApplication::setApplicationVersion(folder->version);
    Activation start = readLaunch();
    int optionCount = countOfOptions(argc, argv);
    const QStringList data = arguments.mid(optionCount);
    QGuiApplication application(optionCount, argv);
    const LaunchOptions options = readLaunchOptions(QCoreApplication::arguments() + data);
    if (!options.problem.isEmpty()) {
        trial.endedWell();
        return complain(options.problem + tryHelp);
    }
    start.links = options.links;
    start.action = options.action;
    // Reading certificates takes longer than all the rest of this; they are needed with the first request.
    QFuture<bool> authority =
        QtConcurrent::run([file = options.authorityFile] { return file.isEmpty() || addCertificateAuthority(file); });
    PictureLoading pictures(pictureCacheFolder());
    QQmlEngine engine;
    prepareEngine(engine, pictures);
    const auto preloaded = WindowManager::preload(engine);

    SingleInstance instance(applicationID);
    if (instance.claim(start) == SingleInstance::Role::Second) {
        trial.endedWell();
        return options.isSafeMode ? complain(QStringLiteral("an instance runs already; \"loomstreet --quit\" ends it."))
                                  : 0;
    }
    registerFonts();
    WindowLanguage language(options.isPseudoLanguage ? WindowLanguage::Wording::Pseudo
                                                     : WindowLanguage::Wording::Translated);
    language.speak(appLanguageFor(readSystemLocale()));
    // The theme has its letters from this, and before the texts change.
    const auto setLetters = [&engine, &language] {
        engine.setUiLanguage(appLanguageCode(language.language()));
    };
    QObject::connect(&language, &WindowLanguage::changed, &engine, setLetters);
    setLetters();
    DesktopAppearance appearance;
    if (!authority.result()) {
        trial.endedWell();
        return 1;
    }
    const std::optional<AppConfig> config = AppConfig::load();
    if (!config) {
        const auto window = WindowManager::showConfigurationMissing(engine, appearance);
        QObject::connect(&instance, &SingleInstance::activated, window.get(), [&window](const Activation& activation) {
            if (activation.action == QLatin1String("quit"))
                QCoreApplication::quit();
            else
                window->requestActivate();
        });
        return QCoreApplication::exec();
    }
    const UpdatePlatform updates{.workingFolder = updatesFolder(),
                                 .program = program,
                                 .folder = folder,
                                 .startDetached = startDetached,
                                 .openExternally = openInBrowser,
                                 // What runs with little proves nothing of all the rest.
                                 .trial = options.isSafeMode ? nullptr : &trial};
    const int status = runShop(*config, options, updates, instance, engine, appearance, language);
    if (options.isSafeMode && status == 0)
        trial.endedWell(); // of every other run the updater has said so
    return status;
}
