#include "updater/Programs.h"

#include "updater/Descriptor.h"

#include <QDeadlineTimer>
#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <initializer_list>
#include <poll.h>
#include <spawn.h>
// This header of glibc 2.36 does not know C++.
extern "C" {
#include <sys/pidfd.h>
}
#include <sys/wait.h>
#include <vector>

namespace loom
{

namespace
{

/// More than any answer; what follows is not kept.
constexpr qsizetype maximumAnswer = 4096;

/// A program about to be started: no input, none of our files, signals as they were before we changed any.
class Start
{
public:
    explicit Start(short flags)
    {
        posix_spawn_file_actions_init(&m_files);
        posix_spawnattr_init(&m_attributes);
        posix_spawn_file_actions_addopen(&m_files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        sigset_t none;
        sigemptyset(&none);
        posix_spawnattr_setsigmask(&m_attributes, &none);
        sigset_t usual;
        sigemptyset(&usual);
        for (const int signal : {SIGHUP, SIGPIPE, SIGXFSZ})
            sigaddset(&usual, signal);
        posix_spawnattr_setsigdefault(&m_attributes, &usual);
        posix_spawnattr_setflags(&m_attributes,
                                 static_cast<short>(flags | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF));
    }
    Start(const Start&) = delete;
    Start& operator=(const Start&) = delete;
    ~Start()
    {
        posix_spawn_file_actions_destroy(&m_files);
        posix_spawnattr_destroy(&m_attributes);
    }

    void sendOutputTo(int descriptor) { posix_spawn_file_actions_adddup2(&m_files, descriptor, STDOUT_FILENO); }

    [[nodiscard]] std::optional<pid_t> run(const QString& program, std::initializer_list<const char*> arguments)
    {
        posix_spawn_file_actions_addclosefrom_np(&m_files, STDERR_FILENO + 1);
        const QByteArray path = QFile::encodeName(program);
        // The call takes them as changeable and changes none.
        std::vector<char*> all{const_cast<char*>(path.constData())};
        for (const char* const argument : arguments)
            all.push_back(const_cast<char*>(argument));
        all.push_back(nullptr);
        pid_t process = 0;
        if (posix_spawn(&process, path.constData(), &m_files, &m_attributes, all.data(), environ) != 0)
            return {};
        return process;
    }

private:
    posix_spawn_file_actions_t m_files{};
    posix_spawnattr_t m_attributes{};
};

/// Takes what there is to read. False at the end.
bool drain(int descriptor, QByteArray& into)
{
    std::array<char, 1024> buffer{};
    while (true) {
        const ssize_t count = ::read(descriptor, buffer.data(), buffer.size());
        if (count > 0)
            into.append(buffer.data(), std::min<qsizetype>(count, maximumAnswer - into.size()));
        else if (count == 0 || (errno != EINTR && errno != EAGAIN))
            return false;
        else if (errno == EAGAIN)
            return true;
    }
}

/// Collects the output of a process until it ends; false when it has not in time.
bool collect(pid_t process, int output, const QDeadlineTimer& deadline, QByteArray& into)
{
    const Descriptor end(pidfd_open(process, 0));
    if (!end.isOpen())
        return false;
    std::array<pollfd, 2> events{pollfd{.fd = end.number(), .events = POLLIN, .revents = 0},
                                 pollfd{.fd = output, .events = POLLIN, .revents = 0}};
    while (true) {
        const int state = poll(events.data(), events.size(), static_cast<int>(deadline.remainingTime()));
        if (state < 0 && errno != EINTR)
            return false;
        if (state > 0 && events[1].revents != 0 && !drain(output, into))
            events[1].fd = -1;
        if (state > 0 && events[0].revents != 0)
            return true;
        if (deadline.hasExpired())
            return false;
    }
}

} // namespace

std::optional<QByteArray> versionAnswer(const QString& program, std::chrono::milliseconds time)
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return {};
    const Descriptor reading(ends[0]);
    Descriptor writing(ends[1]);
    // The program's side waits as usual when it writes faster than we read.
    fcntl(writing.number(), F_SETFL, 0);

    Start start(POSIX_SPAWN_SETPGROUP);
    start.sendOutputTo(writing.number());
    const auto process = start.run(program, {"--version"});
    if (!process)
        return {};
    writing.reset();

    QByteArray answer;
    const bool ended = collect(*process, reading.number(), QDeadlineTimer(time), answer);
    // Before it is waited for, while the number of the group can be nobody else's.
    kill(-*process, SIGKILL);
    int status = 0;
    while (waitpid(*process, &status, 0) < 0 && errno == EINTR) {
    }
    if (!ended || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return {};
    drain(reading.number(), answer);
    return answer;
}

bool startDetached(const QString& program)
{
    return Start(POSIX_SPAWN_SETSID).run(program, {}).has_value();
}

} // namespace loom
