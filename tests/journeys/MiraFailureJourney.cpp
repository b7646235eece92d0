#include "kit/StylistJourney.h"
#include "support/FakeClock.h"

#include <QFile>
#include <QTemporaryDir>

#include <filesystem>

namespace loom
{

namespace
{

const QString messagePath = QStringLiteral("/api/support/widget/message");
const QString unconfirmed = QStringLiteral("This message has not been confirmed. You can try again.");

/// What the shopper has written is never lost and never said twice.
class MiraFailureJourney : public StylistJourney
{
protected:
    FakeClock clock;
};

TEST_F(MiraFailureJourney, EveryFailureHasItsSentenceAndTheMessageStaysUntilItArrives)
{
    struct Failing {
        const char* kind;
        int status;
        const char* code;
        const char* sentence;
    };
    tolerate(QStringLiteral("Connection closed"));
    openPage({.clock = &clock});
    for (const Failing& failing : {
             Failing{"status", 429, "RATE_LIMITED", "You're sending messages too quickly. Wait a moment first."},
             Failing{"status", 400, "BAD_INPUT", "This message couldn't be sent as written."},
             Failing{"status", 500, "OOPS", "LOOMSTREET is having trouble right now."},
             Failing{"status", 403, "OOPS", "Couldn't reach LOOMSTREET."},
             Failing{"stall", 500, "", "Mira took too long to respond."},
             Failing{"drop", 500, "", "You appear to be offline."},
         }) {
        SCOPED_TRACE(failing.sentence);
        const bool isDropped = failing.kind == std::string_view("drop");
        const QString words = QStringLiteral("Say %1").arg(QString::fromLatin1(failing.sentence));
        const int before = count();
        shop->network().setOffline(isDropped);
        store.setStylist(
            {{QStringLiteral("next"), QJsonArray{QStringLiteral("As you wish.")}},
             {QStringLiteral("fail"), QJsonObject{{QStringLiteral("kind"), QString::fromLatin1(failing.kind)},
                                                  {QStringLiteral("status"), failing.status},
                                                  {QStringLiteral("code"), QString::fromLatin1(failing.code)},
                                                  {QStringLiteral("times"), 1}}}});
        const auto asked = [this] {
            const QJsonArray all = store.requests();
            return std::ranges::count_if(all, [](const QJsonValue& one) { return one[u"path"] == messagePath; });
        };
        const auto askedBefore = asked();
        say(words);
        if (failing.kind == std::string_view("stall")) {
            waitUntil([&] { return asked() > askedBefore; }, "the message is on its way");
            clock.advance(std::chrono::seconds(20));
        }
        window.awaitText(unconfirmed);
        window.awaitText(QString::fromLatin1(failing.sentence), window.await(QStringLiteral("strip")));
        EXPECT_EQ(count(), before + 1);
        shop->network().setOffline(false);
        retryLast();
        awaitAnswer();
        EXPECT_EQ(count(), before + 2);
        EXPECT_EQ(timesShown(words), 1);
        window.awaitNoText(unconfirmed);
        window.awaitGone(QStringLiteral("strip"));
    }
}

TEST_F(MiraFailureJourney, WhatWasWrittenOutlivesACrashAndIsNeverSaidTwice)
{
    const QTemporaryDir folder;
    const QTemporaryDir crashed;
    openPage({.folder = folder.path()});
    sayAndAwait(QStringLiteral("Hello"));
    store.setStylist({{QStringLiteral("lose"), 1}});
    const QString lost = QStringLiteral("Is the blazer lined?");
    say(lost);
    window.awaitText(unconfirmed);
    const QString begun = QStringLiteral("And does it come in gr");
    window.type(begun);
    const auto isWritten = [&](const char* name, const QString& text) {
        QFile file(folder.filePath(QStringLiteral("data/") + QLatin1String(name)));
        return file.open(QIODevice::ReadOnly) && file.readAll().contains(text.toUtf8());
    };
    waitUntil([&] { return isWritten("lst_mira_draft.json", begun) && isWritten("lst_mira_topics.json", lost); },
              "both are on the disk");
    // What a process that ends this moment leaves behind.
    std::filesystem::copy(folder.path().toStdString(), crashed.path().toStdString(),
                          std::filesystem::copy_options::recursive);
    shop.reset();

    store.setStylist({{QStringLiteral("delay"), 600}}); // what was kept is there before the service has answered
    start({}, {.folder = crashed.path()});
    window.click(QStringLiteral("section.mira"));
    awaitMessage(lost);
    awaitMessage(QStringLiteral("Hello"));
    EXPECT_EQ(field(window)->property("text"), begun);
    waitUntil([this] { return !mira().isLoading(); }, "the thread is there");
    // The service had it all the time, and an answer to it.
    window.awaitNoText(unconfirmed);
    EXPECT_EQ(timesShown(lost), 1);
    EXPECT_EQ(count(), 4);
    EXPECT_EQ(store.messages().size(), 2);

    // And once more, by the button.
    store.setStylist({{QStringLiteral("delay"), 0}, {QStringLiteral("lose"), 1}});
    window.click(field(window));
    window.type(QStringLiteral("een?"));
    window.press(QStringLiteral("Return"));
    window.awaitText(unconfirmed);
    retryLast();
    awaitAnswer();
    window.awaitNoText(unconfirmed);
    EXPECT_EQ(timesShown(begun + QStringLiteral("een?")), 1);
    EXPECT_EQ(count(), 6);
    EXPECT_EQ(store.messages().size(), 3);
}
} // namespace

} // namespace loom
