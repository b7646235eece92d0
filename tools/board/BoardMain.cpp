#include "FakePictures.h"
#include "ui/components/ImageProviders.h"
#include "ui/theme/Fonts.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTimer>

/// Shows the board of components, or writes it to a picture: see scripts/screenshot-board.
int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    QCommandLineParser arguments;
    arguments.addHelpOption();
    arguments.addOptions({
        {QStringLiteral("appearance"), QStringLiteral("light or dark"), QStringLiteral("name"),
         QStringLiteral("light")},
        {QStringLiteral("language"), QStringLiteral("Whose letters to expect; right to left in Arabic and Hebrew"),
         QStringLiteral("code"), QStringLiteral("en")},
        {QStringLiteral("text-scale"), QStringLiteral("1.0 to 2.0"), QStringLiteral("factor"), QStringLiteral("1")},
        {QStringLiteral("page"), QStringLiteral("Which part of the board"), QStringLiteral("number"),
         QStringLiteral("0")},
        {QStringLiteral("width"), QStringLiteral("Of the board"), QStringLiteral("points"), QStringLiteral("1440")},
        {QStringLiteral("output"), QStringLiteral("Write a picture there and end"), QStringLiteral("file")},
    });
    arguments.process(application);

    loom::registerFonts();
    loom::FakePictures pictures;
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.setNetworkAccessManagerFactory(&pictures);
    loom::addImageProviders(engine);
    engine.setInitialProperties({
        {QStringLiteral("appearance"), arguments.value(QStringLiteral("appearance"))},
        {QStringLiteral("language"), arguments.value(QStringLiteral("language"))},
        {QStringLiteral("textScale"), arguments.value(QStringLiteral("text-scale")).toDouble()},
        {QStringLiteral("page"), arguments.value(QStringLiteral("page")).toInt()},
        {QStringLiteral("width"), arguments.value(QStringLiteral("width")).toInt()},
    });
    engine.load(QUrl::fromLocalFile(QStringLiteral(LOOM_BOARD_FILE)));
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
    if (!window)
        return 1;

    const QString output = arguments.value(QStringLiteral("output"));
    if (!output.isEmpty()) {
        // Pictures arrive and fade in meanwhile.
        QTimer::singleShot(1200, window,
                           [window, output] { QGuiApplication::exit(window->grabWindow().save(output) ? 0 : 1); });
    }
    return QGuiApplication::exec();
}
