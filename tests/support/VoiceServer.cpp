#include "support/VoiceServer.h"

#include "support/Running.h"
#include "support/TestAuthority.h"

#include <QJsonDocument>
#include <QWebSocket>

#include <gtest/gtest.h>

#include <stdexcept>

namespace loom
{

VoiceCall::VoiceCall(QWebSocket* socket)
    : m_socket(socket)
{
    QObject::connect(socket, &QWebSocket::textMessageReceived, socket, [this](const QString& text) {
        const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
        if (!document.isObject())
            ADD_FAILURE() << "no JSON object: " << text.left(200).toStdString();
        m_frames.push_back(document.object());
    });
    QObject::connect(socket, &QWebSocket::disconnected, socket, [this] { m_closed = m_socket->closeCode(); });
}

VoiceCall::~VoiceCall()
{
    m_socket->disconnect();
    m_socket->abort();
}

QString VoiceCall::path() const
{
    return m_socket->requestUrl().path();
}

std::vector<QJsonObject> VoiceCall::frames(const char* type) const
{
    std::vector<QJsonObject> found;
    std::ranges::copy_if(m_frames, std::back_inserter(found), [type](const QJsonObject& frame) {
        return frame.value(QStringLiteral("type")) == QLatin1String(type);
    });
    return found;
}

void VoiceCall::waitForFrames(std::size_t count) const
{
    waitUntil([this, count] { return m_frames.size() >= count; }, "frames of the call");
}

void VoiceCall::waitUntilClosed() const
{
    waitUntil([this] { return m_closed.has_value(); }, "the end of the call's line");
}

void VoiceCall::say(const QJsonObject& event)
{
    sendText(QString::fromUtf8(QJsonDocument(event).toJson(QJsonDocument::Compact)));
}

void VoiceCall::sendText(const QString& frame)
{
    m_socket->sendTextMessage(frame);
}

void VoiceCall::sendBytes(const QByteArray& frame)
{
    m_socket->sendBinaryMessage(frame);
}

void VoiceCall::close(QWebSocketProtocol::CloseCode code)
{
    m_socket->close(code);
}

void VoiceCall::drop()
{
    m_socket->abort();
}

VoiceServer::VoiceServer()
    : m_listener(QStringLiteral("voice"), QWebSocketServer::SecureMode)
{
    m_listener.setSslConfiguration(serverConfiguration(Credentials::Valid));
    QObject::connect(&m_listener, &QWebSocketServer::newConnection, &m_listener, [this] {
        while (QWebSocket* const socket = m_listener.nextPendingConnection())
            m_calls.push_back(std::make_unique<VoiceCall>(socket));
    });
    if (!m_listener.listen(QHostAddress::LocalHost))
        throw std::runtime_error("the voice service cannot listen");
}

QString VoiceServer::base() const
{
    return QStringLiteral("https://localhost:%1").arg(m_listener.serverPort());
}

VoiceCall& VoiceServer::waitForCall(std::size_t number) const
{
    waitUntil([this, number] { return m_calls.size() >= number && !m_calls[number - 1]->frames().empty(); },
              "a call's opening");
    return *m_calls[number - 1];
}

} // namespace loom
