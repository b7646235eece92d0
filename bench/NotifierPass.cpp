// A look of the notifier at 1,000 notifications of an account with a full ledger: what it takes of the main thread.

#include "Connected.h"

#include "base/Clock.h"
#include "base/Random.h"
#include "base/SystemClock.h"
#include "notify/DesktopNotifier.h"
#include "notify/InboxNotices.h"
#include "notify/NotificationBannerCenter.h"
#include "storage/DataFolder.h"
#include "storage/Preferences.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace loom;

namespace
{

constexpr int items = 1000;

class SilentDesktop final : public DesktopNotifications
{
public:
    [[nodiscard]] QCoro::Task<DesktopPermission> permission() override { co_return DesktopPermission::Denied; }
    [[nodiscard]] QCoro::Task<DesktopPermission> requestPermission() override { co_return DesktopPermission::Denied; }
    void post(const DesktopNotice&) override {}
    void withdraw(const QString&) override {}
};

NotificationPage pageOf(int known)
{
    NotificationPage page;
    for (int i = 0; i < items; ++i) {
        page.notifications.push_back({.id = QStringLiteral("notification-%1").arg(i < items - known ? -i - 1 : i),
                                      .type = QStringLiteral("order_shipped"),
                                      .title = QStringLiteral("Your order is on its way"),
                                      .body = QStringLiteral("It left our house. Tap to follow it."),
                                      .link = {},
                                      .image = {},
                                      .date = QDateTime::currentDateTimeUtc()});
    }
    return page;
}

QCoro::Task<ApiResult<NotificationPage>> answer(NotificationPage page)
{
    co_return page;
}

/// `known`: so many of them were delivered before.
void look(benchmark::State& state, int known)
{
    const QTemporaryDir directory;
    DataFolder folder(directory.path());
    Preferences preferences(folder);
    SystemClock clock;
    SystemRandom random;
    Connected network;
    SilentDesktop desktop;
    InboxNotices inbox(folder);
    NotificationBannerCenter banners(clock);
    const NotificationPage page = pageOf(known);
    QStringList delivered;
    for (int i = 0; i < 10'000 + static_cast<int>(NotificationLedger::mostGone); ++i)
        delivered.append(QStringLiteral("account-notification-%1").arg(i));
    const NotificationLedger full(QStringLiteral("account-7"), clock.now().addDays(-1), delivered);
    for (auto _ : state) {
        state.PauseTiming();
        folder.save(NotificationLedger::fileName, full.encoder());
        folder.waitUntilWritten();
        DesktopNotifier notifier(
            {.preferences = preferences,
             .folder = folder,
             .clock = clock,
             .random = random,
             .network = network,
             .banners = banners,
             .desktop = desktop,
             .inbox = inbox,
             .account = {.page = [&page](const QString&, std::stop_token) { return answer(page); }, .markRead = {}},
             .support = {},
             .accountID = [] { return QStringLiteral("7"); },
             .hasOpenWindow =
                 [] {
                     return true;
                 }});
        notifier.accountChanged();
        while (!notifier.ledger())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        state.ResumeTiming();
        notifier.check(); // until it waits for the disk
        state.PauseTiming();
        while (notifier.isChecking())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        state.ResumeTiming();
    }
}

} // namespace

BENCHMARK_CAPTURE(look, nothing_new, items)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(look, everything_new, 0)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
