#include <QGuiApplication>
#include <QTranslator>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    QTranslator texts; // what depends on a number does so in English as well
    if (texts.load(QStringLiteral(":/i18n/loomstreet_en.qm")))
        QCoreApplication::installTranslator(&texts);
    return RUN_ALL_TESTS();
}
