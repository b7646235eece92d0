#include "Connected.h"

#include "base/Random.h"
#include "base/SystemClock.h"
#include "catalog/DateFormat.h"
#include "catalog/MarketStore.h"
#include "catalog/MoneyFormat.h"
#include "catalog/StorefrontAPI.h"
#include "net/HttpTransport.h"
#include "storage/DataFolder.h"
#include "storage/Preferences.h"
#include "stylist/MiraCards.h"
#include "stylist/MiraThreadModel.h"
#include "stylist/MiraTopics.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace loom;

namespace
{

/// A conversation of `count` messages, every other one the shopper's, each reply with three pieces.
std::vector<MiraMessage> conversation(int count)
{
    std::vector<MiraMessage> messages;
    for (int i = 0; i < count; ++i) {
        MiraMessage message{
            .serverID = QStringLiteral("message-%1").arg(i),
            .direction = i % 2 == 0 ? MiraDirection::Outbound : MiraDirection::Inbound,
            .body = QStringLiteral("Number %1: what goes with a long wool coat, in the evening?\n\n\n\nIt is for the "
                                   "opera, and I would rather not wear black.\n/products/piece-%1")
                        .arg(i),
            .attachments = {},
            .createdAt = QDateTime(QDate(2026, 1, 1), QTime(8, 0), Qt::UTC).addSecs(i * 600)};
        for (int j = 0; i % 2 == 1 && j < 3; ++j)
            message.attachments.push_back({.handle = QStringLiteral("piece-%1-%2").arg(i).arg(j),
                                           .title = QStringLiteral("Crêpe silk slip dress"),
                                           .vendor = QStringLiteral("Atelier Sørensen"),
                                           .price = QStringLiteral("248"),
                                           .imageURL = QStringLiteral("https://cdn.example.com/%1.jpg").arg(i),
                                           .reason = QStringLiteral("It falls beautifully.")});
        messages.push_back(std::move(message));
    }
    return messages;
}

/// What the main thread does with a long conversation.
struct Desk {
    QTemporaryDir home;
    SystemClock clock;
    SystemRandom random;
    Connected network;
    DataFolder folder{home.path()};
    Preferences preferences{folder};
    HttpTransport transport{clock, network};
    StorefrontClient client{QStringLiteral("shop.invalid"), QStringLiteral("token"), {}, transport, clock};
    StorefrontAPI api{client};
    MarketStore market{{.country = QStringLiteral("US")}, client, api, folder, preferences, clock};
    MoneyFormat money{AppLanguage::English};
    DateFormat dates{AppLanguage::English};
    MiraCards cards{api, market, money, clock};
    MiraThreadModel thread{cards, dates, clock};
    MiraTopics topics{folder, clock, random};
};

constexpr int messages = 5000;

/// One turn: the service's answer becomes rows.
void firstAnswer(benchmark::State& state)
{
    const std::vector<MiraMessage> all = conversation(messages);
    for (auto _ : state) {
        state.PauseTiming();
        auto desk = std::make_unique<Desk>();
        state.ResumeTiming();
        desk->topics.adopt(all);
        desk->thread.show(desk->topics.thread());
        state.PauseTiming();
        desk.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(firstAnswer)->Unit(benchmark::kMillisecond);

/// One turn: the same answer again.
void answerAgain(benchmark::State& state)
{
    const std::vector<MiraMessage> all = conversation(messages);
    Desk desk;
    desk.topics.adopt(all);
    desk.thread.show(desk.topics.thread());
    for (auto _ : state) {
        desk.topics.adopt(all);
        desk.thread.show(desk.topics.thread());
    }
}
BENCHMARK(answerAgain)->Unit(benchmark::kMillisecond);

/// One turn: a message is sent; and another: its reply arrives.
void newMessage(benchmark::State& state)
{
    Desk desk;
    desk.topics.adopt(conversation(messages));
    desk.thread.show(desk.topics.thread());
    double slowest = 0;
    int number = messages;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        const QString key = desk.topics.add(QStringLiteral("One more"), {});
        desk.thread.show(desk.topics.thread());
        slowest = std::max(slowest, static_cast<double>(timer.nsecsElapsed()) / 1e6);
        timer.restart();
        const MiraMessage echo{.serverID = QStringLiteral("new-%1").arg(++number),
                               .direction = MiraDirection::Outbound};
        const MiraMessage reply{.serverID = QStringLiteral("new-%1").arg(++number)};
        static_cast<void>(desk.topics.take(key, {echo, reply}));
        desk.thread.show(desk.topics.thread());
        slowest = std::max(slowest, static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    state.counters["slowest_ms"] = slowest;
}
BENCHMARK(newMessage)->Unit(benchmark::kMillisecond)->Iterations(200);

/// One turn: what was kept is read at the start.
void restoring(benchmark::State& state)
{
    Desk desk;
    desk.topics.adopt(conversation(messages));
    desk.folder.waitUntilWritten();
    for (auto _ : state) {
        MiraTopics topics(desk.folder, desk.clock, desk.random);
        topics.restore();
        MiraThreadModel thread(desk.cards, desk.dates, desk.clock);
        thread.show(topics.thread());
    }
}
BENCHMARK(restoring)->Unit(benchmark::kMillisecond);

/// The rows that a page full of messages asks for.
void lookingAtTwentyRows(benchmark::State& state)
{
    Desk desk;
    desk.topics.adopt(conversation(messages));
    for (auto _ : state) {
        state.PauseTiming();
        MiraThreadModel thread(desk.cards, desk.dates, desk.clock);
        thread.show(desk.topics.thread());
        state.ResumeTiming();
        for (int row = 1000; row < 1020; ++row) {
            for (int role = MiraThreadModel::KeyRole; role <= MiraThreadModel::OrderRole; ++role)
                benchmark::DoNotOptimize(thread.data(thread.index(row), role));
        }
    }
}
BENCHMARK(lookingAtTwentyRows)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
