#include "base/ProcessAge.h"

#include <QGuiApplication>
#include <QQuickWindow>

#include <cstdio>

/// What a start costs before the application does anything: a bare window with the application's attributes. Prints
/// how many milliseconds passed from the start of the process to its first frame.
int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    const QGuiApplication application(argc, argv);
    QQuickWindow window;
    window.resize(1440, 900);
    QObject::connect(&window, &QQuickWindow::frameSwapped, &application, [&window] {
        QObject::disconnect(&window, &QQuickWindow::frameSwapped, nullptr, nullptr);
        std::printf("%lld\n", static_cast<long long>(loom::processAge().count()));
        std::fflush(stdout);
        QCoreApplication::quit();
    });
    window.show();
    return QCoreApplication::exec();
}
