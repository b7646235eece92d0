#include "base/ProcessAge.h"

#include <QGuiApplication>
#include <QQuickWindow>

#include <atomic>
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
    // Frames are swapped on the render thread, and another may come before the application has ended.
    QObject::connect(&window, &QQuickWindow::frameSwapped, &application, [] {
        static std::atomic_flag isFirstFrame;
        if (isFirstFrame.test_and_set())
            return;
        std::printf("%lld\n", static_cast<long long>(loom::processAge().count()));
        std::fflush(stdout);
        QCoreApplication::quit();
    });
    window.show();
    return QCoreApplication::exec();
}
