#include "support/FakeClock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <coroutine>
#include <functional>

namespace loom
{

class FakeClock::Sleep
{
public:
    Sleep(FakeClock& clock, std::chrono::milliseconds duration, std::stop_token stop)
        : m_clock(clock)
        , m_due(clock.m_elapsed + duration)
        , m_stop(std::move(stop))
    {
    }

    [[nodiscard]] std::chrono::milliseconds due() const { return m_due; }

    [[nodiscard]] bool await_ready() const { return m_stop.stop_requested(); }
    void await_suspend(std::coroutine_handle<> waiting)
    {
        m_waiting = waiting;
        m_clock.m_sleeps.push_back(this);
        m_early.emplace(m_stop, [this] { wake(); });
    }
    void await_resume() const {}

    void wake()
    {
        std::erase(m_clock.m_sleeps, this);
        m_waiting.resume(); // ends this object
    }

private:
    FakeClock& m_clock;
    std::chrono::milliseconds m_due;
    std::stop_token m_stop;
    std::coroutine_handle<> m_waiting;
    std::optional<std::stop_callback<std::function<void()>>> m_early;
};

FakeClock::FakeClock(QDateTime now)
    : m_start(std::move(now))
{
}

FakeClock::~FakeClock()
{
    if (!m_sleeps.empty())
        ADD_FAILURE() << m_sleeps.size() << " coroutines still sleep when their clock goes away";
}

QDateTime FakeClock::now() const
{
    return m_start.addMSecs(m_elapsed.count());
}

QCoro::Task<> FakeClock::sleep(std::chrono::milliseconds duration, std::stop_token stop)
{
    co_await Sleep(*this, duration, std::move(stop));
}

void FakeClock::advance(std::chrono::milliseconds duration)
{
    const std::chrono::milliseconds end = m_elapsed + duration;
    for (auto sleep = next(); sleep != m_sleeps.cend() && (*sleep)->due() <= end; sleep = next()) {
        m_elapsed = std::max(m_elapsed, (*sleep)->due());
        (*sleep)->wake();
    }
    m_elapsed = end;
}

void FakeClock::setNow(const QDateTime& now)
{
    m_start = now.addMSecs(-m_elapsed.count());
}

std::optional<std::chrono::milliseconds> FakeClock::nextWake() const
{
    const auto sleep = next();
    return sleep == m_sleeps.cend() ? std::nullopt : std::optional((*sleep)->due() - m_elapsed);
}

std::vector<FakeClock::Sleep*>::const_iterator FakeClock::next() const
{
    return std::ranges::min_element(m_sleeps, {}, &Sleep::due);
}

} // namespace loom
