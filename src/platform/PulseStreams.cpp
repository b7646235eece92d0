#include "platform/PulseStreams.h"

#include "base/Log.h"
#include "platform/PulseConnection.h"

#include <pulse/def.h>
#include <pulse/error.h>

#include <utility>

namespace loom
{

namespace
{

/// Of one end in a row: as it was chosen, then on the default device. After them only another device gives hope.
constexpr int mostFailures = 3;

bool isReady(const std::unique_ptr<PulseStream>& stream)
{
    return stream && stream->state() == PulseStream::State::Ready;
}

} // namespace

PulseStreams::PulseStreams(PulseLoop& loop, VoiceAudio::Choice choice, VoiceFlow& flow)
    : m_loop(loop)
    , m_choice(std::move(choice))
    , m_flow(flow)
{
}

PulseStreams::~PulseStreams()
{
    put(m_microphone, nullptr);
    put(m_speaker, nullptr);
}

void PulseStreams::follow(const PulseConnection& connection)
{
    lookAt(m_microphone);
    lookAt(m_speaker);
    VoiceAudio::Choice choice = m_choice;
    if (m_microphone.failures > 0)
        choice.microphone.clear();
    if (m_speaker.failures > 0)
        choice.speaker.clear();
    const bool isFirstAttempt = m_microphone.failures == 0 && m_speaker.failures == 0;
    const PulseDevices::Plan plan = connection.devices().plan(choice, isFirstAttempt);
    if (plan.captureRate > 0)
        start(m_microphone, connection, plan.source, plan.captureRate);
    else
        put(m_microphone, nullptr); // servers would let it hear what is played
    if (plan.renderRate > 0)
        start(m_speaker, connection, plan.sink, plan.renderRate);
}

void PulseStreams::lookAt(End& end)
{
    if (isReady(end.stream)) {
        end.failures = 0;
    } else if (end.stream && end.stream->state() == PulseStream::State::Failed) {
        end.error = end.stream->error();
        ++end.failures;
        qCInfo(logPlatform) << (&end == &m_microphone ? "the microphone" : "the loudspeaker")
                            << "has ended:" << pa_strerror(end.error);
        put(end, nullptr);
    }
}

void PulseStreams::put(End& end, std::unique_ptr<PulseStream> stream)
{
    const PulseLoop::Lock lock(m_loop);
    end.stream = std::move(stream);
}

void PulseStreams::start(End& end, const PulseConnection& connection, const QString& device, int rate)
{
    if (end.stream || end.failures == mostFailures)
        return;
    if (end.rate == 0)
        end.rate = rate;
    auto stream = std::make_unique<PulseStream>(m_loop, connection.context(), end.direction, device, end.rate);
    // Queued: what is done then may end the stream.
    connect(stream.get(), &PulseStream::stateChanged, this, &PulseStreams::changed, Qt::QueuedConnection);
    connect(stream.get(), &PulseStream::moved, this, &PulseStreams::moved, Qt::QueuedConnection);
    put(end, std::move(stream));
}

void PulseStreams::hopeAgain()
{
    m_microphone.failures = 0;
    m_speaker.failures = 0;
}

void PulseStreams::giveUpSpeaker()
{
    put(m_speaker, nullptr);
    m_speaker.failures = mostFailures;
}

void PulseStreams::begin()
{
    m_isFlowing = true;
    for (const End* const end : {&m_microphone, &m_speaker}) {
        if (end->stream)
            end->stream->setFlow(m_flow);
    }
}

void PulseStreams::flush()
{
    const PulseLoop::Lock lock(m_loop);
    if (m_speaker.stream)
        m_speaker.stream->flush();
}

bool PulseStreams::isHeard() const
{
    return isReady(m_microphone.stream);
}

bool PulseStreams::isSettled() const
{
    return isHeard() && (!m_speaker.stream || isReady(m_speaker.stream));
}

std::optional<VoiceFailure> PulseStreams::failure() const
{
    if (m_microphone.error == PA_ERR_ACCESS)
        return VoiceFailure::AccessRefused;
    if (m_microphone.stream)
        return std::nullopt;
    return VoiceFailure::NoMicrophone;
}

VoiceStreams PulseStreams::streams(const PulseDevices& devices) const
{
    VoiceStreams streams;
    streams.captureRate = m_microphone.rate;
    streams.renderRate = isReady(m_speaker.stream) ? m_speaker.rate : 0;
    streams.cancelsEcho = devices.cancelEcho(places().first, places().second);
    streams.captureLatency = m_microphone.stream ? m_microphone.stream->latency() : 0;
    return streams;
}

std::pair<quint32, quint32> PulseStreams::places() const
{
    return {m_microphone.stream ? m_microphone.stream->device() : PA_INVALID_INDEX,
            m_speaker.stream ? m_speaker.stream->device() : PA_INVALID_INDEX};
}

} // namespace loom
