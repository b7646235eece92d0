#include "platform/DesktopAppearance.h"

#include "Session.h"

#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusVariant>

using namespace loom;

namespace
{

const QString portalName = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString interface = QStringLiteral("org.gnome.desktop.interface");
const QString scheme = QStringLiteral("color-scheme");
const QString animations = QStringLiteral("enable-animations");
const QString textScale = QStringLiteral("text-scaling-factor");

/// The settings portal of a desktop.
class FakePortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit FakePortal(QDBusConnection bus)
        : m_bus(std::move(bus))
    {
        m_bus.registerObject(portalPath, this, QDBusConnection::ExportScriptableSlots);
    }
    void appear() { ASSERT_TRUE(m_bus.registerService(portalName)); }
    void put(const QString& group, const QString& key, const QVariant& value) { m_values.insert(group + key, value); }
    void change(const QString& group, const QString& key, const QVariant& value)
    {
        QDBusMessage signal = QDBusMessage::createSignal(portalPath, QStringLiteral("org.freedesktop.portal.Settings"),
                                                         QStringLiteral("SettingChanged"));
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        m_bus.send(signal);
    }

public Q_SLOTS:
    Q_SCRIPTABLE QDBusVariant Read(const QString& group, const QString& key)
    {
        const QVariant value = m_values.value(group + key);
        if (!value.isValid())
            sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"), QStringLiteral("no such setting"));
        return QDBusVariant(QVariant::fromValue(QDBusVariant(value))); // a variant in a variant, as portals answer
    }

private:
    QDBusConnection m_bus;
    QMap<QString, QVariant> m_values;
};

class DesktopAppearanceTest : public testing::Test
{
protected:
    [[nodiscard]] std::unique_ptr<Child> startApplication() const
    {
        return session.probe({QStringLiteral("appearance")});
    }

    Session session{Session::Bus::Present};
    FakePortal portal{session.connection()};
};

const QString plain = QStringLiteral("light moving 1");

TEST_F(DesktopAppearanceTest, WhatTheDesktopSaysIsObeyedAtTheStartAndWhenItChanges)
{
    portal.put(appearance, scheme, 1U);
    portal.put(interface, animations, false);
    portal.put(interface, textScale, 1.25);
    portal.appear();
    const auto running = startApplication();
    EXPECT_EQ(running->line(), plain); // nobody waits for a portal
    running->waitForLine(QStringLiteral("dark still 1.25"));

    struct Row {
        QString group;
        QString key;
        QVariant value;
        const char* shown;
    };
    for (const Row& row : {
             Row{appearance, scheme, 1U, "dark still 1.25"},
             Row{appearance, scheme, 0U, "light still 1.25"},
             Row{appearance, scheme, 7U, "light still 1.25"},
             Row{interface, animations, true, "light moving 1.25"},
             Row{interface, textScale, 1.5, "light moving 1.5"},
             Row{interface, textScale, 40.0, "light moving 2"},
             Row{interface, textScale, QStringLiteral("large"), "light moving 1"},
             Row{appearance, scheme, QStringLiteral("dark"), "light moving 1"},
         }) {
        // What is of no concern is passed over without a word.
        portal.change(appearance, textScale, 2.0);
        portal.change(interface, scheme, 1U);
        portal.change(row.group, row.key, row.value);
        EXPECT_EQ(running->line(), QLatin1String(row.shown)) << row.key.toStdString();
    }
}

TEST_F(DesktopAppearanceTest, APortalThatComesLaterIsHeardAndNobodyInItsPlace)
{
    const auto running = startApplication();
    EXPECT_EQ(running->line(), plain);
    FakePortal impostor(session.connect(QStringLiteral("impostor")));
    impostor.change(appearance, scheme, 1U);
    portal.appear();
    portal.change(interface, textScale, 1.5);
    EXPECT_EQ(running->line(), QStringLiteral("light moving 1.5"));
    impostor.change(appearance, scheme, 1U);
    // What the impostor said has been through the bus.
    EXPECT_TRUE(session.connect(QStringLiteral("impostor")).interface()->isServiceRegistered(portalName));
    portal.change(interface, textScale, 1.25);
    EXPECT_EQ(running->line(), QStringLiteral("light moving 1.25"));
}

TEST(DesktopAppearanceWithoutABusTest, TheSystemsPaletteDecides)
{
    const Session session(Session::Bus::Absent);
    const auto running = session.probe({QStringLiteral("appearance")});
    EXPECT_EQ(running->line(), plain);
    running->closeInput();
    EXPECT_EQ(running->exitCode(), 0);
    EXPECT_EQ(running->rest(), QString());
}

} // namespace

#include "DesktopAppearanceTest.moc"
