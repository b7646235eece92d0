#include "stylist/voice/MiraVoiceSocket.h"

#include "stylist/voice/MiraVoiceLine.h"

#include <utility>

namespace loom
{

MiraVoiceSocket::MiraVoiceSocket(std::chrono::milliseconds idle, std::chrono::milliseconds total, QObject* parent)
    : QObject(parent)
    , m_line(new MiraVoiceLine(idle, total))
{
    m_thread.setObjectName(QStringLiteral("MiraVoiceLine"));
    m_line->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_line, &QObject::deleteLater);
    // What an earlier call still has to say is dropped.
    connect(m_line, &MiraVoiceLine::opened, this, [this](quint64 call) {
        if (call != m_call)
            return;
        m_isOpen = true;
        Q_EMIT opened();
    });
    connect(m_line, &MiraVoiceLine::received, this, [this](quint64 call, const MiraVoiceEvent& event) {
        if (call == m_call)
            Q_EMIT received(event);
    });
    connect(m_line, &MiraVoiceLine::closed, this, [this](quint64 call, bool isNormal, bool wasOpen) {
        if (call != m_call)
            return;
        forget();
        Q_EMIT closed(isNormal, wasOpen);
    });
}

MiraVoiceSocket::~MiraVoiceSocket()
{
    if (!m_thread.isRunning()) {
        delete m_line;
        return;
    }
    // After what was asked of the line before, such as a hang-up.
    QMetaObject::invokeMethod(m_line, [line = m_line] {
        line->abort();
        line->thread()->quit();
    });
    m_thread.wait();
}

void MiraVoiceSocket::open(const QUrl& address, const MiraVoiceOpening& opening)
{
    forget();
    if (!m_thread.isRunning())
        m_thread.start();
    QMetaObject::invokeMethod(m_line, [line = m_line, call = m_call, address, opening] {
        line->open(call, address, MiraVoiceFrames::opening(opening));
    });
}

void MiraVoiceSocket::sendAudio(std::vector<float> samples)
{
    if (samples.empty() || !m_isOpen || m_waiting >= MiraVoiceLine::mostWaiting)
        return;
    ++m_waiting;
    QMetaObject::invokeMethod(
        m_line,
        [this, line = m_line, speech = std::move(samples)] {
            --m_waiting;
            line->sendAudio(speech);
        },
        Qt::QueuedConnection);
}

void MiraVoiceSocket::hangUp()
{
    forget();
    if (m_thread.isRunning())
        QMetaObject::invokeMethod(m_line, &MiraVoiceLine::hangUp);
}

void MiraVoiceSocket::abort()
{
    forget();
    if (m_thread.isRunning())
        QMetaObject::invokeMethod(m_line, &MiraVoiceLine::abort);
}

/// The call as it was is over for everybody else.
void MiraVoiceSocket::forget()
{
    ++m_call;
    m_isOpen = false;
}

} // namespace loom
