#include "kit/Warnings.h"

#include <QMutex>

namespace loom
{

namespace
{

QMutex mutex;
QStringList collected;
QStringList all;
QtMessageHandler usual = nullptr;

void collect(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const QLatin1String category(context.category);
    // The application's own telling of a failure, and Qt's of a connection that the store was made to drop.
    const bool isExpected =
        category.startsWith(QLatin1String("loomstreet.")) || category == QLatin1String("qt.network.http2");
    const QMutexLocker locker(&mutex);
    all.append(message);
    if (!isExpected && type != QtDebugMsg && type != QtInfoMsg)
        collected.append(message);
    usual(type, context, message);
}

} // namespace

void collectWarnings()
{
    usual = qInstallMessageHandler(collect);
}

QStringList takeWarnings()
{
    const QMutexLocker locker(&mutex);
    return std::exchange(collected, {});
}

QStringList takeLog()
{
    const QMutexLocker locker(&mutex);
    return std::exchange(all, {});
}

} // namespace loom
