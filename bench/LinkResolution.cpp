#include "navigation/LinkResolver.h"

#include <benchmark/benchmark.h>

using namespace loom;

namespace
{

/// A text of that many characters made of one piece over and over.
QString filled(const QString& head, const QString& piece, int64_t length)
{
    return head + piece.repeated(length / piece.size()).left(length - head.size());
}

/// Links as long as anybody may send them: the time grows with the length and no faster.
void resolve(benchmark::State& state, const QString& head, const QString& piece)
{
    const LinkResolver resolver(QStringLiteral("loom.example"));
    const QString link = filled(head, piece, state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(resolver.resolve(link));
    state.SetComplexityN(state.range(0));
}

void measure(benchmark::internal::Benchmark* benchmark)
{
    benchmark->RangeMultiplier(8)->Range(1 << 11, 1 << 20)->Unit(benchmark::kMicrosecond)->Complexity(benchmark::oN);
}

BENCHMARK_CAPTURE(resolve, handle, QStringLiteral("loomstreet://products/"), QStringLiteral("a"))->Apply(measure);
// What a pattern may begin to match again and again.
BENCHMARK_CAPTURE(resolve, collections, QString(), QStringLiteral("/collections/a"))->Apply(measure);
BENCHMARK_CAPTURE(resolve, nearlyCollections, QString(), QStringLiteral("/collections//products/"))->Apply(measure);
BENCHMARK_CAPTURE(resolve, slashes, QString(), QStringLiteral("/"))->Apply(measure);
BENCHMARK_CAPTURE(resolve, blanks, QStringLiteral("/pages/"), QStringLiteral(" "))->Apply(measure);
BENCHMARK_CAPTURE(resolve, percents, QStringLiteral("/search?q="), QStringLiteral("%C5%82"))->Apply(measure);
BENCHMARK_CAPTURE(resolve, items, QStringLiteral("/search?"), QStringLiteral("x=1&"))->Apply(measure);
BENCHMARK_CAPTURE(resolve, elsewhere, QStringLiteral("https://elsewhere.example/"), QStringLiteral("a/../"))
    ->Apply(measure);
BENCHMARK_CAPTURE(resolve, storeSite, QStringLiteral("https://www.loom.example/pages/"), QStringLiteral("www."))
    ->Apply(measure);

} // namespace

BENCHMARK_MAIN();
