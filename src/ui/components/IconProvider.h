#pragma once

#include <QCache>
#include <QMutex>
#include <QQuickImageProvider>
#include <QSet>

namespace loom
{

/// Draws the application's own icons as `image://icon/<name>/<RRGGBB>`, sharp at the size asked for. A name that is
/// not among them draws nothing and is reported once. Owned by the engine, used from any thread.
class IconProvider : public QQuickImageProvider
{
public:
    IconProvider();

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

private:
    QImage draw(const QString& name, const QString& colour, QSize size);
    void reportUnknown(const QString& name);

    QMutex m_mutex;
    QCache<QString, QImage> m_drawn;
    QSet<QString> m_unknown;
};

} // namespace loom
