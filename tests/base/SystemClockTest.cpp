#include "base/SystemClock.h"

using namespace loom;
using namespace std::chrono_literals;

namespace
{

TEST(SystemClock, SleepEndsAfterItsTimeAndNotInTheSameTurn)
{
    SystemClock clock;
    for (const std::chrono::milliseconds duration : {20ms, 0ms, -5ms}) {
        const std::chrono::milliseconds before = clock.elapsed();
        Running<void> sleep(clock.sleep(duration, {}));
        EXPECT_FALSE(sleep.isDone());
        sleep.result();
        EXPECT_GE(clock.elapsed() - before, duration);
    }
}

TEST(SystemClock, AStopEndsASleepOfAnyLengthAtOnce)
{
    SystemClock clock;
    // Qt warns of a timer that it cannot set.
    static int warnings = 0;
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { ++warnings; });
    for (const std::chrono::milliseconds duration : {1h, 30 * 24h}) {
        std::stop_source source;
        const Running<void> sleep(clock.sleep(duration, source.get_token()));
        drainEvents();
        EXPECT_FALSE(sleep.isDone());
        source.request_stop();
        EXPECT_TRUE(sleep.isDone());
        EXPECT_TRUE(Running<void>(clock.sleep(duration, source.get_token())).isDone());
    }
    qInstallMessageHandler(before);
    EXPECT_EQ(warnings, 0);
}

} // namespace
