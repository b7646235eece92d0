#include "stylist/MiraContext.h"
#include "stylist/MiraMessage.h"
#include "stylist/MiraRules.h"

#include <benchmark/benchmark.h>

using namespace loom;

namespace
{

/// `unit` until the text has as many characters as the benchmark is told.
QString textOf(const benchmark::State& state, const QString& unit)
{
    const qsizetype size = state.range(0);
    return unit.repeated(size / unit.size() + 1).first(size);
}

const QString chatter = QStringLiteral("A silk dress, 身高 170, that goes with /products/wool-coat and\n"
                                       "/products/ankle-boot\n\n\n\nwhat is your favourite height of heel.\n");
/// Every place of it begins a question that never ends.
const QString questions = QStringLiteral("heightweightbust");

void composing(benchmark::State& state)
{
    MiraContext context{.words = textOf(state, chatter), .productHandle = QStringLiteral("silk-dress")};
    for (int i = 0; i < 75; ++i)
        context.wardrobe.push_back({.title = QStringLiteral("Piece [%1]; of wool").arg(i)});
    context.anchorName = QStringLiteral("Silk dress");
    context.weather.emplace();
    for (auto _ : state) {
        QString body = context.body();
        benchmark::DoNotOptimize(body);
    }
    state.SetComplexityN(state.range(0));
}

MiraMessage message(const QString& body, MiraDirection direction)
{
    return {.serverID = QStringLiteral("1"), .direction = direction, .body = body, .attachments = {}, .createdAt = {}};
}

void showing(benchmark::State& state)
{
    const MiraMessage shown = message(textOf(state, chatter), MiraDirection::Outbound);
    for (auto _ : state) {
        QString text = MiraRules::shownText(shown);
        benchmark::DoNotOptimize(text);
    }
    state.SetComplexityN(state.range(0));
}

void findingLinks(benchmark::State& state)
{
    const MiraMessage shown = message(textOf(state, chatter), MiraDirection::Inbound);
    for (auto _ : state) {
        QStringList handles = MiraRules::productHandles(shown);
        benchmark::DoNotOptimize(handles);
    }
    state.SetComplexityN(state.range(0));
}

void askingForMeasurements(benchmark::State& state)
{
    const QString text = textOf(state, questions);
    for (auto _ : state)
        benchmark::DoNotOptimize(MiraRules::asksForMeasurements(text));
    state.SetComplexityN(state.range(0));
}

void speakingOfMeasurements(benchmark::State& state)
{
    const QString text = textOf(state, QStringLiteral("heighweighmeasu体"));
    for (auto _ : state)
        benchmark::DoNotOptimize(MiraRules::speaksOfMeasurements(text));
    state.SetComplexityN(state.range(0));
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(1'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond)->Complexity(benchmark::oN);
}
BENCHMARK(composing)->Apply(sizes);
BENCHMARK(showing)->Apply(sizes);
BENCHMARK(findingLinks)->Apply(sizes);
BENCHMARK(askingForMeasurements)->Apply(sizes);
BENCHMARK(speakingOfMeasurements)->Apply(sizes);

} // namespace

BENCHMARK_MAIN();
