#include "platform/DesktopGlobalKey.h"

#include "Session.h"

#include <QDBusArgument>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>

using namespace loom;

namespace
{

const QString portalName = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interfaceName = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");

struct Shortcut {
    QString id;
    QVariantMap properties;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Shortcut& shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Shortcut& shortcut)
{
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}

/// A session of a program with the portal.
class FakeShortcutSession : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Session")

public:
    bool isClosed = false;

public Q_SLOTS:
    Q_SCRIPTABLE void Close() { isClosed = true; }
};

/// The portal of global shortcuts, and the shopper in front of its question.
class FakeShortcuts : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.GlobalShortcuts")

public:
    explicit FakeShortcuts(QDBusConnection connection)
        : bus(std::move(connection))
    {
        qDBusRegisterMetaType<Shortcut>();
        qDBusRegisterMetaType<QList<Shortcut>>();
        qRegisterMetaType<QList<Shortcut>>("QList<Shortcut>"); // as slots name it
        bus.registerObject(portalPath, this, QDBusConnection::ExportScriptableSlots);
        EXPECT_TRUE(bus.registerService(portalName));
    }

    QDBusConnection bus;
    bool isRefused = false;
    QString trigger;             ///< what the shopper chose; empty where the portal does not say
    QList<Shortcut> asked;       ///< what was asked for last
    QDBusObjectPath sessionPath; ///< of the last session
    FakeShortcutSession session;

    void press(const QString& id, const QDBusObjectPath& where)
    {
        send(portalPath, interfaceName, QStringLiteral("Activated"),
             {QVariant::fromValue(where), id, QVariant::fromValue(qulonglong(1)), QVariantMap()});
    }
    void takeAway()
    {
        send(sessionPath.path(), QStringLiteral("org.freedesktop.portal.Session"), QStringLiteral("Closed"), {});
    }

public Q_SLOTS:
    Q_SCRIPTABLE QDBusObjectPath CreateSession(const QVariantMap& options)
    {
        sessionPath = path("session", options.value(QStringLiteral("session_handle_token")).toString());
        session.isClosed = false;
        bus.registerObject(sessionPath.path(), &session, QDBusConnection::ExportScriptableSlots);
        return answer(options, 0, {{QStringLiteral("session_handle"), sessionPath.path()}});
    }
    Q_SCRIPTABLE QDBusObjectPath BindShortcuts(const QDBusObjectPath& where, const QList<Shortcut>& shortcuts,
                                               const QString&, const QVariantMap& options)
    {
        EXPECT_EQ(where.path(), sessionPath.path());
        asked = shortcuts;
        QList<Shortcut> bound = shortcuts;
        if (!trigger.isEmpty())
            bound[0].properties.insert(QStringLiteral("trigger_description"), trigger);
        return answer(options, isRefused ? 1 : 0, {{QStringLiteral("shortcuts"), QVariant::fromValue(bound)}});
    }

private:
    [[nodiscard]] QDBusObjectPath path(const char* kind, const QString& token) const
    {
        QString sender = message().service().mid(1);
        sender.replace(QLatin1Char('.'), QLatin1Char('_'));
        return QDBusObjectPath(portalPath + QLatin1Char('/') + QLatin1String(kind) + QLatin1Char('/') + sender +
                               QLatin1Char('/') + token);
    }
    QDBusObjectPath answer(const QVariantMap& options, uint code, const QVariantMap& results)
    {
        const QDBusObjectPath request = path("request", options.value(QStringLiteral("handle_token")).toString());
        // Before the call itself is answered, as portals may.
        send(request.path(), QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"),
             {code, results});
        return request;
    }
    void send(const QString& from, const QString& interface, const QString& name, const QVariantList& arguments)
    {
        QDBusMessage signal = QDBusMessage::createSignal(from, interface, name);
        signal.setArguments(arguments);
        bus.send(signal);
    }
};

QString tell(Child& running)
{
    running.write("tell\n");
    return running.line();
}

