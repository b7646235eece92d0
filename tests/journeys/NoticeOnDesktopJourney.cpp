#include "kit/PayingJourney.h"
#include "platform/FreedesktopNotifications.h"

#include <QDBusConnectionInterface>
#include <QJsonDocument>
#include <QProcess>
#include <QTimer>

namespace loom
{

namespace
{

/// Puts nothing away by itself, and of the actions of a notification chooses the settings where it asks.
const QByteArray daemonSettings = R"([global]
dmenu = "/usr/bin/grep --max-count=1 Settings"
markup = full
idle_threshold = 0
stack_duplicates = false
[urgency_normal]
timeout = 0
)";

/// News on a desktop, whose notifications a daemon of its own shows. The bus is that of this process.
class NoticeOnDesktopJourney : public PayingJourney
{
protected:
    void SetUp() override
    {
        PayingJourney::SetUp();
        m_look.start(std::chrono::milliseconds(50));
        QFile settings(m_folder.filePath(QStringLiteral("dunstrc")));
        ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
        settings.write(daemonSettings);
        settings.close();
        m_daemon.setProcessChannelMode(QProcess::ForwardedOutputChannel);
        m_daemon.start(QStringLiteral("dunst"), {QStringLiteral("-conf"), settings.fileName()});
        ASSERT_TRUE(m_daemon.waitForStarted()) << "scripts/setup installs dunst";
        const auto* const bus = QDBusConnection::sessionBus().interface();
        ASSERT_NE(bus, nullptr) << "there is no session bus";
        const QString service = QStringLiteral("org.freedesktop.Notifications");
        waitUntil([&] { return bus->isServiceRegistered(service).value(); }, "the desktop shows notifications");
    }
    void TearDown() override
    {
        PayingJourney::TearDown();
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }

    static QByteArray tellDaemon(const QStringList& command)
    {
        QProcess control;
        control.start(QStringLiteral("dunstctl"), command);
        control.waitForFinished();
        EXPECT_EQ(control.exitCode(), 0) << control.readAllStandardError().toStdString();
        return control.readAllStandardOutput();
    }
    static void awaitDisplayed(int count)
    {
        waitUntil(
            [count] {
                return tellDaemon({QStringLiteral("count"), QStringLiteral("displayed")}).trimmed().toInt() == count;
            },
            std::to_string(count) + " notifications are on the desktop");
    }
    /// What the one that was put away last said.
    static QStringList lastPutAway()
    {
        const QJsonDocument history = QJsonDocument::fromJson(tellDaemon({QStringLiteral("history")}));
        const QJsonValue last = history[u"data"][0][0];
        return {last[u"appname"][u"data"].toString(), last[u"summary"][u"data"].toString(),
                last[u"body"][u"data"].toString()};
    }
    void awaitBanner(const QString& title, const QString& text) const
    {
        const QQuickItem* const banner = window.await(QStringLiteral("notificationBanner"));
        window.awaitText(title, banner);
        window.awaitText(text, banner);
    }

    FreedesktopNotifications desktop{QStringLiteral("com.loomstreet.Loomstreet")};

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QTimer m_look; ///< what other processes do is no event of this one
};

TEST_F(NoticeOnDesktopJourney, AnOrderIsToldInTheWindowAndOnTheDesktopAndAClickLeadsToIt)
{
    startWithBag({.desktop = &desktop});
    checkOut();
    pay();
    awaitOrder(QStringLiteral("LST10484"));
    const QString words = QStringLiteral("Order LST10484 is confirmed. It will show under Orders in a few minutes.");
    awaitBanner(QStringLiteral("Order placed"), words);
    awaitDisplayed(1);
    EXPECT_TRUE(checkout.window()->isActive()) << "news took the keyboard";
    tellDaemon({QStringLiteral("action"), QStringLiteral("0")});
    window.awaitPage(QStringLiteral("Orders"));
    waitUntil([this] { return window.window()->isActive(); }, "the shop is in front");
    window.awaitGone(QStringLiteral("notificationBanner"));
    awaitDisplayed(0);
}

TEST_F(NoticeOnDesktopJourney, AnExampleLooksAsNewsDoAndLeadsBackToTheSwitches)
{
    start(QStringLiteral("/account"), {.desktop = &desktop});
    window.press(QStringLiteral("Ctrl+,"));
    const WindowDriver settings = shop->settingsWindow();
    settings.click(QStringLiteral("settings.notifications"));
    settings.click(QStringLiteral("preview"));
    const QString words = QStringLiteral("New order updates and customer service replies will appear here.");
    awaitBanner(QStringLiteral("Notification preview"), words);
    awaitDisplayed(1);
    // Each example is one of its own.
    settings.click(QStringLiteral("preview"));
    awaitDisplayed(2);
    tellDaemon({QStringLiteral("close")});
    awaitDisplayed(1);
    EXPECT_EQ(lastPutAway(),
              (QStringList{QStringLiteral("LOOMSTREET"), QStringLiteral("Notification preview"), words}));

    settings.click(QStringLiteral("settings.privacy"));
    settings.press(QStringLiteral("Ctrl+W"));
    waitUntil([&] { return !settings.window()->isVisible(); }, "the settings are closed");
    tellDaemon({QStringLiteral("context")});
    shop->settingsWindow().await(QStringLiteral("category.promotions"));

    // Without the desktop's share only the window tells.
    settings.click(QStringLiteral("desktop"));
    tellDaemon({QStringLiteral("close-all")});
    while (shop->model().banners()->current())
        shop->model().banners()->dismiss();
    settings.click(QStringLiteral("preview"));
    awaitBanner(QStringLiteral("Notification preview"), words);
    awaitDisplayed(0);
}

} // namespace

} // namespace loom
