#pragma once

#include "base/Clock.h"

#include <optional>
#include <vector>

namespace loom
{

/// A clock that stands still until a test moves it. Sleepers wake in the order in which they are due, each at the
/// moment it asked for. A sleeper that still waits when the clock goes away fails the test.
class FakeClock final : public Clock
{
public:
    explicit FakeClock(QDateTime now = QDateTime(QDate(2025, 3, 9), QTime(8, 7, 6), Qt::UTC));
    ~FakeClock() override;

    [[nodiscard]] QDateTime now() const override;
    [[nodiscard]] std::chrono::milliseconds elapsed() const override { return m_elapsed; }
    [[nodiscard]] QCoro::Task<> sleep(std::chrono::milliseconds duration, std::stop_token stop) override;

    /// Moves both clocks, and wakes whoever is due on the way there.
    void advance(std::chrono::milliseconds duration);
    /// Sets the wall clock alone, as a shopper or a time server would.
    void setNow(const QDateTime& now);

    [[nodiscard]] int sleepers() const { return static_cast<int>(m_sleeps.size()); }
    /// How long until the next sleeper wakes; none when nobody sleeps.
    [[nodiscard]] std::optional<std::chrono::milliseconds> nextWake() const;

private:
    class Sleep;

    [[nodiscard]] std::vector<Sleep*>::const_iterator next() const;

    QDateTime m_start;
    std::chrono::milliseconds m_elapsed{0};
    std::vector<Sleep*> m_sleeps; ///< in the order in which they fell asleep
};

} // namespace loom
