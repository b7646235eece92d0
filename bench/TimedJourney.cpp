#include "TimedJourney.h"

#include "kit/Sandbox.h"
#include "kit/Shop.h"
#include "platform/LaunchOptions.h"
#include "ui/shell/ApplicationSetup.h"
#include "ui/theme/Fonts.h"

#include <QGuiApplication>

#undef signals // a name glib gives to a member
#include <glib.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <iterator>

namespace loom
{

namespace
{

constexpr double nanosecondsPerMillisecond = 1e6;
constexpr double smoothTurn = 8; // milliseconds

// Where the turns that the probe times end, in the thread's own time. glib hands its poll function no data of ours.
GPollFunc plainPoll = nullptr;
std::vector<qint64> computedAtEnds;

gint notingPoll(GPollFD* descriptors, guint count, gint timeout)
{
    computedAtEnds.push_back(computedTime());
    return plainPoll(descriptors, count, timeout);
}

} // namespace

qint64 computedTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return time.tv_sec * 1'000'000'000LL + time.tv_nsec;
}

NotedEnds::NotedEnds()
{
    plainPoll = g_main_context_get_poll_func(g_main_context_default());
    g_main_context_set_poll_func(g_main_context_default(), notingPoll);
}

void TimedJourney::report() const
{
    struct Row {
        double duration;
        double computed;
        double offset;
        const char* step;
    };
    std::vector<Row> rows;
    for (std::size_t i = 0; i < m_probe.turns().size() && i + 1 < computedAtEnds.size(); ++i) {
        const EventLoopProbe::Turn& turn = m_probe.turns()[i];
        qint64 duration = turn.duration;
        qint64 computing = computedAtEnds[i + 1] - computedAtEnds[i];
        for (const Interval& look : m_looks) {
            const qint64 shared = std::min(look.end, turn.begin + turn.duration) - std::max(look.begin, turn.begin);
            duration -= std::max<qint64>(0, shared);
            computing -= shared > 0 ? look.computed : 0;
        }
        const Step* current = nullptr;
        for (const Step& step : m_steps) {
            if (step.begin <= turn.begin + turn.duration)
                current = &step;
        }
        if (current) {
            rows.push_back({static_cast<double>(duration) / nanosecondsPerMillisecond,
                            static_cast<double>(computing) / nanosecondsPerMillisecond,
                            static_cast<double>(turn.begin - current->begin) / nanosecondsPerMillisecond,
                            current->name});
        }
    }
    if (rows.empty())
        return;
    const auto tell = [](const char* what, const std::vector<Row>& some) {
        const auto share = [&some](double Row::* time) {
            const auto smooth = std::ranges::count_if(some, [time](const Row& row) { return row.*time < smoothTurn; });
            return 100 * static_cast<double>(smooth) / static_cast<double>(some.size());
        };
        std::printf("%s: %zu turns, %.2f of 100 below %.0f ms (%.2f by what they computed), longest %.1f ms (%.1f)\n",
                    what, some.size(), share(&Row::duration), smoothTurn, share(&Row::computed),
                    std::ranges::max(some, {}, &Row::duration).duration,
                    std::ranges::max(some, {}, &Row::computed).computed);
    };
    tell("all", rows);
    for (const Step& step : m_steps) {
        std::vector<Row> own;
        std::ranges::copy_if(rows, std::back_inserter(own), [&step](const Row& row) { return row.step == step.name; });
        if (!own.empty())
            tell(step.name, own);
    }
    std::ranges::sort(rows, std::greater(), &Row::computed);
    for (std::size_t i = 0; i < std::min<std::size_t>(10, rows.size()); ++i)
        std::printf("  %6.1f ms, %6.1f ms of them computing: %s, %.0f ms in\n", rows[i].duration, rows[i].computed,
                    rows[i].step, rows[i].offset);
}

int runTimed(int argc, char** argv, const std::function<void(TimedJourney& journey, Shop& shop)>& drive)
{
    prepareApplication(QStringLiteral("com.loomstreet.Loomstreet"));
    const QGuiApplication application(argc, argv);
    const Sandbox store;
    if (!addCertificateAuthority(store.authorityFile()))
        return 1;
    registerFonts();
    Shop shop(store);
    TimedJourney journey;
    drive(journey, shop);
    journey.report();
    return 0;
}

} // namespace loom
