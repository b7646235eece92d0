#include "kit/Journey.h"
#include "support/FakeClock.h"

namespace loom
{

namespace
{

const QString site = QStringLiteral("https://www.loomstreet.example");
const QString cdn = QStringLiteral("cdn.loomstreet.example");

const QString trouble = QStringLiteral("LOOMSTREET is having trouble right now. Try again shortly.");
const QString tooMany = QStringLiteral("Too many attempts. Wait a moment and try again.");
const QString refused = QStringLiteral("That didn't work. Try again.");
const QString unexpectedAnswer = QStringLiteral("Something unexpected came back. Try again.");
const QString offline = QStringLiteral("You appear to be offline. Check your connection and try again.");
const QString timedOut = QStringLiteral("The request timed out. Try again.");

/// A way to fail, what the shopper reads of it, and how often the application asks before it says so.
struct Failing {
    const char* kind;
    int status;
    QString sentence;
    int attempts;
};

const std::array failings{Failing{"status", 503, trouble, 3}, Failing{"status", 429, tooMany, 3},
                          Failing{"status", 403, refused, 1}, Failing{"throttled", 0, unexpectedAnswer, 3},
                          Failing{"drop", 0, offline, 1},     Failing{"malformed", 0, unexpectedAnswer, 1},
                          Failing{"stall", 0, timedOut, 3}};

class FailureJourney : public Journey
{
protected:
    void open(const QString& path) { start(path.isEmpty() ? QString() : site + path, {.clock = &m_clock}); }

