// From the last byte of an image to its being verified, against `openssl dgst` with SHA-256 and then with BLAKE2b-512
// over the same file ("ratio": at most 1.2), and what it takes of memory ("peak_kB": at 1 GB at most 8 MB more than at
// 10 MB).

#include "release/ReleaseCheck.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>

using namespace loom;

namespace
{

using Seconds = std::chrono::duration<double>;

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray outputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(-1);
    return process.exitCode() == 0 ? process.readAllStandardOutput() : QByteArray();
}

bool isGood(const QString& image)
{
    const ReleaseClaims claims{.sha256 = {},
                               .size = QFile(image).size(),
                               .signature = contentOf(image + QStringLiteral(".minisig")),
                               .publicKey = contentOf(image + QStringLiteral(".pub"))};
    return checkRelease(image, claims).hasValue();
}

/// What this process has had of memory at most, in kB.
QByteArray peak()
{
    for (const QByteArray& line : contentOf(QStringLiteral("/proc/self/status")).split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.simplified().split(' ').at(1);
    }
    return {};
}

template <typename Work>
double secondsOf(Work work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return Seconds(std::chrono::steady_clock::now() - begin).count();
}

void check(benchmark::State& state)
{
    const QTemporaryDir directory;
    const QString image = directory.filePath(QStringLiteral("image"));
    QFile file(image);
    if (!file.open(QIODevice::WriteOnly) || !file.resize(state.range(0) * 1'000'000)) {
        state.SkipWithError("no room for the image");
        return;
    }
    file.close();
    outputOf(QStringLiteral("minisign"), {QStringLiteral("-GWp"), image + QStringLiteral(".pub"), QStringLiteral("-s"),
                                          image + QStringLiteral(".key")});
    outputOf(QStringLiteral("minisign"),
             {QStringLiteral("-Ss"), image + QStringLiteral(".key"), QStringLiteral("-m"), image});
    double ours = 1e9;
    double theirs = 1e9;
    for (auto _ : state) {
        bool wasGood = false;
        const double seconds = secondsOf([&] { wasGood = isGood(image); });
        if (!wasGood) {
            state.SkipWithError("a good image is refused");
            return;
        }
        ours = std::min(ours, seconds);
        theirs = std::min(theirs, secondsOf([&image] {
                              for (const QString& kind : {QStringLiteral("-sha256"), QStringLiteral("-blake2b512")})
                                  outputOf(QStringLiteral("openssl"), {QStringLiteral("dgst"), kind, image});
                          }));
        state.SetIterationTime(seconds);
    }
    state.counters["openssl_s"] = theirs;
    state.counters["ratio"] = ours / theirs;
    state.counters["peak_kB"] =
        outputOf(QCoreApplication::applicationFilePath(), {QStringLiteral("--peak"), image}).toDouble();
}

} // namespace

BENCHMARK(check)->Arg(10)->Arg(160)->Arg(1000)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "--peak") {
        if (!isGood(QFile::decodeName(argv[2])))
            return 1;
        std::puts(peak().constData());
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
