#include "platform/SingleInstance.h"

#include "base/Log.h"
#include "platform/FreedesktopApplication.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>

namespace loom
{

namespace
{

constexpr int answerTimeout = 2000; // milliseconds

/// Requests over the socket are one JSON list of links; nobody has more to say than this.
constexpr qint64 maximumRequestBytes = 65536;

/// "com.example.Program" is served at "/com/example/Program".
QString objectPath(const QString& applicationID)
{
    return QLatin1Char('/') + QString(applicationID).replace(QLatin1Char('.'), QLatin1Char('/'));
}

QString runtimeFile(const QString& name)
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QDir::tempPath();
    return folder + QLatin1Char('/') + name;
}

} // namespace

SingleInstance::SingleInstance(QString applicationID, QObject* parent)
    : QObject(parent)
    , m_applicationID(std::move(applicationID))
{
}

SingleInstance::~SingleInstance() = default;

SingleInstance::Role SingleInstance::claim(const QStringList& links)
{
    return QDBusConnection::sessionBus().isConnected() ? claimOnBus(links) : claimSocket(links);
}

SingleInstance::Role SingleInstance::claimOnBus(const QStringList& links)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    // The object before the name: whoever finds the name must find somebody behind it.
    new FreedesktopApplication(*this);
    bus.registerObject(objectPath(m_applicationID), this, QDBusConnection::ExportAdaptors);
    if (bus.registerService(m_applicationID))
        return Role::First;
    const QDBusError refusal = bus.lastError();
    bus.unregisterObject(objectPath(m_applicationID));
    if (!bus.interface()->isServiceRegistered(m_applicationID)) {
        qCWarning(logPlatform) << "the session bus refuses the application its name:" << refusal.name();
        return claimSocket(links);
    }

    QDBusMessage call = QDBusMessage::createMethodCall(
        m_applicationID, objectPath(m_applicationID), QStringLiteral("org.freedesktop.Application"),
        links.isEmpty() ? QStringLiteral("Activate") : QStringLiteral("Open"));
    if (!links.isEmpty())
        call << links;
    call << QVariantMap();
    const QDBusMessage answer = bus.call(call, QDBus::Block, answerTimeout);
    if (answer.type() == QDBusMessage::ErrorMessage)
        qCWarning(logPlatform) << "the running instance does not answer:" << answer.errorName();
    return Role::Second;
}

SingleInstance::Role SingleInstance::claimSocket(const QStringList& links)
{
    const QString name = runtimeFile(m_applicationID);
    m_lock = std::make_unique<QLockFile>(name + QStringLiteral(".lock"));
    m_lock->setStaleLockTime(0); // a crashed owner's lock is known by its process being gone
    if (m_lock->tryLock()) {
        QLocalServer::removeServer(name);
        m_server = std::make_unique<QLocalServer>();
        m_server->setSocketOptions(QLocalServer::UserAccessOption);
        if (!m_server->listen(name))
            qCWarning(logPlatform) << "cannot listen for further starts:" << m_server->errorString();
        connect(m_server.get(), &QLocalServer::newConnection, this, &SingleInstance::readRequest);
        return Role::First;
    }
    if (m_lock->error() != QLockFile::LockFailedError) {
        qCWarning(logPlatform) << "cannot find out whether another instance runs: no lock at" << m_lock->fileName();
        return Role::First;
    }
    QLocalSocket socket;
    socket.connectToServer(name);
    if (socket.waitForConnected(answerTimeout)) {
        socket.write(QJsonDocument(QJsonArray::fromStringList(links)).toJson(QJsonDocument::Compact));
        socket.disconnectFromServer();
        if (socket.state() != QLocalSocket::UnconnectedState)
            socket.waitForDisconnected(answerTimeout);
    } else {
        qCWarning(logPlatform) << "the running instance does not answer:" << socket.errorString();
    }
    return Role::Second;
}

void SingleInstance::readRequest()
{
    QLocalSocket* const socket = m_server->nextPendingConnection();
    connect(socket, &QLocalSocket::disconnected, this, [this, socket] {
        QStringList links;
        for (const auto& link : QJsonDocument::fromJson(socket->read(maximumRequestBytes)).array())
            links.append(link.toString());
        receive(links);
        socket->deleteLater();
    });
}

void SingleInstance::receive(const QStringList& links)
{
    if (links.isEmpty())
        Q_EMIT activated();
    else
        Q_EMIT linksOpened(links);
}

} // namespace loom
