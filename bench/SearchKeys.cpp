#include "Connected.h"

#include "base/SystemClock.h"
#include "catalog/MarketStore.h"
#include "catalog/RecentSearches.h"
#include "catalog/StorefrontAPI.h"
#include "commerce/SuggestionsModel.h"
#include "net/HttpTransport.h"
#include "storage/DataFolder.h"
#include "storage/Preferences.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace loom;

namespace
{

std::vector<ProductHit> pieces(int count, const char* kept)
{
    const QStringList first{QStringLiteral("Bias-cut"), QStringLiteral("Pleated"), QStringLiteral("Crêpe"),
                            QStringLiteral("Belted"), QStringLiteral("Cable")};
    const QStringList second{QStringLiteral("silk slip dress"),   QStringLiteral("wool trousers"),
                             QStringLiteral("cashmere rollneck"), QStringLiteral("trench coat"),
                             QStringLiteral("crescent bag"),      QStringLiteral("ankle boots")};
    std::vector<ProductHit> list;
    for (int i = 0; i < count; ++i)
        list.push_back({.id = {},
                        .handle = QStringLiteral("%1-%2").arg(QLatin1String(kept)).arg(i),
                        .title = QStringLiteral("%1 %2, number %3").arg(first[i % 5], second[i % 6]).arg(i),
                        .vendor = i % 2 == 0 ? QStringLiteral("Tallis & Rook") : QStringLiteral("Atelier Sørensen"),
                        .imageURL = QStringLiteral("https://cdn.example.com/%1.jpg").arg(i)});
    return list;
}

std::vector<ProductHit> everyPiece()
{
    std::vector<ProductHit> all = pieces(10'000, "seen");
    for (ProductHit& piece : pieces(10'000, "kept"))
        all.push_back(std::move(piece));
    return all;
}

/// The work of one key in the search field, with ten thousand pieces seen and as many kept.
void keyInSearch(benchmark::State& state, const char* typed)
{
    QTemporaryDir home;
    SystemClock clock;
    Connected network;
    DataFolder folder(home.path());
    Preferences preferences(folder);
    HttpTransport transport(clock, network);
    StorefrontClient client(QStringLiteral("shop.invalid"), QStringLiteral("token"), {}, transport, clock);
    StorefrontAPI api(client);
    MarketStore market({.country = QStringLiteral("US")}, client, api, folder, preferences, clock);
    RecentSearches searches(preferences);
    for (int i = 0; i < RecentSearches::maximum; ++i)
        searches.add(QStringLiteral("camel coat %1").arg(i));
    const std::vector<ProductHit> known = everyPiece();
    SuggestionsModel model(api, market, searches, [&] { return known; }, clock);
    model.prepare();
    while (model.pieces()->filled() == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const QString text = QString::fromUtf8(typed);
    double slowest = 0;
    qsizetype length = 0;
    for (auto _ : state) {
        length = length % text.size() + 1;
        QElapsedTimer timer;
        timer.start();
        model.setText(text.left(length));
        slowest = std::max(slowest, static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    state.counters["slowest_ms"] = slowest;
}
BENCHMARK_CAPTURE(keyInSearch, found, "silk slip dr")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keyInSearch, foundLate, "number 19999")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keyInSearch, foundNowhere, "silk zebra")->Unit(benchmark::kMillisecond);

/// Taking in what is to be found, which happens on another thread.
void preparing(benchmark::State& state)
{
    const std::vector<ProductHit> known = everyPiece();
    for (auto _ : state)
        benchmark::DoNotOptimize(PieceIndex(known));
}
BENCHMARK(preparing)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
