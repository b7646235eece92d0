#pragma once

struct pa_mainloop_api;
struct pa_operation;
struct pa_threaded_mainloop;

namespace loom
{

/// The thread that speaks to the sound server. Runs from the first start() to the end of this object.
class PulseLoop
{
public:
    PulseLoop();
    PulseLoop(const PulseLoop&) = delete;
    PulseLoop& operator=(const PulseLoop&) = delete;
    ~PulseLoop();

    /// False where the system has no thread left.
    [[nodiscard]] bool start();
    [[nodiscard]] pa_mainloop_api* api() const;

    /// What was asked goes on, and nobody waits for it. Null is nothing.
    static void forget(pa_operation* operation);

    /// While one lives, nothing happens on the thread. May be taken again by who has it, and on the thread itself.
    class Lock
    {
    public:
        explicit Lock(const PulseLoop& loop);
        Lock(const Lock&) = delete;
        Lock& operator=(const Lock&) = delete;
        ~Lock();

    private:
        pa_threaded_mainloop* m_loop; ///< null where nothing had to be taken
    };

private:
    pa_threaded_mainloop* m_loop; ///< null where the system has no descriptors left
    bool m_isRunning = false;
};

} // namespace loom
