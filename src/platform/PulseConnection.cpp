#include "platform/PulseConnection.h"

#include "base/Log.h"

#include <pulse/pulseaudio.h>

#include <memory>
#include <utility>

namespace loom
{

namespace
{

constexpr int questions = 3; // the server, its sources, its sinks

QString text(const pa_proplist* properties, const char* key)
{
    return QString::fromUtf8(pa_proplist_gets(properties, key));
}

/// A source or a sink: they are told of in the same words.
template <typename Info>
PulseDevice deviceOf(const Info& info)
{
    PulseDevice device;
    device.index = info.index;
    device.name = QString::fromUtf8(info.name);
    device.description = QString::fromUtf8(info.description).simplified();
    device.rate = static_cast<int>(info.sample_spec.rate);
    device.master = text(info.proplist, PA_PROP_DEVICE_MASTER_DEVICE);
    device.echoGroup = PulseDevice::echoGroupOf(device.name, QString::fromUtf8(info.driver), info.owner_module,
                                                text(info.proplist, "node.link-group"));
    return device;
}

} // namespace

PulseConnection::PulseConnection(PulseLoop& loop, QString applicationID)
    : m_loop(loop)
    , m_applicationID(std::move(applicationID))
{
    if (!m_loop.start()) {
        m_state = State::Failed;
        m_error = PA_ERR_INTERNAL;
        return;
    }
    // Even finding the server takes time: files, and the X server.
    const PulseLoop::Lock lock(m_loop);
    m_beginning = m_loop.api()->defer_new(
        m_loop.api(),
        [](pa_mainloop_api*, pa_defer_event*, void* self) { static_cast<PulseConnection*>(self)->connectToServer(); },
        this);
}

PulseConnection::~PulseConnection()
{
    const PulseLoop::Lock lock(m_loop);
    if (m_beginning)
        m_loop.api()->defer_free(m_beginning);
    if (!m_context)
        return;
    pa_context_set_state_callback(m_context, nullptr, nullptr);
    pa_context_set_subscribe_callback(m_context, nullptr, nullptr);
    pa_context_disconnect(m_context); // with everything that was asked
    pa_context_unref(m_context);
}

void PulseConnection::followDevices(bool isFollowing)
{
    const PulseLoop::Lock lock(m_loop);
    if (std::exchange(m_isFollowing, isFollowing) == isFollowing)
        return;
    m_knowsDevices = false;
    if (m_context && pa_context_get_state(m_context) == PA_CONTEXT_READY) {
        subscribe();
        if (m_isFollowing)
            gather();
    }
}

void PulseConnection::refresh()
{
    const PulseLoop::Lock lock(m_loop);
    if (m_context && pa_context_get_state(m_context) == PA_CONTEXT_READY)
        gather();
}

void PulseConnection::connectToServer()
{
    m_loop.api()->defer_free(std::exchange(m_beginning, nullptr));
    const QByteArray application = m_applicationID.toUtf8();
    const std::unique_ptr<pa_proplist, decltype(&pa_proplist_free)> properties(pa_proplist_new(), &pa_proplist_free);
    pa_proplist_sets(properties.get(), PA_PROP_APPLICATION_NAME, "LOOMSTREET");
    pa_proplist_sets(properties.get(), PA_PROP_APPLICATION_ID, application.constData());
    pa_proplist_sets(properties.get(), PA_PROP_APPLICATION_ICON_NAME, application.constData());
    m_context = pa_context_new_with_proplist(m_loop.api(), "LOOMSTREET", properties.get());
    if (!m_context) {
        report(State::Failed, PA_ERR_INTERNAL);
        return;
    }
    pa_context_set_state_callback(
        m_context, [](pa_context*, void* self) { static_cast<PulseConnection*>(self)->contextChanged(); }, this);
    pa_context_set_subscribe_callback(
        m_context,
        [](pa_context*, pa_subscription_event_type_t, uint32_t, void* self) {
            static_cast<PulseConnection*>(self)->gather();
        },
        this);
    // Desktops start their server themselves.
    if (pa_context_connect(m_context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0 &&
        pa_context_get_state(m_context) != PA_CONTEXT_FAILED)
        report(State::Failed, pa_context_errno(m_context));
}

void PulseConnection::contextChanged()
{
    switch (pa_context_get_state(m_context)) {
    case PA_CONTEXT_READY:
        report(State::Ready, PA_OK);
        if (m_isFollowing)
            subscribe();
        gather();
        break;
    case PA_CONTEXT_FAILED:
    case PA_CONTEXT_TERMINATED:
        report(State::Failed, pa_context_errno(m_context));
        break;
    default:
        break;
    }
}

void PulseConnection::report(State state, int error)
{
    QMetaObject::invokeMethod(
        this,
        [this, state, error] {
            if (state == State::Failed)
                qCInfo(logPlatform) << "the sound server is out of reach:" << pa_strerror(error);
            m_state = state;
            m_error = error;
            Q_EMIT stateChanged();
        },
        Qt::QueuedConnection);
}

void PulseConnection::subscribe()
{
    const auto what = m_isFollowing
                          ? PA_SUBSCRIPTION_MASK_SOURCE | PA_SUBSCRIPTION_MASK_SINK | PA_SUBSCRIPTION_MASK_SERVER
                          : PA_SUBSCRIPTION_MASK_NULL;
    PulseLoop::forget(pa_context_subscribe(m_context, static_cast<pa_subscription_mask_t>(what), nullptr, nullptr));
}

void PulseConnection::gather()
{
    // One round at a time: devices come in crowds.
    if (m_missing > 0) {
        m_isStale = true;
        return;
    }
    m_isStale = false;
    m_gathered = {};
    m_missing = questions;
    PulseLoop::forget(pa_context_get_server_info(
        m_context,
        [](pa_context*, const pa_server_info* info, void* data) {
            auto* const self = static_cast<PulseConnection*>(data);
            if (info) {
                self->m_gathered.defaultSource = QString::fromUtf8(info->default_source_name);
                self->m_gathered.defaultSink = QString::fromUtf8(info->default_sink_name);
            }
            self->gathered();
        },
        this));
    PulseLoop::forget(pa_context_get_source_info_list(
        m_context,
        [](pa_context*, const pa_source_info* info, int isEnd, void* data) {
            auto* const self = static_cast<PulseConnection*>(data);
            if (isEnd != 0) {
                self->gathered();
                return;
            }
            PulseDevice device = deviceOf(*info);
            device.isMonitor = info->monitor_of_sink != PA_INVALID_INDEX;
            self->m_gathered.sources.push_back(std::move(device));
        },
        this));
    PulseLoop::forget(pa_context_get_sink_info_list(
        m_context,
        [](pa_context*, const pa_sink_info* info, int isEnd, void* data) {
            auto* const self = static_cast<PulseConnection*>(data);
            if (isEnd != 0)
                self->gathered();
            else
                self->m_gathered.sinks.push_back(deviceOf(*info));
        },
        this));
}

void PulseConnection::gathered()
{
    if (--m_missing > 0)
        return;
    if (m_isStale) {
        gather();
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this, devices = std::move(m_gathered)] {
            const bool isNew = !std::exchange(m_knowsDevices, true);
            if (std::exchange(m_devices, devices) != devices || isNew)
                Q_EMIT devicesChanged();
        },
        Qt::QueuedConnection);
}

} // namespace loom
