#include "platform/FreedesktopNotifications.h"

#include "Session.h"

#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QUrl>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

const QString serverName = QStringLiteral("org.freedesktop.Notifications");
const QString serverPath = QStringLiteral("/org/freedesktop/Notifications");
const QString authorised = QStringLiteral("authorised");
const QString denied = QStringLiteral("denied");

/// Asks another program again and again until it is so; nothing in this one tells when.
void askUntil(const std::function<bool()>& isSo, const char* what)
{
    for (const QDeadlineTimer guard(30s); !guard.hasExpired();) {
        if (isSo())
            return;
    }
    FAIL() << "asked in vain: " << what;
}

/// The notification server of a desktop.
class FakeServer : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Shown {
        uint replaced = 0;
        QString icon, title, body;
        QStringList actions;
        QVariantMap hints;
    };

    explicit FakeServer(QDBusConnection bus)
        : m_bus(std::move(bus))
    {
        m_bus.registerObject(serverPath, this, QDBusConnection::ExportScriptableSlots);
    }
    void appear() { ASSERT_TRUE(m_bus.registerService(serverName)); }
    void vanish() { ASSERT_TRUE(m_bus.unregisterService(serverName)); }
    void answerAtLast() { m_bus.send(m_held.createReply(m_last)); }
    void tell(const char* signal, const QVariantList& arguments)
    {
        QDBusMessage message = QDBusMessage::createSignal(serverPath, serverName, QLatin1String(signal));
        message.setArguments(arguments);
        m_bus.send(message);
    }
    void waitForShown(std::size_t count) const
    {
        waitUntil([this, count] { return shown.size() >= count; }, "a notification comes");
    }

    QStringList capabilities;
    bool isSilent = false; ///< gives no answers
    bool isBusy = false;   ///< as the bus has it when the time is over
    std::vector<Shown> shown;
    QList<uint> closed;

public Q_SLOTS:
    Q_SCRIPTABLE QStringList GetCapabilities()
    {
        if (isBusy)
            sendErrorReply(QDBusError::NoReply);
        else
            setDelayedReply(isSilent);
        return capabilities;
    }
    Q_SCRIPTABLE uint Notify(const QString& application, uint replaced, const QString& icon, const QString& title,
                             const QString& body, const QStringList& actions, const QVariantMap& hints, int expires)
    {
        EXPECT_EQ(application, QStringLiteral("LOOMSTREET"));
        EXPECT_EQ(expires, -1);
        shown.push_back(
            {.replaced = replaced, .icon = icon, .title = title, .body = body, .actions = actions, .hints = hints});
        setDelayedReply(isSilent);
        m_held = message();
        return replaced != 0 ? replaced : ++m_last;
    }
    Q_SCRIPTABLE void CloseNotification(uint id) { closed.append(id); }

private:
    QDBusConnection m_bus;
    QDBusMessage m_held; ///< the last Notify
    uint m_last = 40;
};

/// What shows the icons of programs.
class Dock : public QObject
{
    Q_OBJECT

public:
    explicit Dock(QDBusConnection bus)
    {
        bus.connect({}, {}, QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"), this,
                    SLOT(update(QString, QVariantMap)));
    }

    QStringList updates;

public Q_SLOTS:
    void update(const QString& uri, const QVariantMap& properties)
    {
        updates.append(QStringList{uri, properties.value(QStringLiteral("count")).toString(),
                                   properties.value(QStringLiteral("count-visible")).toString()}
                           .join(QLatin1Char(' ')));
    }
};

class FreedesktopNotificationsTest : public testing::Test
{
protected:
    [[nodiscard]] std::unique_ptr<Child> launch() const { return session.probe({QStringLiteral("notifications")}); }
    [[nodiscard]] static QString ask(Child& running, const QByteArray& call)
    {
        running.write(call + '\n');
        return running.line();
    }
    static void post(Child& running, const QByteArray& id, const QString& body, const QByteArray& sound = "silent")
    {
        running.write("post " + id + ' ' + sound + ' ' + QUrl::toPercentEncoding(body) + '\n');
    }

    Session session{Session::Bus::Present};
    FakeServer server{session.connection()};
};

