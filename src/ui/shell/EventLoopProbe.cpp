#include "ui/shell/EventLoopProbe.h"

#include <QAbstractEventDispatcher>

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

} // namespace

EventLoopProbe::EventLoopProbe(QObject* parent)
    : QObject(parent)
{
    m_clock.start();
    const QAbstractEventDispatcher* const dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, [this] { m_wokenAt = m_clock.nsecsElapsed(); });
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this] {
        if (m_wokenAt >= 0)
            m_turns.push_back({.begin = m_wokenAt, .duration = m_clock.nsecsElapsed() - m_wokenAt});
        m_wokenAt = -1;
    });
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
