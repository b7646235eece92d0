#pragma once

#include "base/Clock.h"

#include <QElapsedTimer>

namespace loom
{

/// The machine's clock, waiting on the main thread's event loop.
class SystemClock final : public Clock
{
public:
    SystemClock();

    [[nodiscard]] QDateTime now() const override;
    [[nodiscard]] std::chrono::milliseconds elapsed() const override;
    [[nodiscard]] QCoro::Task<> sleep(std::chrono::milliseconds duration, std::stop_token stop) override;

private:
    QElapsedTimer m_timer;
};

} // namespace loom
