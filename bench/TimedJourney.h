#pragma once

#include "kit/WindowDriver.h"
#include "ui/shell/EventLoopProbe.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <functional>
#include <vector>

namespace loom
{

class Shop;

/// How long this thread has computed, in nanoseconds.
[[nodiscard]] qint64 computedTime();

/// Has the ends of the event loop's turns noted.
struct NotedEnds {
    NotedEnds();
};

/// A journey whose every turn of the event loop is timed, without what the journey itself takes to look around.
class TimedJourney
{
public:
    TimedJourney() { m_clock.start(); }

    void step(const char* name) { m_steps.push_back({name, m_clock.nsecsElapsed()}); }

    /// Turns the event loop until `isMet`. What that costs is left out of account.
    template <typename Condition>
    void waitUntil(Condition isMet)
    {
        while (!look(isMet))
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    /// The same until a page of this title has its pictures.
    void awaitPage(const WindowDriver& window, const QString& title)
    {
        waitUntil([&] {
            return window.window()->title() == title + QStringLiteral(" – LOOMSTREET") &&
                   window.window()->property("settled").toBool();
        });
    }
    /// Waits for an item of a window.
    QQuickItem* find(const WindowDriver& window, const char* name, const QQuickItem* below = nullptr)
    {
        QQuickItem* found = nullptr;
        waitUntil([&] { return (found = window.find(QString::fromLatin1(name), below)) != nullptr; });
        return found;
    }
    /// Looks around, and leaves out of account what that costs.
    template <typename Looking>
    auto look(Looking looking)
    {
        const qint64 begin = m_clock.nsecsElapsed();
        const qint64 computedBefore = computedTime();
        const auto seen = looking();
        m_looks.push_back({begin, m_clock.nsecsElapsed(), computedTime() - computedBefore});
        return seen;
    }

    /// Prints how many turns were smooth, in all and in each step of the journey, and those that computed longest.
    void report() const;

private:
    struct Step {
        const char* name;
        qint64 begin;
    };
    struct Interval {
        qint64 begin;
        qint64 end;
        qint64 computed;
    };

    QElapsedTimer m_clock; // with the probe's own, to within what it takes to make it
    NotedEnds m_ends;      // before the probe's first turn
    EventLoopProbe m_probe;
    std::vector<Step> m_steps;
    std::vector<Interval> m_looks;
};

/// The application on the store that the environment names, timed while `drive` works it. What main() returns.
[[nodiscard]] int runTimed(int argc, char** argv, const std::function<void(TimedJourney& journey, Shop& shop)>& drive);

} // namespace loom
