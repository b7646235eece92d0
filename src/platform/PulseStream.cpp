#include "platform/PulseStream.h"

#include <pulse/pulseaudio.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <limits>
#include <memory>

namespace loom
{

namespace
{

using std::chrono::milliseconds;

/// What the server hands over at once,
constexpr milliseconds heardAtOnce{10};
/// and keeps for a program that is held up.
constexpr milliseconds heardAtMost{500};
/// What the server holds of her speech: enough for a busy machine, and heard no more once it is flushed.
constexpr milliseconds playedAhead{50};

constexpr std::uint32_t whateverFits = std::numeric_limits<std::uint32_t>::max();
constexpr std::array<float, 480> silence{};

std::uint32_t bytes(milliseconds duration, int rate)
{
    return static_cast<std::uint32_t>(static_cast<std::size_t>(rate * duration.count() / 1000) * sizeof(float));
}

pa_buffer_attr buffers(PulseStream::Direction direction, int rate)
{
    pa_buffer_attr buffers{};
    buffers.maxlength = whateverFits;
    buffers.tlength = whateverFits;
    buffers.minreq = whateverFits;
    buffers.fragsize = whateverFits;
    if (direction == PulseStream::Direction::Capture) {
        buffers.maxlength = bytes(heardAtMost, rate);
        buffers.fragsize = bytes(heardAtOnce, rate);
    } else {
        buffers.tlength = bytes(playedAhead, rate);
    }
    buffers.prebuf = 0; // plays on by itself when it has run dry
    return buffers;
}

/// Has it told, once, when the server has said anew how late the stream is. Not by the answer to the question itself:
/// that still comes when nobody owns the stream any more.
void onceTimed(pa_stream* stream, pa_stream_notify_cb_t told, void* self)
{
    pa_stream_set_latency_update_callback(stream, told, self);
    PulseLoop::forget(pa_stream_update_timing_info(stream, nullptr, nullptr));
}

/// A stream that is just being made cannot be ended: the server would make it all the same, and a microphone would stay
/// open that nobody hears. It ends itself then.
void end(pa_stream* stream)
{
    if (pa_stream_get_state(stream) == PA_STREAM_CREATING) {
        const auto endOnceMade = [](pa_stream* made, void*) {
            if (pa_stream_get_state(made) == PA_STREAM_READY)
                pa_stream_disconnect(made);
        };
        pa_stream_set_state_callback(stream, endOnceMade, nullptr);
    } else {
        pa_stream_disconnect(stream);
    }
}

double latencyOf(pa_stream* stream)
{
    pa_usec_t latency = 0;
    int isNegative = 0;
    if (pa_stream_get_latency(stream, &latency, &isNegative) < 0 || isNegative)
        return 0;
    return static_cast<double>(latency) / PA_USEC_PER_SEC;
}

} // namespace

PulseStream::PulseStream(PulseLoop& loop, pa_context* context, Direction direction, const QString& device, int rate)
    : m_loop(loop)
    , m_direction(direction)
{
    const PulseLoop::Lock lock(m_loop);
    const pa_sample_spec format{.format = PA_SAMPLE_FLOAT32NE, .rate = static_cast<std::uint32_t>(rate), .channels = 1};
    const std::unique_ptr<pa_proplist, decltype(&pa_proplist_free)> properties(pa_proplist_new(), &pa_proplist_free);
    pa_proplist_sets(properties.get(), PA_PROP_MEDIA_ROLE, "phone");
    m_stream = pa_stream_new_with_proplist(context, "Mira", &format, nullptr, properties.get());
    if (!m_stream) {
        report(State::Failed, pa_context_errno(context));
        return;
    }
    pa_stream_set_state_callback(
        m_stream, [](pa_stream*, void* self) { static_cast<PulseStream*>(self)->streamChanged(); }, this);
    pa_stream_set_moved_callback(
        m_stream,
        [](pa_stream* stream, void* data) {
            // What it knows of its latency is of the device before.
            const auto told = [](pa_stream* timed, void* owner) {
                pa_stream_set_latency_update_callback(timed, nullptr, nullptr);
                auto* const self = static_cast<PulseStream*>(owner);
                self->report(State::Ready, PA_OK); // it may have moved before it was
                QMetaObject::invokeMethod(self, &PulseStream::moved, Qt::QueuedConnection);
            };
            onceTimed(stream, told, data);
        },
        this);
    const QByteArray name = device.toUtf8();
    const char* const target = device.isEmpty() ? nullptr : name.constData();
    const pa_buffer_attr attributes = buffers(direction, rate);
    const auto flags = static_cast<pa_stream_flags_t>(PA_STREAM_ADJUST_LATENCY | PA_STREAM_AUTO_TIMING_UPDATE |
                                                      PA_STREAM_INTERPOLATE_TIMING);
    int result = 0;
    if (direction == Direction::Capture) {
        pa_stream_set_read_callback(
            m_stream, [](pa_stream*, size_t, void* self) { static_cast<PulseStream*>(self)->hear(); }, this);
        result = pa_stream_connect_record(m_stream, target, &attributes, flags);
    } else {
        pa_stream_set_write_callback(
            m_stream, [](pa_stream*, size_t wanted, void* self) { static_cast<PulseStream*>(self)->fill(wanted); },
            this);
        result = pa_stream_connect_playback(m_stream, target, &attributes, flags, nullptr, nullptr);
    }
    if (result < 0)
        report(State::Failed, pa_context_errno(context));
}

PulseStream::~PulseStream()
{
    const PulseLoop::Lock lock(m_loop);
    if (!m_stream)
        return;
    pa_stream_set_state_callback(m_stream, nullptr, nullptr);
    pa_stream_set_moved_callback(m_stream, nullptr, nullptr);
    pa_stream_set_read_callback(m_stream, nullptr, nullptr);
    pa_stream_set_write_callback(m_stream, nullptr, nullptr);
    pa_stream_set_latency_update_callback(m_stream, nullptr, nullptr);
    end(m_stream);
    pa_stream_unref(m_stream);
}

void PulseStream::setFlow(VoiceFlow& flow)
{
    const PulseLoop::Lock lock(m_loop);
    m_flow = &flow;
}

quint32 PulseStream::device() const
{
    const PulseLoop::Lock lock(m_loop);
    return m_stream ? pa_stream_get_device_index(m_stream) : PA_INVALID_INDEX;
}

double PulseStream::latency() const
{
    const PulseLoop::Lock lock(m_loop);
    return m_stream ? latencyOf(m_stream) : 0;
}

void PulseStream::flush()
{
    const PulseLoop::Lock lock(m_loop);
    if (m_stream && pa_stream_get_state(m_stream) == PA_STREAM_READY)
        PulseLoop::forget(pa_stream_flush(m_stream, nullptr, nullptr));
}

void PulseStream::streamChanged()
{
    switch (pa_stream_get_state(m_stream)) {
    case PA_STREAM_READY:
        // It counts as ready once its latency is known.
        onceTimed(
            m_stream,
            [](pa_stream* timed, void* self) {
                pa_stream_set_latency_update_callback(timed, nullptr, nullptr);
                static_cast<PulseStream*>(self)->report(State::Ready, PA_OK);
            },
            this);
        break;
    case PA_STREAM_FAILED:
    case PA_STREAM_TERMINATED:
        report(State::Failed, pa_context_errno(pa_stream_get_context(m_stream)));
        break;
    default:
        break;
    }
}

void PulseStream::report(State state, int error)
{
    QMetaObject::invokeMethod(
        this,
        [this, state, error] {
            m_state = state;
            m_error = error;
            Q_EMIT stateChanged();
        },
        Qt::QueuedConnection);
}

void PulseStream::hear()
{
    while (pa_stream_readable_size(m_stream) > 0) {
        const void* data = nullptr;
        std::size_t size = 0;
        if (pa_stream_peek(m_stream, &data, &size) < 0 || size == 0)
            return;
        std::size_t count = size / sizeof(float);
        if (m_flow && data)
            m_flow->captured({static_cast<const float*>(data), count});
        // A hole: something was lost, and time goes on.
        while (m_flow && !data && count > 0) {
            const std::size_t part = std::min(count, silence.size());
            m_flow->captured(std::span(silence).first(part));
            count -= part;
        }
        pa_stream_drop(m_stream);
    }
}

void PulseStream::fill(std::size_t wanted)
{
    while (wanted >= sizeof(float)) {
        void* data = nullptr;
        std::size_t size = wanted;
        if (pa_stream_begin_write(m_stream, &data, &size) < 0 || !data)
            return;
        const std::size_t count = std::min(size, wanted) / sizeof(float);
        const std::span samples(static_cast<float*>(data), count);
        if (m_flow)
            m_flow->render(samples, latencyOf(m_stream));
        else
            std::ranges::fill(samples, 0.0F);
        if (count == 0 || pa_stream_write(m_stream, data, samples.size_bytes(), nullptr, 0, PA_SEEK_RELATIVE) < 0)
            return;
        wanted -= samples.size_bytes();
    }
}

} // namespace loom
