#include "TimedJourney.h"
#include "kit/Shop.h"

using namespace loom;

namespace
{

QQuickItem* cardInView(const WindowDriver& window, const QQuickItem* grid)
{
    for (QQuickItem* const card : window.findAll(QStringLiteral("card."), grid)) {
        const QRectF place = card->mapRectToItem(grid, QRectF(0, 0, card->width(), card->height()));
        if (place.top() > 0 && place.bottom() < grid->height())
            return card;
    }
    return nullptr;
}

void browse(TimedJourney& journey, Shop& shop)
{
    journey.step("the first window, with a piece");
    const WindowDriver window =
        shop.openWindow(QStringLiteral("https://www.loomstreet.example/products/sabine-bias-slip-dress"));
    journey.awaitPage(window, QStringLiteral("Sabine bias slip dress"));
    journey.find(window, "sizeTable0");

    journey.step("the next picture");
    for (int i = 0; i < 4; ++i)
        window.press(QStringLiteral("Right"));
    journey.step("an enlarged picture");
    window.press(QStringLiteral("Return"));
    QQuickItem* const lightbox = journey.find(window, "lightbox");
    journey.find(window, "picture", lightbox);
    window.press(QStringLiteral("Right"));
    journey.find(window, "picture", lightbox);
    window.press(QStringLiteral("Esc"));
    journey.waitUntil([&] { return window.find(QStringLiteral("lightbox")) == nullptr; });

    journey.step("colours and sizes");
    for (const char* const choice : {"swatch.Ink", "size.M", "size.XXS", "swatch.Sage", "size.S"})
        window.clickAt(journey.look([&] {
            const QQuickItem* const item = window.find(QString::fromLatin1(choice));
            return item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
        }));
    journey.step("the other unit of sizes");
    window.click(journey.find(window, "segment1"));
    window.click(journey.find(window, "segment0"));

    journey.step("a second tab");
    window.press(QStringLiteral("Ctrl+T"));
    journey.awaitPage(window, QStringLiteral("Explore"));
    journey.step("a department");
    window.click(journey.find(window, "section.women"));
    journey.awaitPage(window, QStringLiteral("Women"));
    journey.step("a collection");
    window.click(journey.find(window, "tile.dresses"));
    journey.awaitPage(window, QStringLiteral("Dresses"));

    journey.step("scrolling to the end");
    QQuickItem* const grid = journey.find(window, "grid");
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
    return runTimed(argc, argv, browse);
}