TEST_F(FreedesktopNotificationsTest, WhatIsSentIsWhatTheServerCanDo)
{
    const QString body = QStringLiteral("<b>5</b> & \"more\"\nin two lines");
    const QString escaped = QStringLiteral("&lt;b&gt;5&lt;/b&gt; &amp; &quot;more&quot;\nin two lines");
    const QString soundName = QStringLiteral("sound-name");
    const QString silence = QStringLiteral("suppress-sound");
    server.appear();
    for (const QStringList& capabilities :
         {QStringList{}, QStringList{QStringLiteral("body")}, QStringList{QStringLiteral("body-markup")},
          QStringList{QStringLiteral("sound")}, QStringList{QStringLiteral("actions"), QStringLiteral("sound")}}) {
        server.capabilities = capabilities;
        server.shown.clear();
        const auto running = launch();
        EXPECT_EQ(ask(*running, "permission"), QStringLiteral("not asked"));
        EXPECT_EQ(ask(*running, "ask"), authorised);
        post(*running, "a", body, "sound");
        post(*running, "b", body);
        server.waitForShown(2);
        const auto has = [&capabilities](const char* name) {
            return capabilities.contains(QLatin1String(name));
        };
        const FakeServer::Shown& first = server.shown[0];
        EXPECT_EQ(first.title, QStringLiteral("Title & <b>"));
        EXPECT_EQ(first.body, has("body-markup") ? escaped : body);
        EXPECT_EQ(first.icon, QStringLiteral("com.loomstreet.Loomstreet"));
        EXPECT_EQ(first.hints.value(QStringLiteral("desktop-entry")), first.icon);
        EXPECT_EQ(first.hints.contains(soundName), has("sound"));
        EXPECT_FALSE(first.hints.contains(silence));
        EXPECT_FALSE(server.shown[1].hints.contains(soundName));
        EXPECT_EQ(server.shown[1].hints.contains(silence), has("sound"));
        const QStringList actions{QStringLiteral("default"), QStringLiteral("Open"), QStringLiteral("settings"),
                                  QStringLiteral("Settings")};
        EXPECT_EQ(first.actions, has("actions") ? actions : QStringList());
    }
}

TEST_F(FreedesktopNotificationsTest, OneOfTheSameRequestReplacesTheOneOnScreenAndCanBeTakenBack)
{
    server.appear();
    const auto running = launch();
    EXPECT_EQ(ask(*running, "ask"), authorised);
    for (const char* const id : {"a", "b", "a", "a"}) // faster than the server answers
        post(*running, id, QStringLiteral("x"));
    server.waitForShown(4);
    EXPECT_EQ(server.shown[1].replaced, 0);
    EXPECT_EQ(server.shown[2].replaced, 41);
    EXPECT_EQ(server.shown[3].replaced, 41);
    running->write("withdraw b\nwithdraw unknown\n");
    waitUntil([this] { return !server.closed.isEmpty(); }, "it is closed");
    EXPECT_EQ(server.closed, QList<uint>{42});
    server.tell("NotificationClosed", {41U, 2U});
    server.tell("NotificationClosed", {42U, 3U});
    server.tell("ActionInvoked", {42U, QStringLiteral("default")}); // taken back: nobody can have clicked it
    server.tell("ActionInvoked", {41U, QStringLiteral("default")});
    EXPECT_EQ(running->line(), QStringLiteral("activated a"));
    post(*running, "a", QStringLiteral("x"));
    server.waitForShown(5);
    EXPECT_EQ(server.shown[4].replaced, 0);
}

TEST_F(FreedesktopNotificationsTest, WhatIsTakenBackBeforeTheServerAnswersIsClosedWhenItDoes)
{
    server.appear();
    const auto running = launch();
    EXPECT_EQ(ask(*running, "ask"), authorised);
    server.isSilent = true;
    post(*running, "a", QStringLiteral("x"));
    server.waitForShown(1);
    running->write("withdraw a\n");
    EXPECT_EQ(ask(*running, "permission"), authorised); // it has read so far
    EXPECT_TRUE(server.closed.isEmpty());
    server.isSilent = false;
    server.answerAtLast();
    waitUntil([this] { return !server.closed.isEmpty(); }, "it is closed");
    EXPECT_EQ(server.closed, QList<uint>{41});
    post(*running, "a", QStringLiteral("x"));
    server.waitForShown(2);
    EXPECT_EQ(server.shown[1].replaced, 0);
}

TEST_F(FreedesktopNotificationsTest, AServerThatWasTooBusyIsAskedAgain)
{
    server.appear();
    server.isBusy = true;
    const auto running = launch();
    EXPECT_EQ(ask(*running, "ask"), denied);
    EXPECT_EQ(ask(*running, "permission"), denied);
    server.isBusy = false;
    EXPECT_EQ(ask(*running, "permission"), authorised);
}

TEST_F(FreedesktopNotificationsTest, ClicksComeBackWithTheirTokenAndOnlyFromTheServer)
{
    server.appear();
    const auto running = launch();
    EXPECT_EQ(ask(*running, "ask"), authorised);
    post(*running, "a", QStringLiteral("x"));
    post(*running, "b", QStringLiteral("x"));
    server.waitForShown(2);
    FakeServer impostor(session.connect(QStringLiteral("impostor")));
    impostor.tell("ActionInvoked", {41U, QStringLiteral("default")});
    EXPECT_TRUE(session.connect(QStringLiteral("impostor")).interface()->isServiceRegistered(serverName));
    server.tell("ActivationToken", {41U, QStringLiteral("t1")});
    server.tell("ActivationToken", {7U, QStringLiteral("others")});
    server.tell("ActionInvoked", {7U, QStringLiteral("default")});
    server.tell("ActionInvoked", {42U, QStringLiteral("unknown")});
    server.tell("ActionInvoked", {41U, QStringLiteral("default")});
    EXPECT_EQ(running->line(), QStringLiteral("activated a t1"));
    server.tell("ActionInvoked", {41U, QStringLiteral("settings")});
    EXPECT_EQ(running->line(), QStringLiteral("settings")); // a token serves once
}

