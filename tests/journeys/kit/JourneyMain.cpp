#include "kit/Sandbox.h"
#include "kit/Warnings.h"
#include "platform/LaunchOptions.h"
#include "ui/shell/ApplicationSetup.h"
#include "ui/theme/Fonts.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

// Libraries stay until the end, so that a leak in one of them can be told by its name.
extern "C" int dlclose(void*); // NOLINT(readability-redundant-declaration)
extern "C" int dlclose(void*)
{
    return 0;
}

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    loom::prepareApplication(QStringLiteral("com.loomstreet.Loomstreet"));
    loom::collectWarnings();
    const QGuiApplication application(argc, argv);
    if (!loom::addCertificateAuthority(loom::Sandbox().authorityFile()))
        return 1;
    loom::registerFonts();
    const int result = RUN_ALL_TESTS();
    // What the threads that draw have sent meanwhile, and what still waits to be deleted, is no leak.
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // A suite that CTest names and nobody wrote.
    return testing::UnitTest::GetInstance()->test_to_run_count() > 0 ? result : 1;
}
