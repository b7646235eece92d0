#include "kit/Sandbox.h"
#include "kit/Shop.h"
#include "platform/LaunchOptions.h"
#include "ui/shell/ApplicationSetup.h"
#include "ui/shell/EventLoopProbe.h"
#include "ui/theme/Fonts.h"

#include <QElapsedTimer>
#include <QGuiApplication>

#undef signals // a name glib gives to a member
#include <glib.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

using namespace loom;

namespace
{

constexpr double nanosecondsPerMillisecond = 1e6;
constexpr double smoothTurn = 8; // milliseconds

/// How long this thread has computed, in nanoseconds.
qint64 computed()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return time.tv_sec * 1'000'000'000LL + time.tv_nsec;
}

// Where the turns that the probe times end, in the thread's own time. glib hands its poll function no data of ours.
GPollFunc plainPoll = nullptr;
std::vector<qint64> computedAtEnds;

gint notingPoll(GPollFD* descriptors, guint count, gint timeout)
{
    computedAtEnds.push_back(computed());
    return plainPoll(descriptors, count, timeout);
}

/// Has the ends of turns noted from before the probe's first turn.
struct NotedEnds {
    NotedEnds()
    {
        plainPoll = g_main_context_get_poll_func(g_main_context_default());
        g_main_context_set_poll_func(g_main_context_default(), notingPoll);
    }
};

/// A journey whose every turn of the event loop is timed, without what the journey itself takes to look around.
class Browsing
{
public:
    Browsing() { m_clock.start(); }

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
    template <typename Looking>
    auto look(Looking looking)
    {
        const qint64 begin = m_clock.nsecsElapsed();
        const qint64 computedBefore = computed();
        const auto seen = looking();
        m_looks.push_back({begin, m_clock.nsecsElapsed(), computed() - computedBefore});
        return seen;
    }

    void report() const
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
        std::ranges::sort(rows, std::greater(), &Row::duration);
        const auto share = [&rows](double Row::* time) {
            const auto smooth = std::ranges::count_if(rows, [time](const Row& row) { return row.*time < smoothTurn; });
            return 100 * static_cast<double>(smooth) / static_cast<double>(rows.size());
        };
        if (rows.empty())
            return;
        std::printf("%zu turns, %.2f of 100 below %.0f ms (%.2f by what they computed), longest %.1f ms\n", rows.size(),
                    share(&Row::duration), smoothTurn, share(&Row::computed), rows.front().duration);
        for (std::size_t i = 0; i < std::min<std::size_t>(10, rows.size()); ++i)
            std::printf("  %6.1f ms, %6.1f ms of them computing: %s, %.0f ms in\n", rows[i].duration, rows[i].computed,
                        rows[i].step, rows[i].offset);
    }

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
    NotedEnds m_ends;
    EventLoopProbe m_probe;
    std::vector<Step> m_steps;
    std::vector<Interval> m_looks;
};

QQuickItem* cardInView(const WindowDriver& window, const QQuickItem* grid)
{
    for (QQuickItem* const card : window.findAll(QStringLiteral("card."), grid)) {
        const QRectF place = card->mapRectToItem(grid, QRectF(0, 0, card->width(), card->height()));
        if (place.top() > 0 && place.bottom() < grid->height())
            return card;
    }
    return nullptr;
}

void browse(Browsing& journey, Shop& shop)
{
    const auto find = [&journey](const WindowDriver& window, const char* name, QQuickItem* below = nullptr) {
        QQuickItem* found = nullptr;
        journey.waitUntil([&] { return (found = window.find(QString::fromLatin1(name), below)) != nullptr; });
        return found;
    };
    journey.step("the first window, with a piece");
    const WindowDriver window =
        shop.openWindow(QStringLiteral("https://www.loomstreet.example/products/sabine-bias-slip-dress"));
    journey.awaitPage(window, QStringLiteral("Sabine bias slip dress"));
    find(window, "sizeTable0");

    journey.step("the next picture");
    for (int i = 0; i < 4; ++i)
        window.press(QStringLiteral("Right"));
    journey.step("an enlarged picture");
    window.press(QStringLiteral("Return"));
    QQuickItem* const lightbox = find(window, "lightbox");
    find(window, "picture", lightbox);
    window.press(QStringLiteral("Right"));
    find(window, "picture", lightbox);
    window.press(QStringLiteral("Esc"));
    journey.waitUntil([&] { return window.find(QStringLiteral("lightbox")) == nullptr; });

    journey.step("colours and sizes");
    for (const char* const choice : {"swatch.Ink", "size.M", "size.XXS", "swatch.Sage", "size.S"})
        window.clickAt(journey.look([&] {
            const QQuickItem* const item = window.find(QString::fromLatin1(choice));
            return item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
        }));
    journey.step("the other unit of sizes");
    window.click(find(window, "segment1"));
    window.click(find(window, "segment0"));

    journey.step("a second tab");
    window.press(QStringLiteral("Ctrl+T"));
    journey.awaitPage(window, QStringLiteral("Explore"));
    journey.step("a department");
    window.click(find(window, "section.women"));
    journey.awaitPage(window, QStringLiteral("Women"));
    journey.step("a collection");
    window.click(find(window, "tile.dresses"));
    journey.awaitPage(window, QStringLiteral("Dresses"));

    journey.step("scrolling to the end");
    QQuickItem* const grid = find(window, "grid");
    while (!journey.look([&] { return window.find(QStringLiteral("end")) != nullptr; })) {
        window.scroll(grid, 120);
        window.awaitFrame();
    }
    journey.step("scrolling back");
    for (int i = 0; i < 12; ++i) {
        window.scroll(grid, -160);
        window.awaitFrame();
    }

    journey.step("a piece of the collection");
    QQuickItem* const card = journey.look([&] { return cardInView(window, grid); });
    const QString title = card->property("title").toString();
    window.click(card);
    journey.awaitPage(window, title);
    journey.step("back to the collection");
    window.press(QStringLiteral("Alt+Left"));
    journey.awaitPage(window, QStringLiteral("Dresses"));
    journey.step("back to the first tab");
    window.press(QStringLiteral("Ctrl+Tab"));
    journey.awaitPage(window, QStringLiteral("Sabine bias slip dress"));
    journey.step("what is left to do");
    window.awaitFrame();
}

} // namespace

int main(int argc, char** argv)
{
    prepareApplication(QStringLiteral("com.loomstreet.Loomstreet"));
    const QGuiApplication application(argc, argv);
    const Sandbox store;
    if (!addCertificateAuthority(store.authorityFile()))
        return 1;
    registerFonts();
    Shop shop(store);
    Browsing journey;
    browse(journey, shop);
    journey.report();
    return 0;
}