TEST(DesktopGlobalKeyTest, ThePortalIsAskedWhenTheKeyIsWantedAndItsKeyIsHeard)
{
    const Session session(Session::Bus::Present);
    FakeShortcuts portal(session.connection());
    portal.trigger = QStringLiteral("Strg+Alt+M");
    const auto running = session.probe({QStringLiteral("key")});
    EXPECT_EQ(tell(*running), QStringLiteral("unbound"));
    EXPECT_TRUE(portal.asked.isEmpty());
    running->write("bind\n");
    EXPECT_EQ(running->line(), QStringLiteral("bound Strg+Alt+M"));
    ASSERT_EQ(portal.asked.size(), 1);
    const Shortcut wanted = portal.asked[0];
    EXPECT_EQ(wanted.properties.value(QStringLiteral("description")).toString(), QStringLiteral("Mute the call"));
    EXPECT_EQ(wanted.properties.value(QStringLiteral("preferred_trigger")).toString(), QStringLiteral("CTRL+ALT+m"));

    portal.press(wanted.id, QDBusObjectPath(portalPath + QStringLiteral("/session/others/one")));
    portal.press(QStringLiteral("another"), portal.sessionPath);
    portal.press(wanted.id, portal.sessionPath);
    EXPECT_EQ(running->line(), QStringLiteral("pressed"));
    running->write("release\n");
    EXPECT_EQ(running->line(), QStringLiteral("unbound"));
    waitUntil([&portal] { return portal.session.isClosed; }, "the session is closed");

    portal.trigger.clear();
    running->write("bind\n");
    EXPECT_EQ(running->line(), QStringLiteral("bound Ctrl+Alt+M"));
    portal.takeAway();
    EXPECT_EQ(running->line(), QStringLiteral("unbound"));
    portal.isRefused = true;
    running->write("release\nbind\n");
    waitUntil([&portal] { return portal.session.isClosed; }, "what was refused is closed");
    EXPECT_EQ(tell(*running), QStringLiteral("unbound"));
}

TEST(DesktopGlobalKeyTest, OnX11TheKeyIsHeardOnceWhateverIsLocked)
{
    Session session(Session::Bus::Absent);
    const auto screen = session.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1"),
                                                               QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    session.environment.insert(QStringLiteral("DISPLAY"), u':' + screen->line());
    session.environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    const auto xdotool = [&session](const QStringList& arguments) {
        EXPECT_EQ(session.start(QStringLiteral("xdotool"), arguments)->exitCode(), 0);
    };
    const auto type = [&xdotool](const QStringList& keys) {
        xdotool(QStringList{QStringLiteral("key")} + keys);
    };
    const QString key = QStringLiteral("ctrl+alt+m");
    {
        const auto running = session.probe({QStringLiteral("key")});
        running->write("bind\n");
        EXPECT_EQ(running->line(), QStringLiteral("bound Ctrl+Alt+M"));
        for (const QStringList& locks :
             {QStringList{}, QStringList{QStringLiteral("Caps_Lock")}, QStringList{QStringLiteral("Num_Lock")}}) {
            type(locks +
                 QStringList{QStringLiteral("m"), QStringLiteral("ctrl+m"), QStringLiteral("ctrl+alt+shift+m"), key});
            EXPECT_EQ(running->line(), QStringLiteral("pressed"));
            EXPECT_EQ(tell(*running), QStringLiteral("bound Ctrl+Alt+M")); // and nothing more
        }
        // Held until it repeats itself.
        xdotool({QStringLiteral("keydown"), QStringLiteral("ctrl+alt+m"), QStringLiteral("sleep"), QStringLiteral("1"),
                 QStringLiteral("keyup"), QStringLiteral("ctrl+alt+m")});
        EXPECT_EQ(running->line(), QStringLiteral("pressed"));
        EXPECT_EQ(tell(*running), QStringLiteral("bound Ctrl+Alt+M"));
        {
            const auto second = session.probe({QStringLiteral("key")});
            second->write("bind\n");
            EXPECT_EQ(tell(*second), QStringLiteral("unbound")); // taken
        }
        running->write("release\n");
        EXPECT_EQ(running->line(), QStringLiteral("unbound"));
        type({key});
        EXPECT_EQ(tell(*running), QStringLiteral("unbound"));
    }
    screen->crash();
}

TEST(DesktopGlobalKeyTest, WithoutPortalAndX11ThereIsNone)
{
    const Session session(Session::Bus::Absent);
    const auto running = session.probe({QStringLiteral("key")});
    running->write("bind\n");
    EXPECT_EQ(tell(*running), QStringLiteral("unbound"));
}

} // namespace

#include "DesktopGlobalKeyTest.moc"
