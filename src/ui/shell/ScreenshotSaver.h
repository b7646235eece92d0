#pragma once

#include <QObject>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace loom
{

/// Saves what an item shows as a picture, in a file of its own. Encoding and writing happen on a worker thread.
class ScreenshotSaver : public QObject
{
    Q_OBJECT
    QML_ELEMENT

public:
    using QObject::QObject;

    Q_INVOKABLE void save(QQuickItem* item, const QString& path);

Q_SIGNALS:
    void saved(const QString& path);
    void failed();
};

} // namespace loom
