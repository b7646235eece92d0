#pragma once

#include "Child.h"

#include <QDBusConnection>
#include <QTemporaryDir>

namespace loom
{

/// A login session of its own: a home, a runtime folder, and a message bus if wanted, on which no service is but those
/// that a test puts there. The platform's objects find their bus by the environment, once in a process; so they are
/// tried in programs that run inside it.
class Session
{
public:
    enum class Bus { Present, Absent, Refusing }; ///< one that refuses gives nobody a name

    explicit Session(Bus bus);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();

    /// Starts the probe (Probe.cpp).
    [[nodiscard]] std::unique_ptr<Child> probe(const QStringList& arguments) const;
    /// Starts a program of the system.
    [[nodiscard]] std::unique_ptr<Child> start(const QString& program, const QStringList& arguments) const;

    QProcessEnvironment environment;
    QTemporaryDir home;
    /// A connection of the test's own to the bus.
    [[nodiscard]] QDBusConnection connection() const { return connect(QStringLiteral("test")); }
    [[nodiscard]] QDBusConnection connect(const QString& name) const;
    /// Waits until somebody owns the name.
    void waitForService(const QString& name) const;

private:
    std::unique_ptr<Child> m_daemon;
    QString m_address;
    mutable QStringList m_connections;
};

} // namespace loom
