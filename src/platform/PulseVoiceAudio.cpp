#include "platform/PulseVoiceAudio.h"

#include "base/Clock.h"
#include "platform/PulseConnection.h"
#include "platform/PulseStreams.h"

#include <QPointer>
#include <QPromise>
#include <pulse/def.h>
#include <qcoro/qcorofuture.h>

#include <utility>

namespace loom
{

/// How opening went, for who waits for it. Given once.
class PulseVoiceAudio::Answer
{
public:
    Answer() { m_promise.start(); }

    [[nodiscard]] QFuture<std::optional<VoiceFailure>> wait() const { return m_promise.future(); }
    [[nodiscard]] bool isGiven() const { return m_isGiven; }
    /// Nothing is that it went well.
    void give(std::optional<VoiceFailure> failure)
    {
        if (std::exchange(m_isGiven, true))
            return;
        m_promise.addResult(failure);
        m_promise.finish();
    }

private:
    QPromise<std::optional<VoiceFailure>> m_promise;
    bool m_isGiven = false;
};

PulseVoiceAudio::PulseVoiceAudio(Clock& clock, QString applicationID, QObject* parent)
    : VoiceAudio(parent)
    , m_clock(clock)
    , m_applicationID(std::move(applicationID))
{
}

PulseVoiceAudio::~PulseVoiceAudio()
{
    close();
}

QCoro::Task<bool> PulseVoiceAudio::requestAccess(std::stop_token)
{
    co_return true;
}

// NOLINTNEXTLINE(cppcoreguidelines-avoid-reference-coroutine-parameters): the flow lives until close()
QCoro::Task<VoiceAudio::Opened> PulseVoiceAudio::open(Choice choice, VoiceFlow& flow, std::stop_token stop)
{
    close();
    const auto answer = std::make_shared<Answer>();
    const QPointer<PulseVoiceAudio> self(this);
    const std::stop_callback onStop(stop, [self, answer] {
        if (self && self->m_answer == answer)
            self->close();
        answer->give(VoiceFailure::NoMicrophone);
    });
    if (!answer->isGiven()) {
        m_answer = answer;
        {
            const PulseLoop::Lock lock(m_loop);
            m_streams = std::make_unique<PulseStreams>(m_loop, std::move(choice), flow);
        }
        connect(m_streams.get(), &PulseStreams::changed, this, &PulseVoiceAudio::advance);
        connect(m_streams.get(), &PulseStreams::moved, this, [this] {
            m_connection->refresh(); // it may be one that is not known yet
            advance();
        });
        connectIfNeeded();
        followDevices();
        advance();
    }
    const std::optional<VoiceFailure> failure = co_await answer->wait();
    if (failure || !self || m_answer != answer)
        co_return Opened{.streams = {}, .failure = failure.value_or(VoiceFailure::NoMicrophone)};
    // Nothing flows before who opened it knows at which rates.
    QMetaObject::invokeMethod(
        this,
        [this, answer] {
            if (m_answer == answer) {
                m_streams->begin();
                advance();
            }
        },
        Qt::QueuedConnection);
    co_return Opened{.streams = m_announced};
}

void PulseVoiceAudio::close()
{
    m_waiting.stop();
    {
        const PulseLoop::Lock lock(m_loop);
        m_streams.reset();
    }
    followDevices();
    if (const auto answer = std::exchange(m_answer, nullptr))
        answer->give(VoiceFailure::NoMicrophone);
}

void PulseVoiceAudio::dropRendered()
{
    const PulseLoop::Lock lock(m_loop);
    if (m_streams)
        m_streams->flush();
}

bool PulseVoiceAudio::isConnected() const
{
    return m_connection && m_connection->state() == PulseConnection::State::Ready;
}

std::vector<VoiceDevice> PulseVoiceAudio::microphones() const
{
    return isConnected() ? m_connection->devices().microphones() : std::vector<VoiceDevice>();
}

std::vector<VoiceDevice> PulseVoiceAudio::speakers() const
{
    return isConnected() ? m_connection->devices().speakers() : std::vector<VoiceDevice>();
}

void PulseVoiceAudio::watchDevices(bool isWatching)
{
    m_watchers += isWatching ? 1 : -1;
    if (isWatching)
        connectIfNeeded();
    followDevices();
}

void PulseVoiceAudio::connectIfNeeded()
{
    if (m_connection && m_connection->state() != PulseConnection::State::Failed)
        return;
    m_connection = std::make_unique<PulseConnection>(m_loop, m_applicationID);
    const auto follow = [this] {
        if (m_streams)
            m_streams->hopeAgain();
        Q_EMIT devicesChanged();
        advance();
    };
    // Queued: what is done then may end the connection.
    connect(m_connection.get(), &PulseConnection::stateChanged, this, follow, Qt::QueuedConnection);
    connect(m_connection.get(), &PulseConnection::devicesChanged, this, follow, Qt::QueuedConnection);
}

void PulseVoiceAudio::followDevices()
{
    if (m_connection)
        m_connection->followDevices(m_streams || m_watchers > 0);
}

void PulseVoiceAudio::advance()
{
    if (!m_streams)
        return;
    if (m_connection->state() == PulseConnection::State::Failed) {
        end(m_connection->error() == PA_ERR_ACCESS ? VoiceFailure::AccessRefused : VoiceFailure::NoMicrophone);
        return;
    }
    if (m_connection->knowsDevices()) {
        m_streams->follow(*m_connection);
        const std::optional<VoiceFailure> failure = m_streams->failure();
        if (failure && (!m_answer->isGiven() || failure == VoiceFailure::AccessRefused)) {
            end(*failure);
            return;
        }
    }
    if (m_streams->isSettled())
        m_waiting.stop();
    else if (!m_waiting.isRunning())
        static_cast<void>(loseHope(m_answer->isGiven() ? flowingPatience : openingPatience));
    if (m_streams->isSettled())
        announce();
}

void PulseVoiceAudio::announce()
{
    VoiceStreams streams = m_streams->streams(m_connection->devices());
    const auto places = m_streams->places();
    if (!m_answer->isGiven()) {
        m_announced = streams;
        m_announcedPlaces = places;
        m_answer->give(std::nullopt);
        return;
    }
    if (!m_streams->isFlowing())
        return; // who opened it has not even heard of the first
    const double latency = std::exchange(streams.captureLatency, m_announced.captureLatency);
    if (streams != m_announced || places != m_announcedPlaces) {
        streams.captureLatency = latency;
        m_announced = streams;
        m_announcedPlaces = places;
        const QPointer<PulseStreams> ours(m_streams.get());
        Q_EMIT streamsChanged(streams);
        if (!ours)
            return;
    }
    m_streams->begin(); // also what has taken the place of another
}

QCoro::Task<> PulseVoiceAudio::loseHope(std::chrono::milliseconds patience)
{
    const Work::Run run = m_waiting.begin();
    co_await m_clock.sleep(patience, run.stop());
    if (run.isStopped())
        co_return;
    if (m_streams->isHeard()) {
        m_streams->giveUpSpeaker();
        advance();
    } else {
        end(m_streams->failure().value_or(VoiceFailure::NoMicrophone));
    }
}

void PulseVoiceAudio::end(VoiceFailure failure)
{
    const auto answer = m_answer;
    const bool wasOpen = answer->isGiven();
    answer->give(failure);
    close();
    if (wasOpen)
        Q_EMIT failed(failure);
}

} // namespace loom
