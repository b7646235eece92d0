#pragma once

#include <QtGlobal>

#include <functional>
#include <memory>
#include <stop_token>
#include <utility>

namespace loom
{

/// One kind of asynchronous work of an object that owns this as a member. Owning it is the cancellation: when the
/// owner goes, or begins the same work anew, what runs is stopped. Main thread.
///
///     QCoro::Task<> Model::load()
///     {
///         const Work::Run run = m_loading.begin();
///         auto page = co_await m_api.page(run.stop());
///         if (run.isStopped())
///             co_return; // the owner may be gone: touch nothing
///         apply(std::move(page));
///     }
class Work
{
    struct State {
        std::stop_source source;
        quint64 generation = 0;
        bool isRunning = false;
        std::function<void()> changed;
    };

public:
    /// Lives in the coroutine that does the work, and ends with it.
    class Run
    {
    public:
        Run(Run&&) = default;
        Run& operator=(Run&&) = delete;
        Run(const Run&) = delete;
        Run& operator=(const Run&) = delete;
        ~Run()
        {
            if (m_state && m_state->generation == m_generation)
                setRunning(*m_state, false);
        }

        /// To be handed to whatever the work waits for.
        [[nodiscard]] std::stop_token stop() const { return m_stop; }
        /// True when the owner is gone or has begun anew. To be asked after every co_await.
        [[nodiscard]] bool isStopped() const { return m_stop.stop_requested(); }

    private:
        friend class Work;
        Run(std::shared_ptr<State> state, std::stop_token stop, quint64 generation)
            : m_state(std::move(state))
            , m_stop(std::move(stop))
            , m_generation(generation)
        {
        }

        std::shared_ptr<State> m_state;
        std::stop_token m_stop;
        quint64 m_generation;
    };

    /// `changed` is called whenever isRunning() may have changed.
    explicit Work(std::function<void()> changed = {})
        : m_state(std::make_shared<State>())
    {
        m_state->changed = std::move(changed);
    }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;
    ~Work()
    {
        m_state->changed = nullptr;
        ++m_state->generation;
        m_state->source.request_stop();
    }

    /// Stops what runs and begins anew. What stops may itself begin anew, and then that is the latest.
    [[nodiscard]] Run begin()
    {
        const std::shared_ptr<State> state = m_state; // what stops may also end the owner
        const quint64 generation = ++state->generation;
        std::stop_source previous = std::exchange(state->source, std::stop_source());
        Run run(state, state->source.get_token(), generation);
        previous.request_stop();
        if (state->generation == generation)
            setRunning(*state, true);
        return run;
    }

    /// Stops what runs.
    void stop()
    {
        const std::shared_ptr<State> state = m_state;
        const quint64 generation = ++state->generation;
        std::exchange(state->source, std::stop_source()).request_stop();
        if (state->generation == generation)
            setRunning(*state, false);
    }

    [[nodiscard]] bool isRunning() const { return m_state->isRunning; }

private:
    static void setRunning(State& state, bool isRunning)
    {
        if (std::exchange(state.isRunning, isRunning) == isRunning)
            return;
        if (const auto changed = state.changed) // a copy: the owner may go while it is told
            changed();
    }

    std::shared_ptr<State> m_state;
};

} // namespace loom
