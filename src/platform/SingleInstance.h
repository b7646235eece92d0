#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <memory>

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

    /// `applicationID` is a name in reverse-domain form, such as "com.example.Program".
    explicit SingleInstance(QString applicationID, QObject* parent = nullptr);
    ~SingleInstance() override;

    /// Finds out whether another instance runs. If so it has been asked to come to the front and to open `links`, and
    /// this process should end.
    [[nodiscard]] Role claim(const QStringList& links);

Q_SIGNALS:
    /// Another start, or the desktop, asks for a window.
    void activated();
    void linksOpened(const QStringList& links);

private:
    [[nodiscard]] Role claimOnBus(const QStringList& links);
    [[nodiscard]] Role claimSocket(const QStringList& links);
    void readRequest();
    void receive(const QStringList& links);

    QString m_applicationID;
    std::unique_ptr<QLockFile> m_lock;
    std::unique_ptr<QLocalServer> m_server;

    friend class FreedesktopApplication;
};

} // namespace loom
