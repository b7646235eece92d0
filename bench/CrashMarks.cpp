// What marking a run costs a start: after a run that quit, after one that was killed and is to be reported, and after
// one that said why it ended.

#include "Connected.h"

#include "base/FeatureGates.h"
#include "base/Random.h"
#include "base/SystemClock.h"
#include "net/HttpTransport.h"
#include "net/SessionSource.h"
#include "net/WidgetClient.h"
#include "services/CrashReporter.h"
#include "storage/DataFolder.h"
#include "storage/Preferences.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace loom;

namespace
{

class Nobody final : public SessionSource
{
public:
    [[nodiscard]] QString appToken() const override { return {}; }
    [[nodiscard]] QString email() const override { return {}; }
    [[nodiscard]] QString name() const override { return {}; }
    void tokenRefused(const QString&) override {}
};

class AllOn final : public FeatureGates
{
public:
    [[nodiscard]] bool isEnabled(Feature) const override { return true; }
};

enum class End { Quit, Killed, Said };

void startRun(benchmark::State& state, End end)
{
    const QTemporaryDir directory;
    DataFolder folder(directory.path());
    Preferences preferences(folder);
    SystemClock clock;
    SystemRandom random;
    Connected network;
    Nobody session;
    AllOn features;
    HttpTransport transport(clock, network);
    WidgetClient widget(QStringLiteral("https://service.example"), QStringLiteral("key"), transport, session, random);
    for (auto _ : state) {
        CrashReporter reporter(widget, preferences, folder, features, clock,
                               {.version = QStringLiteral("1.4.2"),
                                .build = 312,
                                .visitorID = [] { return QStringLiteral("visitor"); },
                                .hasConsent = [] { return true; },
                                .isOffline =
                                    [] {
                                        return false;
                                    }});
        reporter.start();
        state.PauseTiming();
        if (end == End::Quit)
            reporter.markCleanExit();
        QFile words(directory.filePath(QStringLiteral("lst_last_words")));
        if (end == End::Said && words.open(QIODevice::WriteOnly))
            words.write(
                "uncaught exception St13runtime_error\ncannot write /home/jane/x of jane@mail.example: no room");
        words.close();
        folder.waitUntilWritten();
        state.ResumeTiming();
    }
}

} // namespace

BENCHMARK_CAPTURE(startRun, after_quitting, End::Quit)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(startRun, after_a_kill, End::Killed)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(startRun, after_last_words, End::Said)->Unit(benchmark::kMicrosecond)->Iterations(200);

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
