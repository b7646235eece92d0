#include "stylist/voice/MiraVoiceAudio.h"

#include "base/Log.h"
#include "stylist/voice/MiraVoiceEngine.h"

#include <utility>

namespace loom
{

MiraVoiceAudio::MiraVoiceAudio(VoiceAudio& devices, Sender send, EchoCanceller::Maker makeEchoCanceller,
                               QObject* parent)
    : QObject(parent)
    , m_devices(devices)
    , m_send(std::move(send))
    , m_makeEchoCanceller(std::move(makeEchoCanceller))
{
    connect(&m_devices, &VoiceAudio::streamsChanged, this, [this](const VoiceStreams& streams) {
        if (isRunning())
            m_engine->setStreams(streams, makeCanceller(streams));
    });
    connect(&m_devices, &VoiceAudio::failed, this, [this](VoiceFailure failure) {
        if (isRunning())
            fail(failure);
    });
}

MiraVoiceAudio::~MiraVoiceAudio()
{
    stop();
}

QCoro::Task<std::optional<VoiceFailure>> MiraVoiceAudio::start(VoiceAudio::Choice choice, std::stop_token stop)
{
    this->stop();
    const Work::Run run = m_starting.begin();
    std::stop_source either;
    const auto end = [either]() mutable {
        either.request_stop();
    };
    const std::stop_callback asked(stop, end);
    const std::stop_callback superseded(run.stop(), end);

    const bool mayListen = co_await m_devices.requestAccess(either.get_token());
    if (either.stop_requested())
        co_return std::nullopt;
    if (!mayListen)
        co_return VoiceFailure::AccessRefused;

    m_engine = makeEngine();
    const VoiceAudio::Opened opened = co_await m_devices.open(choice, *m_engine, either.get_token());
    if (run.isStopped())
        co_return std::nullopt; // this may be gone
    if (stop.stop_requested() || !opened.streams) {
        this->stop();
        co_return stop.stop_requested() ? std::nullopt : std::optional(opened.failure);
    }
    m_engine->setMuted(m_isMuted);
    m_engine->setStreams(*opened.streams, makeCanceller(*opened.streams));
    m_thread = std::jthread([engine = m_engine.get()](const std::stop_token& ended) { engine->run(ended); });
    co_return std::nullopt;
}

void MiraVoiceAudio::stop()
{
    ++m_call;
    m_isPlaying = false;
    m_cancelsEcho = false;
    m_starting.stop();
    if (!m_engine)
        return;
    m_thread = {};
    m_devices.close();
    m_engine.reset();
}

bool MiraVoiceAudio::isRunning() const
{
    return m_thread.joinable();
}

bool MiraVoiceAudio::cancelsEcho() const
{
    return m_cancelsEcho;
}

void MiraVoiceAudio::setSending(bool isSending)
{
    if (isRunning())
        m_engine->setSending(isSending);
}

void MiraVoiceAudio::setMuted(bool isMuted)
{
    m_isMuted = isMuted;
    if (isRunning())
        m_engine->setMuted(isMuted);
}

void MiraVoiceAudio::play(std::vector<float> samples)
{
    if (!isRunning() || samples.empty())
        return;
    ++m_given;
    m_isPlaying = true;
    m_engine->play(std::move(samples));
}

void MiraVoiceAudio::endOfSpeech()
{
    if (isRunning())
        m_engine->endOfSpeech();
}

void MiraVoiceAudio::interrupt()
{
    if (!isRunning())
        return;
    m_isPlaying = false;
    m_engine->interrupt();
}

bool MiraVoiceAudio::isPlaying() const
{
    return m_isPlaying;
}

double MiraVoiceAudio::microphoneLevel() const
{
    return isRunning() ? m_engine->microphoneLevel() : 0;
}

double MiraVoiceAudio::playedLevel() const
{
    return isRunning() ? m_engine->playedLevel() : 0;
}

std::unique_ptr<MiraVoiceEngine> MiraVoiceAudio::makeEngine()
{
    m_given = 0;
    const quint64 call = m_call;
    MiraVoiceEngine::Listener listener;
    listener.send = m_send;
    listener.speechBegan = [this, call](bool isInterruption) {
        tell(call, [this, isInterruption] {
            if (isInterruption) {
                m_isPlaying = false;
                m_engine->acceptSpeech();
            }
            Q_EMIT speechBegan(isInterruption);
        });
    };
    listener.speechEnded = [this, call] {
        tell(call, [this] { Q_EMIT speechEnded(); });
    };
    listener.playbackBegan = [this, call] {
        tell(call, [this] {
            if (m_isPlaying)
                Q_EMIT playbackBegan();
        });
    };
    listener.playbackEnded = [this, call](quint64 played) {
        tell(call, [this, played] {
            if (played == m_given && std::exchange(m_isPlaying, false))
                Q_EMIT playbackEnded();
        });
    };
    listener.fellSilent = [this, call] {
        tell(call, [this] { fail(VoiceFailure::NoMicrophone); });
    };
    return std::make_unique<MiraVoiceEngine>(m_devices, std::move(listener));
}

std::unique_ptr<EchoCanceller> MiraVoiceAudio::makeCanceller(const VoiceStreams& streams)
{
    m_cancelsEcho = streams.cancelsEcho;
    if (streams.cancelsEcho || streams.renderRate == 0)
        return nullptr;
    std::unique_ptr<EchoCanceller> canceller = m_makeEchoCanceller ? m_makeEchoCanceller() : nullptr;
    m_cancelsEcho = canceller != nullptr;
    if (!canceller && !std::exchange(m_hasWarned, true))
        qCWarning(logApp) << "calls go on without echo cancellation: it does not start";
    return canceller;
}

void MiraVoiceAudio::tell(quint64 call, std::function<void()> what)
{
    QMetaObject::invokeMethod(
        this,
        [this, call, what = std::move(what)] {
            if (call == m_call)
                what();
        },
        Qt::QueuedConnection);
}

void MiraVoiceAudio::fail(VoiceFailure failure)
{
    stop();
    Q_EMIT failed(failure);
}

} // namespace loom
