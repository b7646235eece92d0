#include "kit/StylistJourney.h"

namespace loom
{

namespace
{

const QString odile = QStringLiteral("odile-tiered-dress");
const QString blazer = QStringLiteral("linden-tailored-blazer");

QJsonObject reply(const QString& body)
{
    return {{QStringLiteral("body"), body}, {QStringLiteral("attachments"), QJsonArray{odile, blazer}}};
}

/// The conversation as it is read, wherever it is shown.
class MiraThreadJourney : public StylistJourney
{
protected:
    [[nodiscard]] QVariant newest(MiraThreadModel::Role role) const { return mira().thread()->index(0).data(role); }
    [[nodiscard]] QStringList cards() const
    {
        QStringList handles;
        for (const QVariant& card : newest(MiraThreadModel::CardsRole).toList())
            handles.append(card.value<MiraCard>().handle);
        return handles;
    }
    void awaitCards(const QStringList& handles, const std::string& what) const
    {
        waitUntil([&] { return cards() == handles; }, what);
    }
    [[nodiscard]] QStringList topics() const
    {
        QStringList titles;
        for (int row = 0; row < mira().topics()->rowCount(); ++row)
            titles.append(mira().topics()->index(row).data(MiraTopicsModel::TitleRole).toString());
        return titles;
    }
};

TEST_F(MiraThreadJourney, WhateverSheSaysIsShownAndNothingMore)
{
    struct Odd {
        const char* way;
        int messages; ///< that come of a reply
        QStringList cards;
        QString text; ///< empty: whatever it is
    };
    const QString body = QStringLiteral("Look at these.");
    const QStringList both{odile, blazer};
    const QString markup = QStringLiteral(
        "<b onclick=\"alert(1)\">Bold</b> & <img src=x onerror=alert(2)> [link](javascript:alert(3)) %1 {0}");
    const QString control = QStringLiteral("[31mgnp.sserd left ");
    openPage();
    for (const Odd& odd : {
             Odd{"markup", 1, both, markup},
             Odd{"control", 1, both, {}},
             Odd{"long", 1, both, {}},
             Odd{"untitled", 1, {blazer}, body},
             Odd{"unknown", 1, {}, body},
             Odd{"prices", 1, both, body},
             Odd{"paths", 1, both, body + QStringLiteral("\n/products/../etc/passwd\n/products/%F0%9F%91%97?x=1")},
             Odd{"blank", 1, both, body + QStringLiteral("\n\nAnd more.")},
             Odd{"future", 1, both, body},
             Odd{"badTime", 1, both, body},
             Odd{"numberId", 1, both, body},
             Odd{"repeated", 1, both, body},
             Odd{"noId", 0, {}, {}},
             Odd{"empty", 0, {}, {}},
             Odd{"many", 501, both, QStringLiteral("Reply number 500 of 500.")},
         }) {
        SCOPED_TRACE(odd.way);
        const int before = count();
        store.setStylist({{QStringLiteral("hostile"), QJsonArray{QString::fromLatin1(odd.way)}},
                          {QStringLiteral("next"), QJsonArray{reply(body)}}});
        sayAndAwait(QStringLiteral("Something %1").arg(QString::fromLatin1(odd.way)));
        EXPECT_EQ(count(), before + 1 + odd.messages);
        awaitCards(odd.cards, odd.way);
        const QString text = newest(MiraThreadModel::TextRole).toString();
        if (!odd.text.isEmpty())
            EXPECT_EQ(text, odd.text);
        for (const QChar hidden : {QChar(0x202e), QChar(0x2066), QChar(0x1b)})
            EXPECT_FALSE(text.contains(hidden)) << hidden.unicode() + 0;
        if (odd.messages > 0 && odd.way != std::string_view("control")) // in which a field ends lines in its own way
            EXPECT_GE(timesShown(text.size() > 4000 ? text.first(3500).trimmed() + u'…' : text), 1);
    }
    // All of it at once, of the whole conversation.
    store.setStylist({{QStringLiteral("hostile"),
                       QJsonArray{"types", "markup", "control", "long", "sameId", "badTime", "prices", "many"}}});
    window.press(QStringLiteral("F5"));
    waitUntil([this] { return !mira().isLoading(); }, "the thread is there");
    store.setStylist({{QStringLiteral("hostile"), QJsonArray()}});
    script({QStringLiteral("Still here.")});
    sayAndAwait(QStringLiteral("Are you there?"));
    awaitMessage(QStringLiteral("Still here."));
    EXPECT_EQ(shop->openedInBrowser(), QList<QUrl>());
    EXPECT_EQ(shop->model().windows().front()->tabs()->count(), 1);

    // Where the catalog cannot be asked, her own words stand.
    const QString fault =
        store.fail({.kind = QStringLiteral("status"), .operation = QStringLiteral("ProductsByHandles"), .status = 403});
    const QJsonObject own{{QStringLiteral("handle"), QStringLiteral("marlow-wrap-dress")},
                          {QStringLiteral("title"), QStringLiteral("A dress to wrap")},
                          {QStringLiteral("price"), 120}};
    script({QJsonObject{{QStringLiteral("body"), body}, {QStringLiteral("attachments"), QJsonArray{own}}}});
    sayAndAwait(QStringLiteral("One more"));
    window.awaitText(QStringLiteral("A dress to wrap"));
    const QString name = QStringLiteral("miraCard.marlow-wrap-dress");
    EXPECT_TRUE(window.shows(QStringLiteral("$120.00"), window.await(name)->parentItem()));
    EXPECT_EQ(window.find(QStringLiteral("buy"), window.await(name)->parentItem()), nullptr);
    store.lift(fault);
    window.press(QStringLiteral("F5"));
    window.awaitText(QStringLiteral("Marlow wrap dress"));
    window.await(QStringLiteral("buy"), window.await(name)->parentItem());
}

TEST_F(MiraThreadJourney, AReplyDoesNotMoveWhatIsRead)
{
    store.setStylist({{QStringLiteral("history"), 60}, {QStringLiteral("hostile"), QJsonArray{"many"}}});
    openPage();
    const QString fault =
        store.fail({.kind = QStringLiteral("stall"), .path = QStringLiteral("/api/support/widget/message")});
    say(QStringLiteral("Anything new?"));
    QQuickItem* const thread = window.await(QStringLiteral("thread"));
    window.scroll(thread, -900);
    window.awaitFrame();
    const auto read = [&] {
        return thread->property("held").value<QQuickItem*>();
    };
    waitUntil([&] { return read() && window.find(QStringLiteral("jumpToLatest")); }, "what is read is further up");
    QQuickItem* const item = read();
    const auto words = [&] {
        return window.await(QStringLiteral("text"), item)->property("text").toString();
    };
    const QString before = words();
    const qreal place = item->mapToScene({}).y();
    store.lift(fault);
    awaitAnswer();
    waitUntil([&] { return thread->property("unseen").toInt() > 0; }, "it is told what came");
    window.awaitFrame();
    EXPECT_EQ(words(), before);
    EXPECT_EQ(item->mapToScene({}).y(), place);
    window.click(QStringLiteral("jumpToLatest"));
    awaitMessage(QStringLiteral("Reply number 500 of 500."));
    window.awaitGone(QStringLiteral("jumpToLatest"));
}

TEST_F(MiraThreadJourney, TopicsAreBegunNamedAndDeletedForGood)
{
    openPage();
    script({QStringLiteral("A trench coat.")});
    sayAndAwait(QStringLiteral("A coat for rain"));
    window.click(QStringLiteral("newTopic"));
    window.awaitText(QStringLiteral("What are you dressing for?"));
    script({QStringLiteral("Boots.")});
    sayAndAwait(QStringLiteral("Shoes for snow"));
    EXPECT_EQ(topics(), QStringList({QStringLiteral("Shoes for snow"), QStringLiteral("A coat for rain")}));
    EXPECT_EQ(timesShown(QStringLiteral("A trench coat.")), 0);

    window.tabTo(QStringLiteral("topic.1"), QStringLiteral("Shift+Tab"));
    window.press(QStringLiteral("F2"));
    window.awaitFocus(QStringLiteral("topicTitle"));
    window.type(QStringLiteral("Rain"));
    window.press(QStringLiteral("Return"));
    waitUntil([&] { return topics().last() == QStringLiteral("Rain"); }, "it has another name");
    window.click(QStringLiteral("topic.1"));
    awaitMessage(QStringLiteral("A trench coat."));

    window.tabTo(QStringLiteral("topic.0"), QStringLiteral("Shift+Tab"));
    window.press(QStringLiteral("Delete"));
    window.awaitText(QStringLiteral("Delete “Shoes for snow”?"));
    window.click(QStringLiteral("confirmDeleteTopic"));
    waitUntil([&] { return topics() == QStringList(QStringLiteral("Rain")); }, "it is gone");
    // The service still has what was said there; it does not come back.
    window.press(QStringLiteral("F5"));
    window.awaitText(QStringLiteral("Conversation is up to date"));
    EXPECT_EQ(topics(), QStringList(QStringLiteral("Rain")));
    EXPECT_EQ(count(), 2);
    window.awaitText(QStringLiteral("Topics are saved on this Mac. Mira keeps your shared conversation memory."));
}

TEST_F(MiraThreadJourney, OneConversationIsShownWhereverTheShopperWantsIt)
{
    start(QStringLiteral("/collections/bags"));
    window.awaitPage(QStringLiteral("Bags"));
    // Without a pointer: opened, written to, and away again.
    openDock();
    script({QStringLiteral("Beside the page.")});
    window.type(QStringLiteral("Where are you?"));
    window.press(QStringLiteral("Return"));
    awaitAnswer();
    awaitMessage(QStringLiteral("Beside the page."));
    window.type(QStringLiteral("Not sent"));
    window.press(QStringLiteral("Esc"));
    window.awaitGone(QStringLiteral("miraDock"));
    waitUntil(
        [this] { return window.focusName().startsWith(QStringLiteral("card.")) || window.focusName() == u"grid"; },
        "the page has the keyboard");
    openDock();
    EXPECT_EQ(field(window)->property("text"), QStringLiteral("Not sent"));

    window.click(QStringLiteral("section.mira"));
    window.awaitPage(QStringLiteral("Mira"));
    window.awaitGone(QStringLiteral("miraDock"));
    EXPECT_EQ(timesShown(QStringLiteral("Beside the page.")), 1);
    EXPECT_EQ(field(window)->property("text"), QStringLiteral("Not sent"));

    window.click(QStringLiteral("expandMira"));
    const WindowDriver own = shop->miraWindow();
    awaitMessage(QStringLiteral("Where are you?"), own);
    waitUntil([&] { return field(own)->hasActiveFocus(); }, "the keyboard writes to her");
    own.press(QStringLiteral("Ctrl+A"));
    script({QStringLiteral("Everywhere.")});
    own.type(QStringLiteral("And now?"));
    own.press(QStringLiteral("Return"));
    awaitMessage(QStringLiteral("Everywhere."), own);
    awaitMessage(QStringLiteral("Everywhere."));
    EXPECT_EQ(field(window)->property("text"), QString());

    own.press(QStringLiteral("Ctrl+Shift+M"));
    window.await(QStringLiteral("miraDock"));
    awaitMessage(QStringLiteral("Everywhere."));
    EXPECT_EQ(count(), 4);
}

} // namespace

} // namespace loom
