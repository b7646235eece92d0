#include "kit/Journey.h"

#include <QFile>
#include <QJSEngine>
#include <QQmlEngine>

namespace loom
{

namespace
{

/// The pages of the store's own site, in the window.
class WebPagesJourney : public Journey
{
protected:
    [[nodiscard]] static bool isEngineMapped()
    {
        QFile maps(QStringLiteral("/proc/self/maps"));
        return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("WebEngineCore");
    }
    // The engine's own modules, when they are loaded.
    WebPagesJourney()
    {
        tolerate(QStringLiteral("You should not use it as a QML type."));
        tolerate(QStringLiteral("crbug/"));
    }

    /// The view that is seen and has loaded; null while there is none.
    [[nodiscard]] QQuickItem* webView() const
    {
        const QList<QQuickItem*> all = window.findAll(QString());
        const auto found = std::ranges::find_if(all, [](const QQuickItem* item) {
            return item->inherits("QQuickWebEngineView") && !item->property("loading").toBool();
        });
        return found == all.end() ? nullptr : *found;
    }
    /// What a script answers in the page that is shown.
    QVariant evaluate(const QString& script) const
    {
        QJSValue answer;
        QPointer<QQuickItem> asked; // a view that loads something else meanwhile does not answer
        waitUntil(
            [&] {
                if (answer.isObject() && answer.property(QStringLiteral("isThere")).toBool())
                    return true;
                QQuickItem* const view = webView();
                if (view && view != asked) {
                    answer = shop->engine().newObject();
                    const QString keep =
                        QStringLiteral("(answer => value => { answer.value = value; answer.isThere = true })");
                    const QJSValue callback = shop->engine().evaluate(keep).call({answer});
                    QMetaObject::invokeMethod(view, "runJavaScript", Q_ARG(QString, script), Q_ARG(QJSValue, callback));
                }
                asked = view;
                return false;
            },
            "the page answers");
        return answer.property(QStringLiteral("value")).toVariant();
    }
    void awaitTrue(const QString& script) const
    {
        waitUntil([&] { return evaluate(script).toBool(); }, script.toStdString());
    }
    /// Clicks the first link that leads there.
    void clickLink(const QString& address) const
    {
        const QString link =
            QStringLiteral("document.querySelector('main a[href=\"%1\"], a[href=\"%1\"]')").arg(address);
        awaitTrue(QStringLiteral("%1 !== null").arg(link));
        evaluate(QStringLiteral("%1.scrollIntoView({block: 'center'})").arg(link));
        const QVariantMap place =
            evaluate(QStringLiteral("(box => ({x: box.x + box.width / 2, y: box.y + box.height / 2}))(%1"
                                    ".getClientRects()[0])")
                         .arg(link))
                .toMap();
        window.clickAt(webView()->mapToScene(
            QPointF(place.value(QStringLiteral("x")).toDouble(), place.value(QStringLiteral("y")).toDouble())));
    }
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
    EXPECT_EQ(evaluate(QStringLiteral("document.querySelector('h1').textContent")), QStringLiteral("Starlook"));

    // A piece of a look opens as a page of the application.
    const QString piece =
        evaluate(QStringLiteral("document.querySelector('.pieces a').getAttribute('href')")).toString();
    EXPECT_TRUE(piece.contains(QStringLiteral("/products/")));
    clickLink(piece);
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
    clickLink(QStringLiteral("/pages/agreements/returns"));
    awaitTrue(QStringLiteral("location.pathname === '/pages/agreements/returns'"));
    clickLink(QStringLiteral("/pages/about-us"));
    awaitTrue(QStringLiteral("location.pathname === '/pages/about-us' && document.readyState === 'complete'"));

    // A link that leaves the store goes to the browser, and the page stays.
    clickLink(QStringLiteral("https://press.example.org/loomstreet"));
    waitUntil([this] { return !shop->openedInBrowser().isEmpty(); }, "the browser is asked");
    EXPECT_EQ(shop->openedInBrowser(), QList<QUrl>{QUrl(QStringLiteral("https://press.example.org/loomstreet"))});
    EXPECT_EQ(evaluate(QStringLiteral("location.pathname")), QStringLiteral("/pages/about-us"));

    // Nothing comes from elsewhere: not the picture in the page, nor what a script asks for. That the sandbox was
    // asked for none of it is looked at when the journey is over.
    EXPECT_EQ(evaluate(QStringLiteral("document.querySelector('img[alt^=Seal]').naturalWidth")).toInt(), 0);
    evaluate(QStringLiteral("fetch('https://images.example.net/pixel').then(() => document.title = 'fetched',"
                            " () => document.title = 'refused')"));
    awaitTrue(QStringLiteral("document.title === 'refused'"));
    evaluate(QStringLiteral("void window.open('https://press.example.org/advertisement')"));
    EXPECT_EQ(shop->openedInBrowser().size(), 1);

    // Back, one page at a time.
    window.press(QStringLiteral("Alt+Left"));
    awaitTrue(QStringLiteral("location.pathname === '/pages/agreements/returns'"));
    window.press(QStringLiteral("Alt+Left"));
    window.awaitPage(QStringLiteral("LOOMSTREET Help Center"));
}

TEST_F(WebPagesJourney, APageThatCannotComeSaysSo)
{
    start(QStringLiteral("https://www.loomstreet.example/collections/bags"));
    window.awaitPage(QStringLiteral("Bags"));
    const QString fault =
        store.fail({.kind = QStringLiteral("drop"), .host = QStringLiteral("www.loomstreet.example")});
    window.click(QStringLiteral("section.tools"));
    window.awaitText(QStringLiteral("Couldn't reach LOOMSTREET. Try again."));
    store.lift(fault);
    window.click(QStringLiteral("retry"));
    window.awaitPage(QStringLiteral("Tools"));
    window.awaitGone(QStringLiteral("error"));
    awaitTrue(QStringLiteral("document.querySelector('h1') !== null"));
}

} // namespace

} // namespace loom
