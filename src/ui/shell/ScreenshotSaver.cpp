#include "ui/shell/ScreenshotSaver.h"

#include <QDir>
#include <QFileInfo>
#include <QFutureWatcher>
#include <QQuickItemGrabResult>
#include <QtConcurrent>

namespace loom
{

void ScreenshotSaver::save(QQuickItem* item, const QString& path)
{
    const QSharedPointer<QQuickItemGrabResult> grab = item->grabToImage();
    if (!grab) {
        Q_EMIT failed();
        return;
    }
    connect(grab.get(), &QQuickItemGrabResult::ready, this, [this, grab, path] {
        auto* const watcher = new QFutureWatcher<bool>(this);
        connect(watcher, &QFutureWatcher<bool>::finished, this, [this, watcher, path] {
            if (watcher->result())
                Q_EMIT saved(path);
            else
                Q_EMIT failed();
            watcher->deleteLater();
        });
        watcher->setFuture(QtConcurrent::run([image = grab->image(), path] {
            QDir().mkpath(QFileInfo(path).path());
            return image.save(path);
        }));
    });
}

} // namespace loom
