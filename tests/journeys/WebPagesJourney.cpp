#include "kit/Journey.h"
#include "kit/WebViewDriver.h"

namespace loom
{

namespace
{

/// The pages of the store's own site, in the window.
class WebPagesJourney : public Journey
{
protected:
    WebPagesJourney() { tolerateEngine(); }

    [[nodiscard]] WebViewDriver page() const { return WebViewDriver(window); }
};

TEST_F(WebPagesJourney, TheEngineComesWithTheFirstOfThem)
{
    start();
    window.awaitPage(QStringLiteral("Explore"));
    window.click(QStringLiteral("section.women"));
    window.awaitPage(QStringLiteral("Women"));
    follow(QStringLiteral("https://www.loomstreet.example/products/sabine-bias-slip-dress"));
    window.awaitPage(QStringLiteral("Sabine bias slip dress"));
    EXPECT_FALSE(isEngineMapped());

    window.click(QStringLiteral("section.starlook"));
    window.awaitPage(QStringLiteral("Starlook"));
    EXPECT_TRUE(isEngineMapped());
    EXPECT_EQ(page().evaluate(QStringLiteral("document.querySelector('h1').textContent")), QStringLiteral("Starlook"));

    // A piece of a look opens as a page of the application.
    const QString piece =
        page().evaluate(QStringLiteral("document.querySelector('.pieces a').getAttribute('href')")).toString();
    EXPECT_TRUE(piece.contains(QStringLiteral("/products/")));
    page().clickLink(piece);
    const QQuickItem* const title = window.await(QStringLiteral("title"), window.await(QStringLiteral("buyColumn")));
    window.awaitPage(title->property("text").toString());
    EXPECT_TRUE(shop->openedInBrowser().isEmpty());
    window.press(QStringLiteral("Alt+Left"));
    window.awaitPage(QStringLiteral("Starlook"));
}

TEST_F(WebPagesJourney, LinksLeadWhereTheyBelong)
{
    start(QStringLiteral("https://www.loomstreet.example/collections/bags"));
    window.awaitPage(QStringLiteral("Bags"));
    window.press(QStringLiteral("F1"));
    window.awaitPage(QStringLiteral("LOOMSTREET Help Center"));

    // Another page of the store lies on top of the one it was linked from.
    page().clickLink(QStringLiteral("/pages/agreements/returns"));
    page().awaitTrue(QStringLiteral("location.pathname === '/pages/agreements/returns'"));
    page().clickLink(QStringLiteral("/pages/about-us"));
    page().awaitTrue(QStringLiteral("location.pathname === '/pages/about-us' && document.readyState === 'complete'"));

    // A link that leaves the store goes to the browser, and the page stays.
    page().clickLink(QStringLiteral("https://press.example.org/loomstreet"));
    waitUntil([this] { return !shop->openedInBrowser().isEmpty(); }, "the browser is asked");
    EXPECT_EQ(shop->openedInBrowser(), QList<QUrl>{QUrl(QStringLiteral("https://press.example.org/loomstreet"))});
    EXPECT_EQ(page().evaluate(QStringLiteral("location.pathname")), QStringLiteral("/pages/about-us"));

    // Nothing comes from elsewhere: not the picture in the page, nor what a script asks for. That the sandbox was
    // asked for none of it is looked at when the journey is over.
    EXPECT_EQ(page().evaluate(QStringLiteral("document.querySelector('img[alt^=Seal]').naturalWidth")).toInt(), 0);
    page().evaluate(QStringLiteral("fetch('https://images.example.net/pixel').then(() => document.title = 'fetched',"
                                   " () => document.title = 'refused')"));
    page().awaitTrue(QStringLiteral("document.title === 'refused'"));
    page().evaluate(QStringLiteral("void window.open('https://press.example.org/advertisement')"));
    EXPECT_EQ(shop->openedInBrowser().size(), 1);

    // Back, one page at a time.
    window.press(QStringLiteral("Alt+Left"));
    page().awaitTrue(QStringLiteral("location.pathname === '/pages/agreements/returns'"));
    window.press(QStringLiteral("Alt+Left"));
    window.awaitPage(QStringLiteral("LOOMSTREET Help Center"));
}

TEST_F(WebPagesJourney, APageThatCannotComeSaysSo)
{
    start(QStringLiteral("https://www.loomstreet.example/collections/bags"));
    window.awaitPage(QStringLiteral("Bags"));
    const QString fault =
        store.fail({.kind = QStringLiteral("drop"), .host = QStringLiteral("www.loomstreet.example")});
    window.click(QStringLiteral("section.closet"));
    window.awaitText(QStringLiteral("Couldn't reach LOOMSTREET. Try again."));
    store.lift(fault);
    window.click(QStringLiteral("retry"));
    window.awaitPage(QStringLiteral("Closet"));
    window.awaitGone(QStringLiteral("error"));
    page().awaitTrue(QStringLiteral("document.querySelector('h1') !== null"));
}

} // namespace

} // namespace loom
