#pragma once

#include <QDateTime>
#include <qcoro/qcorotask.h>

#include <chrono>
#include <stop_token>

namespace loom
{

/// Time as the application sees it: the wall clock, a steady clock, and waiting. Handed to whoever needs time, so
/// that tests can move it. Main thread.
class Clock
{
public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    /// The date and time of day, in UTC. May jump when the system's clock is set.
    [[nodiscard]] virtual QDateTime now() const = 0;

    /// Time since some fixed moment; never jumps.
    [[nodiscard]] virtual std::chrono::milliseconds elapsed() const = 0;

    /// Waits. Ends early, on the main thread, once `stop` is requested: look at the token after it.
    [[nodiscard]] virtual QCoro::Task<> sleep(std::chrono::milliseconds duration, std::stop_token stop = {}) = 0;
};

} // namespace loom
