#include "ui/components/ImageProviders.h"

#include "ui/components/IconProvider.h"
#include "ui/components/ShadowProvider.h"

#include <QQmlEngine>

namespace loom
{

void addImageProviders(QQmlEngine& engine)
{
    // The engine takes them over.
    engine.addImageProvider(QStringLiteral("icon"), new IconProvider);
    engine.addImageProvider(QStringLiteral("shadow"), new ShadowProvider);
}

} // namespace loom
