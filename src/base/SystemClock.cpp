#include "base/SystemClock.h"

#include <QTimer>

#include <algorithm>
#include <coroutine>
#include <functional>
#include <optional>
#include <utility>

namespace loom
{

namespace
{

/// What a QTimer can be set to: it counts milliseconds in an int.
constexpr std::chrono::milliseconds longestTimer = std::chrono::hours(24);

/// Suspends until the timer fires or a stop is requested. A stop resumes the waiting coroutine at once, so that a
/// scope that ends leaves no frame behind.
class Sleep final
{
public:
    Sleep(std::chrono::milliseconds duration, std::stop_token stop)
        : m_duration(duration)
        , m_stop(std::move(stop))
    {
    }

    [[nodiscard]] bool await_ready() const { return m_stop.stop_requested(); }

    void await_suspend(std::coroutine_handle<> waiting)
    {
        m_waiting = waiting;
        m_timer.setSingleShot(true);
        m_timer.setTimerType(m_duration < std::chrono::seconds(2) ? Qt::PreciseTimer : Qt::CoarseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { resume(); });
        m_timer.start(m_duration);
        m_early.emplace(m_stop, [this] { resume(); });
    }

    void await_resume() const {}

private:
    void resume()
    {
        m_timer.stop();
        if (const std::coroutine_handle<> waiting = std::exchange(m_waiting, nullptr))
            waiting.resume(); // may destroy this object
    }

    std::chrono::milliseconds m_duration;
    std::stop_token m_stop;
    std::coroutine_handle<> m_waiting;
    QTimer m_timer;
    std::optional<std::stop_callback<std::function<void()>>> m_early;
};

} // namespace

SystemClock::SystemClock()
{
    m_timer.start();
}

QDateTime SystemClock::now() const
{
    return QDateTime::currentDateTimeUtc();
}

std::chrono::milliseconds SystemClock::elapsed() const
{
    return std::chrono::milliseconds(m_timer.elapsed());
}

QCoro::Task<> SystemClock::sleep(std::chrono::milliseconds duration, std::stop_token stop)
{
    const std::chrono::milliseconds end = elapsed() + duration;
    // At least one turn of the event loop, also when the moment has passed: a caller that asks for it in a loop must
    // not keep the thread to itself.
    do {
        const std::chrono::milliseconds remaining = end - elapsed();
        co_await Sleep(std::clamp(remaining, std::chrono::milliseconds::zero(), longestTimer), stop);
    } while (!stop.stop_requested() && elapsed() < end);
}

} // namespace loom
