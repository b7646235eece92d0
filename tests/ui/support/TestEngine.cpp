#include "TestEngine.h"

#include "AccessibleProbe.h"
#include "FakePictures.h"
#include "ui/components/ImageProviders.h"
#include "ui/theme/Fonts.h"

#include <QQmlEngine>

namespace loom
{

void prepareTestEngine(QQmlEngine& engine)
{
    static FakePictures pictures;
    static AccessibleProbe probe;
    static const bool once = [] {
        registerFonts();
        qmlRegisterSingletonInstance("Loomstreet.Testing", 1, 0, "Pictures", &pictures);
        qmlRegisterSingletonInstance("Loomstreet.Testing", 1, 0, "AccessibleProbe", &probe);
        return true;
    }();
    Q_UNUSED(once)
    QQmlEngine::setObjectOwnership(&pictures, QQmlEngine::CppOwnership);
    QQmlEngine::setObjectOwnership(&probe, QQmlEngine::CppOwnership);

    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.setNetworkAccessManagerFactory(&pictures);
    addImageProviders(engine);
}

} // namespace loom
