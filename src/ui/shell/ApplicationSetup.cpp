#include "ui/shell/ApplicationSetup.h"

#include "app/AppLifecycle.h"
#include "base/Log.h"
#include "ui/components/ImageProviders.h"
#include "ui/shell/PictureLoading.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QQuickWindow>

namespace loom
{

namespace
{

constexpr const char* xcbDriver = "QT_XCB_GL_INTEGRATION";

} // namespace

void prepareApplication(const QString& applicationID, Rendering rendering)
{
    installRedactingLog();
    // The web engine, which comes in only with the first web page, needs this from the start, and OpenGL where anything
    // is drawn with hardware.
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    if (rendering == Rendering::Software) {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        // The driver may be what is wrong: it is not so much as loaded.
        qputenv(xcbDriver, "none");
    } else if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND")) {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    }
    // Glyphs as the font draws them: sharper at their own size, and the first window need not compute distance fields.
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    QGuiApplication::setApplicationName(QStringLiteral("LOOMSTREET"));
    QGuiApplication::setApplicationVersion(QStringLiteral(LOOM_VERSION));
    QGuiApplication::setDesktopFileName(applicationID);
    // Quitting is for the shopper to ask for.
    QGuiApplication::setQuitOnLastWindowClosed(AppLifecycle::shouldTerminateAfterLastWindowClosed());
}

void prepareEngine(QQmlEngine& engine, PictureLoading& pictures)
{
    // Read by now, and no affair of the programs that this one starts.
    if (QQuickWindow::graphicsApi() == QSGRendererInterface::Software)
        qunsetenv(xcbDriver);
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.addImportPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../qml"));
    engine.setNetworkAccessManagerFactory(&pictures);
    addImageProviders(engine);
    QObject::connect(&engine, &QQmlEngine::quit, QCoreApplication::instance(), &QCoreApplication::quit);
}

} // namespace loom
