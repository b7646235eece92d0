#include "platform/EndRequests.h"

#include "base/Log.h"

#include <QSocketNotifier>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace loom
{

namespace
{

constexpr std::array requests{SIGTERM, SIGINT, SIGHUP};

/// What the handler of a signal can reach.
std::atomic<int> bell{-1};

void ring(int)
{
    const int error = errno;
    if (const ssize_t written = ::write(bell, "", 1); written < 0) {
        // The bell rings already.
    }
    errno = error;
}

} // namespace

EndRequests::EndRequests(std::function<void()> asked)
    : m_asked(std::move(asked))
{
    if (::pipe2(m_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        qCWarning(logPlatform) << "cannot listen for signals";
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_pipe[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] {
        char request = 0;
        while (::read(m_pipe[0], &request, 1) > 0) {
        }
        m_asked();
    });
    bell = m_pipe[1];
    struct sigaction action{};
    action.sa_handler = ring;
    action.sa_flags = SA_RESTART | SA_RESETHAND;
    sigemptyset(&action.sa_mask);
    for (const int request : requests) {
        // A program that was started to outlive its terminal is told so by what it inherits.
        struct sigaction inherited{};
        if (sigaction(request, nullptr, &inherited) == 0 && inherited.sa_handler != SIG_IGN)
            sigaction(request, &action, nullptr);
    }
}

EndRequests::~EndRequests()
{
    for (const int request : requests) {
        struct sigaction own{};
        if (sigaction(request, nullptr, &own) == 0 && own.sa_handler == ring)
            std::signal(request, SIG_DFL);
    }
    bell = -1;
    m_notifier.reset();
    for (const int end : m_pipe) {
        if (end >= 0)
            ::close(end);
    }
}

} // namespace loom
