#include "TimedJourney.h"
#include "kit/Shop.h"
#include "stylist/MiraChatModel.h"

#include <cstdio>

using namespace loom;

namespace
{

constexpr int older = 5000;

void chat(TimedJourney& journey, Shop& shop)
{
    Sandbox().setStylist({{QStringLiteral("history"), older}});
    MiraChatModel& mira = *shop.model().mira();
    const WindowDriver window = shop.openWindow();
    journey.awaitPage(window, QStringLiteral("Explore"));
    for (int frame = 0; frame < 60; ++frame) // what the page still does is not the stylist's
        window.awaitFrame();

    journey.step("the stylist with a long thread");
    window.press(QStringLiteral("Ctrl+Shift+M"));
    QQuickItem* const thread = journey.find(window, "thread");
    journey.waitUntil([&] { return !mira.isLoading() && mira.thread()->count() >= older; });
    for (int frame = 0; frame < 30; ++frame)
        window.awaitFrame();
    std::printf("%d messages\n", mira.thread()->count());

    journey.step("scrolling up");
    for (int turn = 0; turn < 200; ++turn) {
        window.scroll(thread, -240);
        window.awaitFrame();
    }
    journey.step("to the beginning and back");
    QQuickItem* const writing = window.window()->activeFocusItem();
    thread->forceActiveFocus();
    for (const char* const key : {"Home", "PgDown", "PgDown", "End"}) {
        window.press(QString::fromLatin1(key));
        for (int frame = 0; frame < 10; ++frame)
            window.awaitFrame();
    }

    journey.step("writing");
    writing->forceActiveFocus();
    for (const char letter : std::string("An outfit for a wedding under 400")) {
        window.type(QString(QLatin1Char(letter)));
        window.awaitFrame();
    }
    journey.step("sending, and the reply");
    const int before = mira.thread()->count();
    window.press(QStringLiteral("Return"));
    journey.waitUntil([&] { return !mira.isReplying() && mira.thread()->count() > before + 1; });
    for (int frame = 0; frame < 60; ++frame)
        window.awaitFrame();
    journey.step("asking again");
    mira.refresh();
    journey.waitUntil([&] { return !mira.isLoading(); });
    for (int frame = 0; frame < 10; ++frame)
        window.awaitFrame();
}

} // namespace

int main(int argc, char** argv)
{
    return runTimed(argc, argv, chat);
}
