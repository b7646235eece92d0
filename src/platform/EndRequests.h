#pragma once

#include <array>
#include <functional>
#include <memory>

class QSocketNotifier;

namespace loom
{

/// Tells when the desktop at its end, a terminal or the service manager asks the application to end (SIGTERM, SIGINT,
/// SIGHUP), so that it can quit as if the shopper had. Who asks a second time is obeyed by the system at once. One per
/// process; main thread.
class EndRequests final
{
public:
    explicit EndRequests(std::function<void()> asked);
    EndRequests(const EndRequests&) = delete;
    EndRequests& operator=(const EndRequests&) = delete;
    ~EndRequests();

private:
    std::function<void()> m_asked;
    std::array<int, 2> m_pipe{-1, -1};
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace loom