    /// Waits until the failure can be read, and lets the time pass that the application waits between its attempts or
    /// for an answer that does not come.
    void awaitInTime(const Failing& failing, const QString& operation, int askedBefore)
    {
        int attempts = 0;
        waitUntil(
            [&] {
                if (window.shows(failing.sentence))
                    return true;
                const auto next = m_clock.nextWake();
                if (next && *next <= std::chrono::seconds(1))
                    m_clock.advance(*next);
                else if (next && failing.kind == std::string_view("stall") &&
                         store.count(operation) - askedBefore > attempts) {
                    ++attempts; // it has arrived, and nothing else will happen
                    m_clock.advance(*next);
                }
                return false;
            },
            '"' + failing.sentence.toStdString() + "\" can be read");
    }
    QString begin(const Failing& failing, const QString& operation)
    {
        return store.fail({.kind = QString::fromLatin1(failing.kind),
                           .operation = operation,
                           .status = failing.status ? failing.status : 500});
    }

private:
    FakeClock m_clock;
};

TEST_F(FailureJourney, APieceOnDisplayOutlivesEveryFailure)
{
    open(QStringLiteral("/products/sabine-bias-slip-dress"));
    window.awaitPage(QStringLiteral("Sabine bias slip dress"));
    window.await(QStringLiteral("sizeTable0"));
    const QString operation = QStringLiteral("Product");
    for (const Failing& failing : failings) {
        SCOPED_TRACE(std::string(failing.kind) + ' ' + std::to_string(failing.status));
        const QStringList shown = window.texts(window.await(QStringLiteral("page")));
        const int before = store.count(operation);
        const QString fault = begin(failing, operation);
        window.press(QStringLiteral("F5"));
        awaitInTime(failing, operation, before);
        EXPECT_EQ(store.count(operation) - before, failing.attempts);
        QQuickItem* const strip = window.await(QStringLiteral("strip"));
        EXPECT_EQ(accessibleName(strip), failing.sentence);
        window.awaitPage(QStringLiteral("Sabine bias slip dress"));
        const QStringList kept = window.texts(window.await(QStringLiteral("page")));
        for (const QString& text : shown)
            EXPECT_TRUE(kept.contains(text)) << text.toStdString() << " is lost";
        store.lift(fault);
        const int asked = store.count(operation);
        window.click(window.await(QStringLiteral("retry"), strip));
        waitUntil([&] { return store.count(operation) > asked; }, "it is tried again");
        window.awaitGone(QStringLiteral("strip"));
    }
}

TEST_F(FailureJourney, APageThatCannotComeSaysWhyAndComesWithAnotherTry)
{
    struct Page {
        const char* path;
        const char* operation;
        const char* title;
        const Failing& failing;
    };
    open(QStringLiteral("/collections/bags"));
    window.awaitPage(QStringLiteral("Bags"));
    for (const Page& page : {Page{"/products/sabine-bias-slip-dress", "Product", "Sabine bias slip dress", failings[0]},
                             Page{"/products/marlow-wrap-dress", "Product", "Marlow wrap dress", failings[4]},
                             Page{"/collections/dresses", "CollectionProducts", "Dresses", failings[5]},
                             Page{"/collections/knitwear", "CollectionProducts", "Knitwear", failings[6]}}) {
        SCOPED_TRACE(page.path);
        const QString operation = QString::fromLatin1(page.operation);
        const int before = store.count(operation);
        const QString fault = begin(page.failing, operation);
        follow(site + QString::fromLatin1(page.path));
        awaitInTime(page.failing, operation, before);
        EXPECT_EQ(window.find(QStringLiteral("strip")), nullptr);
        // The other try is at hand for the keyboard.
        window.awaitFocus(QStringLiteral("retry"));
        store.lift(fault);
        window.press(QStringLiteral("Return"));
        window.awaitPage(QString::fromLatin1(page.title));
        window.awaitGone(QStringLiteral("error"));
        // The button that had the keyboard is gone.
        if (operation == QLatin1String("CollectionProducts"))
            waitUntil([&] { return window.focusName().startsWith(QLatin1String("card.")); }, "a piece has the focus");
    }
}

TEST_F(FailureJourney, PicturesThatAreBrokenComeWithTheNextTry)
{
    tolerate(QStringLiteral("Error transferring https://cdn.loomstreet.example/"));
    const QString fault = store.fail({.kind = QStringLiteral("status"), .host = cdn, .status = 500});
    open(QStringLiteral("/products/sabine-bias-slip-dress"));
    window.awaitPage(QStringLiteral("Sabine bias slip dress"));
    const QQuickItem* const picture = window.await(QStringLiteral("picture0"));
    waitUntil([picture] { return picture->property("broken").toBool(); }, "the picture is broken");
    store.lift(fault);
    window.press(QStringLiteral("F5"));
    waitUntil([picture] { return picture->property("ready").toBool(); }, "the picture is there");

    // The same when the network comes back by itself.
    shop->network().setOffline(true);
    tolerate(QStringLiteral("Connection closed"));
    const QString again = store.fail({.kind = QStringLiteral("drop"), .host = cdn});
    follow(site + QStringLiteral("/collections/luxury"));
    window.awaitPage(QStringLiteral("Luxury"));
    const QQuickItem* const card = window.findAll(QStringLiteral("card.")).front();
    waitUntil([&] { return window.await(QStringLiteral("picture"), card)->property("broken").toBool(); },
              "the picture is broken");
    store.lift(again);
    shop->network().setOffline(false);
    waitUntil([&] { return window.await(QStringLiteral("picture"), card)->property("ready").toBool(); },
              "the picture is there");
}

TEST_F(FailureJourney, WhatTheStoreDoesNotHaveIsNoFailure)
{
    open(QStringLiteral("/products/no-such-piece"));
    window.awaitPage(QStringLiteral("Not available"));
    window.awaitText(QStringLiteral("This piece isn't available"));
    window.awaitText(QStringLiteral("It may be sold out for good, or isn't sold in United States."));

    follow(site + QStringLiteral("/collections/no-such-collection"));
    window.awaitText(QStringLiteral("This collection isn't available"));
    window.awaitText(QStringLiteral("It may have been renamed or isn't sold in United States"));

    follow(site + QStringLiteral("/collections/autumn-preview"));
    window.awaitText(QStringLiteral("Nothing here yet"));
    window.awaitText(QStringLiteral("New pieces arrive every week."));
    EXPECT_EQ(window.find(QStringLiteral("retry")), nullptr);
}

} // namespace

} // namespace loom
