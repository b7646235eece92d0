#include "platform/SingleInstance.h"

#include "base/Log.h"
#include "platform/FreedesktopApplication.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>

namespace loom
{

namespace
{

constexpr int answerTimeout = 2000; // milliseconds

/// Requests over the socket are one JSON object; nobody has more to say than this.
constexpr qint64 maximumRequestBytes = 1 << 20;

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

QDBusMessage callFor(const Activation& start, const QString& service, const QString& path)
{
    const QString interface = QStringLiteral("org.freedesktop.Application");
    const QVariantMap data = FreedesktopApplication::platformData(start);
    const auto call = [&](const char* method, const QVariantList& arguments) {
        QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, QLatin1String(method));
        message.setArguments(arguments);
        return message;
    };
    // What an action is about travels as its parameters.
    if (!start.action.isEmpty())
        return call("ActivateAction", {start.action, QVariantList(start.links.begin(), start.links.end()), data});
    if (!start.links.isEmpty())
        return call("Open", {start.links, data});
    return call("Activate", {data});
}

QByteArray requestFor(const Activation& start)
{
    const QJsonObject request{{QStringLiteral("links"), QJsonArray::fromStringList(start.links)},
                              {QStringLiteral("action"), start.action},
                              {QStringLiteral("startupId"), start.startupId},
                              {QStringLiteral("activationToken"), start.activationToken}};
    return QJsonDocument(request).toJson(QJsonDocument::Compact);
}

Activation readRequestFrom(const QByteArray& bytes)
{
    const QJsonObject request = QJsonDocument::fromJson(bytes).object();
    const auto text = [&request](const char* key) {
        return request.value(QLatin1String(key)).toString();
    };
    Activation activation{.links = {},
                          .action = text("action"),
                          .startupId = text("startupId"),
                          .activationToken = text("activationToken")};
    for (const auto& link : request.value(QStringLiteral("links")).toArray())
        activation.links.append(link.toString());
    return activation;
}

} // namespace

SingleInstance::SingleInstance(QString applicationID, QObject* parent)
    : QObject(parent)
    , m_applicationID(std::move(applicationID))
{
}

SingleInstance::~SingleInstance() = default;

SingleInstance::Role SingleInstance::claim(const Activation& start)
{
    return QDBusConnection::sessionBus().isConnected() ? claimOnBus(start) : claimSocket(start);
}

SingleInstance::Role SingleInstance::claimOnBus(const Activation& start)
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
        return claimSocket(start);
    }

    static_cast<void>(callOnBus(callFor(start, m_applicationID, objectPath(m_applicationID))));
    return Role::Second;
}

SingleInstance::Role SingleInstance::claimSocket(const Activation& start)
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
    if (sendToSocket(start) != Reached::Instance)
        qCWarning(logPlatform) << "the running instance does not answer";
    return Role::Second;
}

SingleInstance::Reached SingleInstance::tell(const Activation& request) const
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(m_applicationID))
        return sendToSocket(request);
    QDBusMessage call = callFor(request, m_applicationID, objectPath(m_applicationID));
    // Should the instance have ended meanwhile, nobody is to be started in its place.
    call.setAutoStartService(false);
    return callOnBus(call) ? Reached::Instance : Reached::NoAnswer;
}

bool SingleInstance::callOnBus(const QDBusMessage& call)
{
    const QDBusMessage answer = QDBusConnection::sessionBus().call(call, QDBus::Block, answerTimeout);
    if (answer.type() != QDBusMessage::ErrorMessage)
        return true;
    qCWarning(logPlatform) << "the running instance does not answer:" << answer.errorName();
    return false;
}

SingleInstance::Reached SingleInstance::sendToSocket(const Activation& request) const
{
    QLocalSocket socket;
    socket.connectToServer(runtimeFile(m_applicationID));
    if (!socket.waitForConnected(answerTimeout)) {
        const auto error = socket.error();
        // What a crash leaves behind refuses.
        return error == QLocalSocket::ServerNotFoundError || error == QLocalSocket::ConnectionRefusedError
                   ? Reached::Nobody
                   : Reached::NoAnswer;
    }
    socket.write(requestFor(request));
    socket.disconnectFromServer();
    return socket.state() == QLocalSocket::UnconnectedState || socket.waitForDisconnected(answerTimeout)
               ? Reached::Instance
               : Reached::NoAnswer;
}

void SingleInstance::readRequest()
{
    QLocalSocket* const socket = m_server->nextPendingConnection();
    connect(socket, &QLocalSocket::disconnected, this, [this, socket] {
        Q_EMIT activated(readRequestFrom(socket->read(maximumRequestBytes)));
        socket->deleteLater();
    });
}

} // namespace loom
