#pragma once

#include "platform/Activation.h"

#include <QObject>
#include <QVariantMap>

#include <memory>

class QDBusMessage;
class QLocalServer;
class QLockFile;

namespace loom
{

/// Lets one instance of the application run in a session. The first one owns the name of the application on the
/// session bus and serves org.freedesktop.Application there (D-Bus activation, as freedesktop.org describes it for
/// desktop entries); where no bus runs, or none that gives the name, a local socket takes its place. Main thread.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    enum class Role { First, Second };
    enum class Reached { Nobody, Instance, NoAnswer };

    /// `applicationID` is a name in reverse-domain form, such as "com.example.Program".
    explicit SingleInstance(QString applicationID, QObject* parent = nullptr);
    ~SingleInstance() override;

    /// Finds out whether another instance runs. If so it has been asked to do what this start is for, and this process
    /// should end.
    [[nodiscard]] Role claim(const Activation& start);
    /// Asks the instance that runs, and neither is nor starts one where none does.
    [[nodiscard]] Reached tell(const Activation& request) const;

Q_SIGNALS:
    /// Another start, or the desktop, asks for a window, and for what it is to show.
    void activated(const loom::Activation& activation);

private:
    [[nodiscard]] Role claimOnBus(const Activation& start);
    [[nodiscard]] Role claimSocket(const Activation& start);
    [[nodiscard]] static bool callOnBus(const QDBusMessage& call);
    [[nodiscard]] Reached sendToSocket(const Activation& request) const;
    void readRequest();

    QString m_applicationID;
    std::unique_ptr<QLockFile> m_lock;
    std::unique_ptr<QLocalServer> m_server;

    friend class FreedesktopApplication;
};

} // namespace loom
