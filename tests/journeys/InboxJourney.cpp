#include "kit/NewsJourney.h"
#include "support/SupportChatModel.h"

#include <QImage>

namespace loom
{

namespace
{

const QString theo = QStringLiteral("theo.lind@example.com");

/// What the shopper was told, as a list, and the conversation with customer service.
class InboxJourney : public NewsJourney
{
protected:
    /// The number at the bell, beside the section and at the icon; none for an empty one.
    void awaitBadge(const QString& text, int count) const
    {
        for (const char* const place : {"inbox", "section.notifications"}) {
            const QQuickItem* const shown = window.await(QString::fromLatin1(place));
            waitUntil(
                [&] {
                    const QQuickItem* const label = window.find(QStringLiteral("count"), shown);
                    return (label ? label->property("text").toString() : QString()) == text;
                },
                std::string(place) + " says " + text.toStdString());
        }
        EXPECT_EQ(shop->badge().shown.empty() ? 0 : shop->badge().shown.back(), count);
    }
};

TEST_F(InboxJourney, TheInboxCountsShowsAndLeadsOn)
{
    open();
    signIn(theo);
    awaitBadge({}, 0);
    const QJsonObject forTheo{{QStringLiteral("email"), theo}};
    notify(QStringLiteral("restock"), forTheo);
    look();
    awaitBadge(QStringLiteral("1"), 1);
    QJsonObject many = forTheo;
    many.insert(QStringLiteral("count"), 99);
    notify(QStringLiteral("vessa_like"), many);
    look();
    awaitBadge(QStringLiteral("99+"), 100);
    const QString chat = notify(QStringLiteral("support_reply"), forTheo);
    const QString piece = notify(QStringLiteral("price_drop"), forTheo);
    look();

    window.click(QStringLiteral("inbox"));
    const QQuickItem* const panel = window.await(QStringLiteral("inboxPanel"));
    const QString prefix = QStringLiteral("notification.");
    struct Tab {
        const char* name;
        bool hasChat, hasPiece;
    };
    for (const Tab& tab :
         {Tab{"tab3", false, false}, Tab{"tab2", true, false}, Tab{"tab1", false, true}, Tab{"tab0", true, true}}) {
        SCOPED_TRACE(tab.name);
        window.click(window.await(QString::fromLatin1(tab.name), panel));
        waitUntil(
            [&] {
                return (window.find(prefix + chat, panel) != nullptr) == tab.hasChat &&
                       (window.find(prefix + piece, panel) != nullptr) == tab.hasPiece;
            },
            "the tab shows its own");
    }
    window.click(prefix + piece);
    window.awaitPage(QStringLiteral("Marlow wrap dress"));
    window.awaitGone(QStringLiteral("inboxPanel"));
    const auto unread = [this](const QString& id) {
        const QJsonArray told = store.notifications(theo);
        return std::ranges::count_if(told, [&id](const QJsonValue& item) {
            return item[u"sourceUnread"].toBool() && (id.isEmpty() || item[u"id"] == id);
        });
    };
    waitUntil([&] { return unread(piece) == 0; }, "the store knows that it was read");
    EXPECT_EQ(unread(chat), 1);

    window.click(QStringLiteral("inbox"));
    window.click(prefix + chat);
    window.await(QStringLiteral("supportPanel"));
    window.press(QStringLiteral("Esc"));
    window.click(QStringLiteral("section.notifications"));
    window.awaitPage(QStringLiteral("Notifications"));
    window.click(QStringLiteral("markAllRead"));
    waitUntil([&] { return unread({}) == 0; }, "the store knows that all were read");
    awaitBadge({}, 0);
    window.awaitGone(QStringLiteral("markAllRead"));
}

TEST_F(InboxJourney, CustomerServiceAnswersInItsPanelAndBesideIt)
{
    store.setSupport({{QStringLiteral("answers"), false}});
    open();
    // Nothing is asked while the conversation is on screen.
    const auto lookAtOnce = [this] {
        clock.advance(DesktopNotifier::watchedPause);
        awaitLook();
    };
    const auto awaitMessage = [this](const QString& text) {
        const QQuickItem* const panel = window.await(QStringLiteral("supportPanel"));
        waitUntil(
            [&] {
                return std::ranges::any_of(window.findAll(QStringLiteral("text"), panel),
                                           [&](const QQuickItem* item) { return item->property("text") == text; });
            },
            text.toStdString() + " stands in the panel");
    };
    const auto said = [this] {
        return store.conversations().last()[u"messages"].toArray();
    };
    window.awaitPage(QStringLiteral("MyLST"));
    window.press(QStringLiteral("F10"));
    window.await(QStringLiteral("menuBar"));
    for (const char* const key :
         {"Right", "Right", "Right", "Right", "Down", "Return"}) // the last menu, and its first command
        window.press(QString::fromLatin1(key));
    const QQuickItem* const panel = window.await(QStringLiteral("supportPanel"));
    window.awaitFocus(QStringLiteral("input"));
    window.type(QStringLiteral("Where is my order?"));
    window.press(QStringLiteral("Return"));
    awaitMessage(QStringLiteral("Where is my order?"));
    waitUntil([&] { return said().size() == 1; }, "the message arrives");

    const QString picture = folder.filePath(QStringLiteral("hem.png"));
    QImage(40, 30, QImage::Format_RGB32).save(picture);
    shop->model().support()->attach(QUrl::fromLocalFile(picture));
    window.await(QStringLiteral("attachedFile"), panel);
    window.click(QStringLiteral("send"));
    waitUntil([&] { return said().size() == 2; }, "the file arrives");
    EXPECT_EQ(said().last()[u"attachments"][0][u"name"], QStringLiteral("hem.png"));

    const auto reply = [this](const QString& body) {
        store.replyFromSupport({{QStringLiteral("body"), body},
                                {QStringLiteral("createdAt"), clock.now().addSecs(1).toString(Qt::ISODate)}});
    };
    reply(QStringLiteral("It is on its way."));
    clock.advance(SupportChatModel::pollInterval);
    awaitMessage(QStringLiteral("It is on its way."));
    lookAtOnce();
    EXPECT_EQ(posted(), QStringList()) << "it was seen";

    window.press(QStringLiteral("Esc"));
    window.awaitGone(QStringLiteral("supportPanel"));
    reply(QStringLiteral("It comes today."));
    look();
    awaitBanner(QStringLiteral("Customer Service"));
    window.awaitText(QStringLiteral("It comes today."), window.await(banner));
    EXPECT_EQ(posted(), QStringList{QStringLiteral("Customer Service")});
    window.click(window.await(QStringLiteral("action"), window.await(banner)));
    awaitMessage(QStringLiteral("It comes today."));
    window.awaitGone(banner);
    lookAtOnce();
    EXPECT_EQ(posted().size(), 1);
}

} // namespace

} // namespace loom
