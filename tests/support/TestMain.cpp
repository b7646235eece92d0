#include <QCoreApplication>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThreadPool>
#include <QTranslator>

#include <gtest/gtest.h>

#include <cstdio>

// Read by the sanitizers before main(). A coroutine frame that nobody can reach any more is a leak, and a leak fails
// the test.
// NOLINTBEGIN(bugprone-reserved-identifier): the names are the sanitizers'.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options()
{
    return "detect_leaks=1:strict_string_checks=1:detect_stack_use_after_return=1";
}
extern "C" const char* __ubsan_default_options();
extern "C" const char* __ubsan_default_options()
{
    return "print_stacktrace=1";
}
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    // What OpenSSL holds when Qt drops a connection in the middle of its handshake. We never call it ourselves: what of
    // ours leaked and held it would be told of on its own.
    return "leak:libcrypto.so\n";
}
// NOLINTEND(bugprone-reserved-identifier)

namespace
{

/// Whatever a test does stays out of the home of whoever runs it, and means the same on every machine.
void isolate(const QTemporaryDir& home)
{
    for (const char* const name :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home.path().toLocal8Bit());
    for (const char* const name : {"http_proxy", "https_proxy", "all_proxy", "HTTP_PROXY", "HTTPS_PROXY", "ALL_PROXY"})
        qunsetenv(name);
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Far from UTC, with odd minutes and summer time: what reads local time by mistake is found out.
    qputenv("TZ", "TST-12:45TDT,M9.5.0/2:45,M4.1.0/3:45");
}

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    if (!home.isValid()) {
        std::fputs("no temporary folder for the tests\n", stderr);
        return 1;
    }
    isolate(home);

    int result = 0;
    {
        const QCoreApplication application(argc, argv);
        QCoreApplication::setApplicationName(QStringLiteral("LOOMSTREET"));
        // What depends on a number does so in English as well.
        QTranslator texts;
        if (texts.load(QStringLiteral(":/i18n/loomstreet_en.qm")))
            QCoreApplication::installTranslator(&texts);
        result = RUN_ALL_TESTS();
        // What still waits to be deleted is no leak.
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return result;
}
