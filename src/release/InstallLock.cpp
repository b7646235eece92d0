#include "release/InstallLock.h"

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace loom
{

std::optional<InstallLock> InstallLock::take(const QString& workingFolder, Work work)
{
    const QByteArray path =
        QFile::encodeName(workingFolder + (work == Work::Helping ? QStringLiteral("/install.lock")
                                                                 : QStringLiteral("/install-trial.lock")));
    const int descriptor = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (descriptor < 0)
        return std::nullopt;
    InstallLock lock(descriptor);
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0)
        return std::nullopt;
    return lock;
}

InstallLock::~InstallLock()
{
    if (m_descriptor < 0)
        return;
    // A child between fork and exec may still have the descriptor: closing this one alone would leave it locked.
    ::flock(m_descriptor, LOCK_UN);
    ::close(m_descriptor);
}

} // namespace loom
