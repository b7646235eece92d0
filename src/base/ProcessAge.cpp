#include "base/ProcessAge.h"

#include <QByteArray>
#include <QFile>
#include <QList>

#include <ctime>
#include <unistd.h>

namespace loom
{

std::chrono::milliseconds processAge()
{
    // A process's start in clock ticks since boot is field 22 of /proc/self/stat, see proc(5). The second field may
    // hold blanks, and ends with the last parenthesis.
    QFile file(QStringLiteral("/proc/self/stat"));
    if (!file.open(QIODevice::ReadOnly))
        return std::chrono::milliseconds(-1);
    const QByteArray line = file.readAll();
    const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    const qint64 started = fields.value(19).toLongLong() * 1000 / sysconf(_SC_CLK_TCK);
    return std::chrono::milliseconds(now.tv_sec * 1000 + now.tv_nsec / 1000000 - started);
}

} // namespace loom
