#include "TimedJourney.h"
#include "kit/Shop.h"

#include <QFile>

#include <cstdio>

using namespace loom;

namespace
{

/// What of this process is in memory, in megabytes.
double residentMemory()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    static_cast<void>(file.open(QIODevice::ReadOnly));
    return file.readAll().split(' ').value(1).toDouble() * 4096 / 1e6;
}

void find(TimedJourney& journey, Shop& shop)
{
    journey.step("a collection of every piece");
    const WindowDriver window = shop.openWindow(QStringLiteral("/collections/all"));
    QQuickItem* const grid = journey.find(window, "grid");
    journey.waitUntil([&] { return grid->property("settled").toBool(); });

    journey.step("scrolling to its end");
    double atFirst = 0;
    double most = 0;
    while (!journey.look([&] { return window.find(QStringLiteral("end")) != nullptr; })) {
        window.scroll(grid, 240);
        window.awaitFrame();
        journey.look([&] {
            const double now = residentMemory();
            if (grid->property("count").toInt() <= 200)
                atFirst = std::max(atFirst, now);
            most = std::max(most, now);
            return true;
        });
    }
    std::printf("%d pieces: %.0f MB over the first 200, %.0f MB at most (ratio %.2f)\n",
                grid->property("count").toInt(), atFirst, most, most / atFirst);

    journey.step("typing in the search field");
    window.press(QStringLiteral("Ctrl+K"));
    for (const char letter : std::string("silk evening dress")) {
        window.type(QString(QLatin1Char(letter)));
        window.awaitFrame();
    }
    journey.find(window, "query0");
    window.press(QStringLiteral("Return"));
    journey.step("the found pieces");
    journey.waitUntil([&] { return window.window()->property("settled").toBool(); });
    window.awaitFrame();
}

} // namespace

int main(int argc, char** argv)
{
    return runTimed(argc, argv, find);
}
