#pragma once

#include <QQuickImageProvider>

namespace loom
{

/// Draws the shadow of a rounded box as `image://shadow/<blur>/<radius>/<inner>/<AARRGGBB>`, to be stretched over
/// any size as a nine-part image whose corners are blur + inner wide: Qt Quick 6.4 has no blur that works with
/// every renderer. Owned by the engine, used from any thread.
class ShadowProvider : public QQuickImageProvider
{
public:
    ShadowProvider();

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace loom
