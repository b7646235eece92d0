#include "Session.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusServiceWatcher>
#include <QDir>
#include <QFile>

#include <stdexcept>

namespace loom
{

namespace
{

const char* const busConfiguration = R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
  "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

} // namespace

Session::Session(Bus bus)
    : environment(QProcessEnvironment::systemEnvironment())
{
    const QString runtime = home.path() + QStringLiteral("/run");
    QDir().mkpath(runtime);
    QFile::setPermissions(runtime, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    for (const char* const name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})
        environment.insert(QString::fromLatin1(name), home.path());
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime);
    for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_CURRENT_DESKTOP", "DESKTOP_SESSION",
                                   "GNOME_KEYRING_CONTROL", "LANGUAGE", "LANG", "LC_ALL", "LC_MESSAGES", "LC_MONETARY"})
        environment.remove(QString::fromLatin1(name));

    m_address = QStringLiteral("unix:path=") + runtime + QStringLiteral("/no-bus");
    if (bus != Bus::Absent) {
        QFile configuration(home.path() + QStringLiteral("/bus.conf"));
        if (!configuration.open(QIODevice::WriteOnly))
            throw std::runtime_error("cannot write the configuration of a message bus");
        configuration.write(bus == Bus::Refusing ? QByteArray(busConfiguration).replace("<allow own", "<deny own")
                                                 : QByteArray(busConfiguration));
        configuration.close();
        m_daemon =
            start(QStringLiteral("dbus-daemon"), {QStringLiteral("--config-file=") + configuration.fileName(),
                                                  QStringLiteral("--nofork"), QStringLiteral("--print-address=1")});
        m_address = m_daemon->line();
    }
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_address);
}

Session::~Session()
{
    for (const QString& name : std::as_const(m_connections))
        QDBusConnection::disconnectFromBus(name);
    if (m_daemon)
        m_daemon->crash(); // it has no other end
}

std::unique_ptr<Child> Session::probe(const QStringList& arguments) const
{
    return start(QCoreApplication::applicationDirPath() + QStringLiteral("/loom_platform_probe"), arguments);
}

std::unique_ptr<Child> Session::start(const QString& program, const QStringList& arguments) const
{
    return std::make_unique<Child>(program, arguments, environment);
}

QDBusConnection Session::connect(const QString& name) const
{
    if (!m_connections.contains(name))
        m_connections.append(name);
    return QDBusConnection::connectToBus(m_address, name);
}

void Session::waitForService(const QString& name) const
{
    const QDBusConnection bus = connection();
    const QDBusServiceWatcher watcher(name, bus); // turns the event loop when it comes
    waitUntil([&] { return bus.interface()->isServiceRegistered(name).value(); }, "a service is on the bus");
}

} // namespace loom
