#pragma once

#include "stylist/voice/MiraVoiceEvent.h"

#include <QObject>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <vector>

class QWebSocket;

namespace loom
{

/// The web socket of a MiraVoiceSocket, which owns it. Lives on the thread of the line, where all of it is called; its
/// signals say which call they are of, because one may be over by the time they arrive.
class MiraVoiceLine final : public QObject
{
    Q_OBJECT

public:
    /// More than this of the shopper's speech does not wait for the network: what is older is worth nothing.
    static constexpr int mostWaiting = 25; ///< chunks: a second

    MiraVoiceLine(std::chrono::milliseconds idle, std::chrono::milliseconds total);
    ~MiraVoiceLine() override;

    void open(quint64 call, const QUrl& address, const QByteArray& opening);
    void sendAudio(const std::vector<float>& samples);
    void hangUp();
    void abort();

Q_SIGNALS:
    void opened(quint64 call);
    void received(quint64 call, const loom::MiraVoiceEvent& event);
    void closed(quint64 call, bool isNormal, bool wasOpen);

private:
    void begin(const QByteArray& opening);
    void read(const QString& frame);
    void send(const QByteArray& frame);
    void end(bool isNormal);
    [[nodiscard]] QWebSocket* letGo();
    [[nodiscard]] qint64 waitingBytes() const;

    QTimer m_idle{this};
    QTimer m_total{this};
    QWebSocket* m_socket = nullptr; ///< null while there is no call
    quint64 m_call = 0;
    bool m_isOpen = false; ///< the opening was sent
};

} // namespace loom