TEST_F(FreedesktopNotificationsTest, ServersComeAndGo)
{
    const auto running = launch();
    EXPECT_EQ(ask(*running, "ask"), denied);
    post(*running, "lost", QStringLiteral("x"));
    EXPECT_EQ(ask(*running, "ask"), denied); // the bus has answered what was asked before this, too
    server.appear();
    askUntil([&] { return ask(*running, "permission") == authorised; }, "the server is seen");
    server.capabilities = {QStringLiteral("actions")};
    post(*running, "a", QStringLiteral("x"));
    server.waitForShown(1);
    EXPECT_FALSE(server.shown[0].actions.isEmpty());

    server.vanish();
    post(*running, "a", QStringLiteral("x"));
    askUntil([&] { return ask(*running, "permission") == denied; }, "it is missed");
    FakeServer other(session.connect(QStringLiteral("other")));
    other.appear();
    askUntil([&] { return ask(*running, "permission") == authorised; }, "the other server is seen");
    post(*running, "a", QStringLiteral("x"));
    other.waitForShown(1);
    EXPECT_EQ(other.shown[0].replaced, 0); // it counts anew
    EXPECT_TRUE(other.shown[0].actions.isEmpty());
    other.vanish();
    post(*running, "a", QStringLiteral("x"));
    askUntil([&] { return ask(*running, "permission") == denied; }, "nobody is there");
    EXPECT_EQ(server.shown.size(), 1);
}

TEST_F(FreedesktopNotificationsTest, NobodyWaitsForAServerThatDoesNotAnswer)
{
    server.appear();
    server.isSilent = true;
    const auto running = launch();
    running->write("ask\n");
    EXPECT_EQ(ask(*running, "permission"), QStringLiteral("not asked"));
    running->closeInput();
    EXPECT_EQ(running->exitCode(), 0);
}

TEST_F(FreedesktopNotificationsTest, DocksAreToldTheNumber)
{
    const Dock dock(session.connection());
    const auto running = launch();
    running->write("badge 128\nbadge 0\n");
    waitUntil([&dock] { return dock.updates.size() >= 2; }, "the dock is told");
    EXPECT_EQ(dock.updates, (QStringList{QStringLiteral("application://com.loomstreet.Loomstreet.desktop 128 true"),
                                         QStringLiteral("application://com.loomstreet.Loomstreet.desktop 0 false")}));
}

TEST(FreedesktopNotificationsWithoutABusTest, NothingIsAllowedAndNothingBreaks)
{
    const Session session(Session::Bus::Absent);
    const auto running = session.probe({QStringLiteral("notifications")});
    running->write("ask\n");
    EXPECT_EQ(running->line(), denied);
    running->write("post a silent x\nwithdraw a\nbadge 3\n");
    running->closeInput();
    EXPECT_EQ(running->exitCode(), 0);
}

/// A server that shoppers have, on a screen of its own.
TEST(FreedesktopNotificationsOnADesktopTest, ANotificationIsShownReplacedAndClicked)
{
    Session session(Session::Bus::Present);
    const auto screen = session.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1"),
                                                               QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    session.environment.insert(QStringLiteral("DISPLAY"), u':' + screen->line());
    const auto desktop = session.start(QStringLiteral("dunst"), {});
    session.waitForService(serverName);
    const auto count = [&session] {
        const auto asked =
            session.start(QStringLiteral("dunstctl"), {QStringLiteral("count"), QStringLiteral("displayed")});
        return asked->rest().trimmed();
    };
    {
        const auto running = session.probe({QStringLiteral("notifications")});
        running->write("ask\n");
        EXPECT_EQ(running->line(), authorised);
        running->write("post lst-a sound One%20%3Cb%3Etwo\npost lst-a silent Three\npost lst-b silent Four\n");
        askUntil([&count] { return count() == QLatin1String("2"); }, "both are shown");
        running->write("withdraw lst-b\n");
        askUntil([&count] { return count() == QLatin1String("1"); }, "one is taken back");
        const auto click = session.start(QStringLiteral("dunstctl"), {QStringLiteral("action"), QStringLiteral("0")});
        EXPECT_EQ(click->exitCode(), 0);
        EXPECT_EQ(running->line(), QStringLiteral("activated lst-a"));
    }
    desktop->crash();
    screen->crash();
}

} // namespace

#include "FreedesktopNotificationsTest.moc"
