#include "stylist/voice/MiraVoiceLine.h"

#include "base/Log.h"
#include "stylist/voice/MiraVoiceFormat.h"
#include "stylist/voice/MiraVoiceOpening.h"
#include "stylist/voice/MiraVoiceSocket.h"

#include <QAbstractSocket>
#include <QSslSocket>
#include <QWebSocket>

#include <utility>

namespace loom
{

namespace
{

/// How long the last frames may take to leave.
constexpr std::chrono::seconds farewell{5};
/// What the system may hold back of what is written: half a second of speech. Otherwise it takes minutes of it.
constexpr int systemBuffer = 64 * 1024; // bytes
/// The size of an audio frame: samples in base64, and a little around it.
constexpr qint64 chunkBytes = voiceFormat::chunkSamples * sizeof(float) * 4 / 3 + 40;

} // namespace

MiraVoiceLine::MiraVoiceLine(std::chrono::milliseconds idle, std::chrono::milliseconds total)
{
    for (QTimer* const timer : {&m_idle, &m_total}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, [this] {
            qCWarning(logNet) << "a call's line was silent, or open, for too long";
            end(false);
        });
    }
    m_idle.setInterval(idle);
    m_total.setInterval(total);
}

MiraVoiceLine::~MiraVoiceLine() = default;

void MiraVoiceLine::open(quint64 call, const QUrl& address, const QByteArray& opening)
{
    abort();
    m_call = call;
    m_socket = new QWebSocket(QString(), QWebSocketProtocol::VersionLatest, this);
    m_socket->setMaxAllowedIncomingFrameSize(MiraVoiceSocket::longestFrame);
    m_socket->setMaxAllowedIncomingMessageSize(MiraVoiceSocket::longestFrame);
    connect(m_socket, &QWebSocket::connected, this, [this, opening] { begin(opening); });
    connect(m_socket, &QWebSocket::textMessageReceived, this, &MiraVoiceLine::read);
    // One that never came about has the normal reason, too.
    connect(m_socket, &QWebSocket::disconnected, this,
            [this] { end(m_isOpen && m_socket->closeCode() == QWebSocketProtocol::CloseCodeNormal); });
    connect(m_socket, qOverload<QAbstractSocket::SocketError>(&QWebSocket::error), this,
            [this](QAbstractSocket::SocketError error) {
                qCWarning(logNet) << "a call's line failed:" << error;
                end(false);
            });
    m_idle.start();
    m_total.start();
    m_socket->open(address);
}

void MiraVoiceLine::begin(const QByteArray& opening)
{
    if (auto* const connection = m_socket->findChild<QAbstractSocket*>()) {
        connection->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        connection->setSocketOption(QAbstractSocket::SendBufferSizeSocketOption, systemBuffer);
    }
    send(opening);
    if (!m_socket)
        return; // it broke at once
    m_isOpen = true;
    Q_EMIT opened(m_call);
}

void MiraVoiceLine::read(const QString& frame)
{
    m_idle.start();
    if (const auto event = MiraVoiceEvent::read(frame.toUtf8()))
        Q_EMIT received(m_call, *event);
}

void MiraVoiceLine::send(const QByteArray& frame)
{
    m_idle.start();
    m_socket->sendTextMessage(QString::fromUtf8(frame)); // may end the line
}

void MiraVoiceLine::sendAudio(const std::vector<float>& samples)
{
    if (m_isOpen && waitingBytes() < mostWaiting * chunkBytes)
        send(MiraVoiceFrames::audio(samples));
}

/// What TLS has already encrypted waits as well, and the web socket does not count it.
qint64 MiraVoiceLine::waitingBytes() const
{
    const auto* const connection = m_socket->findChild<QSslSocket*>();
    return m_socket->bytesToWrite() + (connection ? connection->encryptedBytesToWrite() : 0);
}

void MiraVoiceLine::hangUp()
{
    const bool wasOpen = m_isOpen;
    QWebSocket* const socket = letGo();
    if (!socket)
        return;
    connect(socket, &QWebSocket::disconnected, socket, &QObject::deleteLater);
    QTimer::singleShot(wasOpen ? farewell : std::chrono::seconds(0), socket, [socket] {
        socket->abort();
        socket->deleteLater();
    });
    if (wasOpen) {
        socket->sendTextMessage(QString::fromUtf8(MiraVoiceFrames::hangup()));
        socket->close(QWebSocketProtocol::CloseCodeNormal);
    }
}

void MiraVoiceLine::abort()
{
    if (QWebSocket* const socket = letGo()) {
        socket->abort();
        socket->deleteLater();
    }
}

void MiraVoiceLine::end(bool isNormal)
{
    const bool wasOpen = m_isOpen;
    // It may be in the middle of telling why: it goes when it is done.
    if (QWebSocket* const socket = letGo()) {
        socket->deleteLater();
        Q_EMIT closed(m_call, isNormal, wasOpen);
    }
}

/// The socket, of which this line hears nothing any more.
QWebSocket* MiraVoiceLine::letGo()
{
    m_idle.stop();
    m_total.stop();
    m_isOpen = false;
    QWebSocket* const socket = std::exchange(m_socket, nullptr);
    if (socket)
        socket->disconnect(this);
    return socket;
}

} // namespace loom
