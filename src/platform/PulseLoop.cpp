#include "platform/PulseLoop.h"

#include <pulse/operation.h>
#include <pulse/thread-mainloop.h>

namespace loom
{

PulseLoop::PulseLoop()
    : m_loop(pa_threaded_mainloop_new())
{
}

void PulseLoop::forget(pa_operation* operation)
{
    if (operation)
        pa_operation_unref(operation);
}

PulseLoop::~PulseLoop()
{
    if (!m_loop)
        return;
    if (m_isRunning)
        pa_threaded_mainloop_stop(m_loop);
    pa_threaded_mainloop_free(m_loop);
}

bool PulseLoop::start()
{
    if (m_loop && !m_isRunning) {
        pa_threaded_mainloop_set_name(m_loop, "sound");
        m_isRunning = pa_threaded_mainloop_start(m_loop) == 0;
    }
    return m_isRunning;
}

pa_mainloop_api* PulseLoop::api() const
{
    return pa_threaded_mainloop_get_api(m_loop);
}

PulseLoop::Lock::Lock(const PulseLoop& loop)
    : m_loop(loop.m_loop && !pa_threaded_mainloop_in_thread(loop.m_loop) ? loop.m_loop : nullptr)
{
    if (m_loop)
        pa_threaded_mainloop_lock(m_loop);
}

PulseLoop::Lock::~Lock()
{
    if (m_loop)
        pa_threaded_mainloop_unlock(m_loop);
}

} // namespace loom
