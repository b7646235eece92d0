#include "updater/ProcessEnd.h"

#include "updater/Descriptor.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <optional>
#include <poll.h>
// This header of glibc 2.36 does not know C++.
extern "C" {
#include <sys/pidfd.h>
}

namespace loom
{

namespace
{

std::optional<qint64> processRunning(const QString& program)
{
    const QStringList processes = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& process : processes) {
        bool isProcess = false;
        const qint64 identifier = process.toLongLong(&isProcess);
        if (!isProcess || identifier == getpid())
            continue;
        // The kernel follows folders as they are renamed: this is where the file lies now.
        if (QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(identifier)) == program)
            return identifier;
    }
    return {};
}

} // namespace

bool waitForEnd(qint64 processIdentifier, const QDeadlineTimer& deadline)
{
    if (processIdentifier <= 0 || processIdentifier > INT_MAX)
        return true;
    const Descriptor process(pidfd_open(static_cast<pid_t>(processIdentifier), 0));
    if (!process.isOpen())
        return errno == ESRCH;
    pollfd ended{.fd = process.number(), .events = POLLIN, .revents = 0};
    while (true) {
        const qint64 left = deadline.remainingTime(); // -1: for ever, as poll() means it
        const int state = poll(&ended, 1, static_cast<int>(std::min<qint64>(left, INT_MAX)));
        if (state > 0)
            return true;
        if (state < 0 && errno != EINTR)
            return false;
        if (state == 0 && deadline.hasExpired())
            return false;
    }
}

bool waitUntilUnused(const QString& program, const QDeadlineTimer& deadline)
{
    while (const auto process = processRunning(program)) {
        if (!waitForEnd(*process, deadline))
            return false;
    }
    return true;
}

} // namespace loom
