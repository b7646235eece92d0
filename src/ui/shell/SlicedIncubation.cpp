#include "ui/shell/SlicedIncubation.h"

#include <QQmlEngine>

namespace loom
{

namespace
{

// Half of what a smooth turn takes: a slice ends only where something has been made.
constexpr int slice = 4; // milliseconds

} // namespace

void SlicedIncubation::begin(const QJSValue& make)
{
    QQmlEngine* const own = qmlEngine(this);
    if (!own)
        return;
    runIn(*own, [&make] { make.call(); });
    m_next.start(0, this);
}

void SlicedIncubation::timerEvent(QTimerEvent* /*event*/)
{
    runIn(*qmlEngine(this), [this] {
        incubateFor(slice);
        if (incubatingObjectCount() == 0)
            m_next.stop();
    });
}

void SlicedIncubation::runIn(QQmlEngine& engine, const std::function<void()>& work)
{
    QQmlIncubationController* const before = engine.incubationController();
    engine.setIncubationController(this);
    work();
    engine.setIncubationController(before);
}

} // namespace loom
