#include "ui/shell/EventLoopProbe.h"

#undef signals // a name glib gives to a member
#include <glib.h>

#include <algorithm>

namespace loom
{

namespace
{

constexpr double nanosecondsPerMillisecond = 1e6;

double milliseconds(qint64 nanoseconds)
{
    return static_cast<double>(nanoseconds) / nanosecondsPerMillisecond;
}

// glib hands its poll function no data of ours, so the probe at work is found here.
EventLoopProbe* activeProbe = nullptr;
GPollFunc plainPoll = nullptr;

gint timedPoll(GPollFD* descriptors, guint count, gint timeout)
{
    if (activeProbe)
        activeProbe->waitBegins();
    const gint ready = plainPoll(descriptors, count, timeout);
    if (activeProbe)
        activeProbe->waitEnded();
    return ready;
}

} // namespace

EventLoopProbe::EventLoopProbe()
{
    m_clock.start();
    activeProbe = this;
    if (!plainPoll)
        plainPoll = g_main_context_get_poll_func(g_main_context_default());
    g_main_context_set_poll_func(g_main_context_default(), timedPoll);
}

EventLoopProbe::~EventLoopProbe()
{
    g_main_context_set_poll_func(g_main_context_default(), plainPoll);
    activeProbe = nullptr;
}

void EventLoopProbe::waitBegins()
{
    if (m_begin >= 0)
        m_turns.push_back({.begin = m_begin, .duration = m_clock.nsecsElapsed() - m_begin});
    m_begin = -1;
}

void EventLoopProbe::waitEnded()
{
    m_begin = m_clock.nsecsElapsed();
}

QString EventLoopProbe::report() const
{
    std::vector<Turn> byLength = m_turns;
    std::ranges::sort(byLength, std::greater(), &Turn::duration);
    if (byLength.empty())
        return QStringLiteral("no turns\n");
    const auto quantile = [&byLength](double share) {
        const auto place = static_cast<std::size_t>(static_cast<double>(byLength.size()) * (1 - share));
        return milliseconds(byLength[std::min(place, byLength.size() - 1)].duration);
    };
    QString text = QStringLiteral("turns %1, median %2 ms, 99 of 100 below %3 ms, longest %4 ms\n")
                       .arg(byLength.size())
                       .arg(quantile(0.5), 0, 'f', 2)
                       .arg(quantile(0.99), 0, 'f', 2)
                       .arg(milliseconds(byLength.front().duration), 0, 'f', 2);
    for (std::size_t i = 0; i < std::min<std::size_t>(10, byLength.size()); ++i) {
        text += QStringLiteral("  %1 ms at %2 ms\n")
                    .arg(milliseconds(byLength[i].duration), 0, 'f', 2)
                    .arg(milliseconds(byLength[i].begin), 0, 'f', 0);
    }
    return text;
}

} // namespace loom
