#include "kit/Journey.h"
#include "ui/shell/ApplicationSetup.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QProcess>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTimer>

namespace loom
{

namespace
{

/// A start of the real application.
class Start
{
public:
    explicit Start(const QStringList& arguments = {})
    {
        // At the end of a process its plugins are gone, and what they leave cannot be told by its name: leaks are
        // looked for by the journeys in this process.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedChannels);
        m_process.start(QStringLiteral(LOOM_PROGRAM), arguments);
    }
    ~Start()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    [[nodiscard]] bool isRunning() const { return m_process.state() == QProcess::Running; }
    /// The exit code, once it has ended by itself.
    int awaitEnd()
    {
        waitUntil([this] { return m_process.state() == QProcess::NotRunning; }, "the application has ended");
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }

private:
    QProcess m_process;
};

/// The application as a process among others: with a session bus where CTest gives it one, over its socket otherwise.
class LifecycleJourney : public Journey
{
protected:
    LifecycleJourney() { m_look.start(std::chrono::milliseconds(50)); }

    static QString say(const QStringList& arguments)
    {
        QProcess process;
        process.start(QStringLiteral("xdotool"), arguments);
        process.waitForFinished();
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    }
    [[nodiscard]] static QStringList windows()
    {
        const QString found =
            say({QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                 QStringLiteral("LOOMSTREET"), QStringLiteral("getwindowname"), QStringLiteral("%@")});
        return found.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
    static void awaitWindow(const QString& title)
    {
        waitUntil([&title] { return windows() == QStringList{title}; }, '"' + title.toStdString() + "\" is shown");
    }
    static void press(const QString& keys) { say({QStringLiteral("key"), keys}); }
    /// Quits with the keyboard, and tells how the application ended.
    static int quit(Start& application)
    {
        // A window may be shown before it has the keyboard.
        waitUntil(
            [&application] {
                if (application.isRunning())
                    press(QStringLiteral("ctrl+q"));
                return !application.isRunning();
            },
            "the application quits");
        return application.awaitEnd();
    }

private:
    QTimer m_look; ///< what other processes do is no event of this one
};

TEST_F(LifecycleJourney, ASecondStartHandsItsLinkToTheFirst)
{
    Start first;
    awaitWindow(QStringLiteral("Explore – LOOMSTREET"));
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected())
        EXPECT_TRUE(bus.interface()->isServiceRegistered(QStringLiteral("com.loomstreet.Loomstreet")));

    Start second({QStringLiteral("https://www.loomstreet.example/products/sabine-bias-slip-dress")});
    EXPECT_EQ(second.awaitEnd(), 0);
    awaitWindow(QStringLiteral("Sabine bias slip dress – LOOMSTREET"));
    EXPECT_TRUE(first.isRunning());

    // Without a link it only brings the first forward.
    Start third;
    EXPECT_EQ(third.awaitEnd(), 0);
    awaitWindow(QStringLiteral("Sabine bias slip dress – LOOMSTREET"));
    EXPECT_EQ(quit(first), 0);
}

TEST_F(LifecycleJourney, ClosingTheLastWindowDoesNotQuit)
{
    Start first({QStringLiteral("loomstreet://collections/bags")});
    awaitWindow(QStringLiteral("Bags – LOOMSTREET"));
    // In its first moments the application sees to it that there is a window.
    waitUntil(
        [] {
            if (!windows().isEmpty())
                press(QStringLiteral("ctrl+w"));
            return windows().isEmpty();
        },
        "the window is closed");
    EXPECT_TRUE(first.isRunning());

    Start second({QStringLiteral("loomstreet://collections/dresses")});
    EXPECT_EQ(second.awaitEnd(), 0);
    awaitWindow(QStringLiteral("Dresses – LOOMSTREET"));
    EXPECT_TRUE(first.isRunning());
    EXPECT_EQ(quit(first), 0);
}

TEST_F(LifecycleJourney, StartedByTheDesktopItWaitsToHearWhatForAndTakesNoLinkForAnOption)
{
    Start service({QStringLiteral("--service")});
    waitUntil([] { return windows().size() == 1; }, "a window is there, asked for or not");
    Start action({QStringLiteral("--action"), QStringLiteral("bag"), QStringLiteral("--"), QStringLiteral("--help"),
                  QStringLiteral("/collections/bags"), QStringLiteral("-platformpluginpath")});
    EXPECT_EQ(action.awaitEnd(), 0);
    awaitWindow(QStringLiteral("Bags – LOOMSTREET"));
    EXPECT_TRUE(service.isRunning());
    EXPECT_EQ(quit(service), 0);
}

TEST_F(LifecycleJourney, InSafeModeTooAFurtherStartOpensAWindowOrQuits)
{
    Start first({QStringLiteral("--safe-mode")});
    awaitWindow(QStringLiteral("Explore – LOOMSTREET"));
    Start late({QStringLiteral("--safe-mode")});
    EXPECT_EQ(late.awaitEnd(), 1); // what runs cannot become safe
    Start further({QStringLiteral("--new-window")});
    EXPECT_EQ(further.awaitEnd(), 0);
    waitUntil([] { return windows().size() == 2; }, "there is another window");
    Start end({QStringLiteral("--quit")});
    EXPECT_EQ(end.awaitEnd(), 0);
    EXPECT_EQ(first.awaitEnd(), 0);
    Start nothing({QStringLiteral("--quit")});
    EXPECT_EQ(nothing.awaitEnd(), 0);
    EXPECT_EQ(windows(), QStringList());
}

TEST_F(LifecycleJourney, ABuildThatBelongsToNoStoreSaysSo)
{
    FakeAppearance appearance;
    PictureLoading pictures{QString()};
    QQmlEngine engine;
    prepareEngine(engine, pictures);
    const std::unique_ptr<QQuickWindow> page = WindowManager::showConfigurationMissing(engine, appearance);
    ASSERT_NE(page, nullptr);
    const WindowDriver driver(page.get());
    page->requestActivate();
    driver.awaitText(QStringLiteral("LOOMSTREET isn't configured"));
    driver.awaitText(QStringLiteral("Run scripts/sync-secrets.sh in the project folder, then build again."));
    const QSignalSpy quits(&engine, &QQmlEngine::quit);
    driver.awaitFocus(QStringLiteral("quit"));
    driver.press(QStringLiteral("Return"));
    EXPECT_EQ(quits.count(), 1);
}

} // namespace

} // namespace loom
