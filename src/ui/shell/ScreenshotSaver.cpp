#include "ui/shell/ScreenshotSaver.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFutureWatcher>
#include <QQuickItemGrabResult>
#include <QtConcurrent>

namespace loom
{

namespace
{

/// Saves to a file that was not there before: `path`, or that with a number. Gives its name; none on failure.
QString saveAsNew(const QImage& image, const QString& path)
{
    const QFileInfo wanted(path);
    QDir().mkpath(wanted.path());
    QFile file(path);
    for (int number = 2; !file.open(QIODevice::WriteOnly | QIODevice::NewOnly); ++number) {
        if (!file.exists())
            return {};
        file.setFileName(QStringLiteral("%1/%2 (%3).%4")
                             .arg(wanted.path(), wanted.completeBaseName(), QString::number(number), wanted.suffix()));
    }
    if (image.save(&file, "PNG"))
        return file.fileName();
    file.remove();
    return {};
}

} // namespace

void ScreenshotSaver::save(QQuickItem* item, const QString& path)
{
    const QSharedPointer<QQuickItemGrabResult> grab = item->grabToImage();
    if (!grab) {
        Q_EMIT failed();
        return;
    }
    const auto write = [this, grab, path] {
        auto* const watcher = new QFutureWatcher<QString>(this);
        // It keeps the grab, which must not go while it tells that it is ready.
        connect(watcher, &QFutureWatcher<QString>::finished, this, [this, watcher, grab] {
            if (const QString file = watcher->result(); !file.isEmpty())
                Q_EMIT saved(file);
            else
                Q_EMIT failed();
            watcher->deleteLater();
        });
        watcher->setFuture(QtConcurrent::run(saveAsNew, grab->image(), path));
    };
    // Once: the connection keeps the grab until then, and would keep it for ever.
    connect(grab.get(), &QQuickItemGrabResult::ready, this, write, Qt::SingleShotConnection);
}

} // namespace loom
