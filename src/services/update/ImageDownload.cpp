#include "services/update/ImageDownload.h"

#include "services/update/ImageTransfer.h"

#include <QScopeGuard>
#include <QThreadPool>
#include <QtConcurrentRun>
#include <qcoro/qcorofuture.h>

#include <utility>

namespace loom
{

namespace
{

using Outcome = ImageTransfer::Outcome;

/// Blocks the thread until the download has ended.
Outcome transfer(const ImageDownloadOrder& order, const std::function<void(double)>& report,
                 const std::stop_token& stop)
{
    // The thread waits for the network most of the time: another may work in its place.
    QThreadPool::globalInstance()->releaseThread();
    const auto takeBack = qScopeGuard([] { QThreadPool::globalInstance()->reserveThread(); });
    ImageTransfer transfer(order, report);
    const std::stop_callback whenStopped(stop, [&transfer] { transfer.requestStop(); });
    return transfer.run();
}

} // namespace

QCoro::Task<Result<QString, ImageDownloadFailure>>
downloadImage(ImageDownloadOrder order, std::function<void(double)> progress, std::stop_token stop)
{
    const Outcome stopped = Unexpected(ImageDownloadFailure{.kind = ImageDownloadFailure::Kind::Stopped});
    if (stop.stop_requested())
        co_return stopped;
    // What the thread reports arrives through this, and nothing does when it is gone.
    QObject here;
    const std::function<void(double)> report = [&here, &progress, stop](double fraction) {
        QMetaObject::invokeMethod(
            &here,
            [&progress, stop, fraction] {
                if (!stop.stop_requested())
                    progress(fraction);
            },
            Qt::QueuedConnection);
    };
    // On the threads of the process, which waits for them before it ends.
    Outcome outcome = co_await QtConcurrent::run(transfer, order, report, stop);
    if (stop.stop_requested())
        co_return stopped;
    co_return outcome;
}

} // namespace loom
