#include "TimedJourney.h"
#include "kit/Shop.h"

#include <QTimer>

#include <array>

using namespace loom;

namespace
{

/// Lets the window come to rest.
void settle(TimedJourney& journey, const WindowDriver& window)
{
    bool isOver = false;
    QTimer::singleShot(1500, [&isOver] { isOver = true; });
    journey.waitUntil([&isOver] { return isOver; });
    journey.waitUntil([&] { return window.window()->property("settled").toBool(); });
}

/// Another language over a piece's page, with a second tab behind it.
void speak(TimedJourney& journey, Shop& shop)
{
    journey.step("the first window, with a piece");
    const WindowDriver window =
        shop.openWindow(QStringLiteral("https://www.loomstreet.example/products/sabine-bias-slip-dress"));
    journey.awaitPage(window, QStringLiteral("Sabine bias slip dress"));
    journey.find(window, "sizeTable0");
    settle(journey, window);
    struct Step {
        const char* name;
        AppLanguage language;
    };
    // Twice: what a script needs is there the second time.
    for (const Step& step :
         {Step{"German", AppLanguage::German}, Step{"Arabic", AppLanguage::Arabic},
          Step{"Japanese", AppLanguage::Japanese}, Step{"English", AppLanguage::English},
          Step{"German again", AppLanguage::German}, Step{"Arabic again", AppLanguage::Arabic},
          Step{"Japanese again", AppLanguage::Japanese}, Step{"English again", AppLanguage::English}}) {
        journey.step(step.name);
        QMetaObject::invokeMethod(
            shop.model().market(), [&] { shop.model().market()->setLanguage(step.language); }, Qt::QueuedConnection);
        settle(journey, window);
    }
    journey.step("what is left to do");
    window.awaitFrame();
}

} // namespace

int main(int argc, char** argv)
{
    return runTimed(argc, argv, speak);
}
