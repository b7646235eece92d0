#include "commerce/CartStore.h"
#include "commerce/WishlistStore.h"
#include "kit/Journey.h"
#include "stylist/MiraChatModel.h"
#include "stylist/MiraLookModel.h"
#include "support/FakeClock.h"

#include <QFile>
#include <QTemporaryDir>

#include <filesystem>

namespace loom
{

namespace
{

const QString dress = QStringLiteral("Sabine bias slip dress");
const QString dressPage = QStringLiteral("/products/sabine-bias-slip-dress");
const QString miraPage = QStringLiteral("/pages/mira");
const QString odile = QStringLiteral("odile-tiered-dress");
const QString blazer = QStringLiteral("linden-tailored-blazer");
const QString unconfirmed = QStringLiteral("This message has not been confirmed. You can try again.");
const QString ines = QStringLiteral("ines.marinho@example.com");
const QString messagePath = QStringLiteral("/api/support/widget/message");

/// Writing to the stylist, and what comes of it.
class MiraJourney : public Journey
{
protected:
    [[nodiscard]] MiraChatModel& mira() const { return *shop->model().mira(); }
    [[nodiscard]] int count() const { return mira().thread()->count(); }
    [[nodiscard]] static QQuickItem* field(const WindowDriver& window)
    {
        return window.await(QStringLiteral("input"), window.await(QStringLiteral("composer")));
    }
    void openDock() const
    {
        window.press(QStringLiteral("Ctrl+Shift+M"));
        waitUntil([this] { return field(window)->hasActiveFocus(); }, "the keyboard writes to her");
        waitUntil([this] { return !mira().isLoading(); }, "the thread is there");
    }
    void openPage(const Circumstances& circumstances = {})
    {
        start(miraPage, circumstances);
        window.awaitPage(QStringLiteral("Mira"));
        waitUntil([this] { return !mira().isLoading(); }, "the thread is there");
    }
    void say(const QString& words) const
    {
        window.click(field(window));
        window.type(words);
        window.press(QStringLiteral("Return"));
    }
    void awaitAnswer() const
    {
        waitUntil([this] { return !mira().isReplying(); }, "she has replied");
        window.awaitFrame();
    }
    void sayAndAwait(const QString& words) const
    {
        say(words);
        awaitAnswer();
        EXPECT_EQ(mira().failure(), QString());
    }
    /// What she says next.
    void script(const QJsonArray& next) { store.setStylist({{QStringLiteral("next"), next}}); }
    [[nodiscard]] QJsonObject lastMessage() { return store.messages().last().toObject(); }
    [[nodiscard]] QString lastBody() { return lastMessage()[u"body"].toString(); }
    [[nodiscard]] QVariant latest(MiraThreadModel::Role role, int row = 0) const
    {
        return mira().thread()->index(row).data(role);
    }
    [[nodiscard]] int timesShown(const QString& text) const
    {
        return static_cast<int>(window.texts(window.await(QStringLiteral("thread"))).count(text));
    }
    void fill(const QString& name, const QString& text) const
    {
        const QQuickItem* const input = window.await(QStringLiteral("input"), window.await(name));
        window.click(window.await(name));
        waitUntil([input] { return input->hasActiveFocus(); }, "the field has the keyboard");
        window.press(QStringLiteral("Ctrl+A"));
        window.type(text);
    }
    void signIn() const
    {
        window.click(QStringLiteral("account"));
        window.click(window.await(QStringLiteral("tab1"), window.await(QStringLiteral("modes"))));
        fill(QStringLiteral("email"), ines);
        fill(QStringLiteral("password"), QStringLiteral("atelier24"));
        window.press(QStringLiteral("Return"));
        window.awaitGone(QStringLiteral("signInSheet"));
        waitUntil([this] { return shop->model().auth()->isSignedIn(); }, "Ines is signed in");
    }
    void retryLast() const
    {
        const QQuickItem* const problem = window.await(QStringLiteral("problem"));
        window.click(window.await(QStringLiteral("retry"), problem->parentItem()->parentItem()));
    }
};

TEST_F(MiraJourney, AConversationEndsWithALookInTheBagInTheRightSizes)
{
    tolerateEngine();
    start(dressPage);
    window.awaitPage(dress);
    signIn();
    window.click(QStringLiteral("styleProduct"));
    window.awaitText(dress, window.await(QStringLiteral("context.product")));
    waitUntil([this] { return field(window)->hasActiveFocus() && !mira().isLoading(); }, "she is there");
    window.press(QStringLiteral("Return"));
    awaitAnswer();
    EXPECT_EQ(lastBody(), QStringLiteral("Help me style this: Sabine bias slip dress\n") + dressPage);
    const QJsonObject sent = lastMessage();
    EXPECT_EQ(sent[u"attachments"][0][u"handle"], QStringLiteral("sabine-bias-slip-dress"));
    EXPECT_EQ(sent[u"email"], ines);
    EXPECT_EQ(sent[u"name"], QStringLiteral("Ines Marinho"));
    EXPECT_TRUE(sent.contains(u"customer"));
    EXPECT_EQ(timesShown(QStringLiteral("Help me style this: Sabine bias slip dress")), 1);
    window.awaitGone(QStringLiteral("context.product"));

    // She asks for the shopper's measurements, and the sheet for them is at hand.
    sayAndAwait(QStringLiteral("Which size should I take?"));
    window.click(QStringLiteral("measurements"));
    window.click(window.await(QStringLiteral("segment1"), window.await(QStringLiteral("units"))));
    fill(QStringLiteral("feet"), QStringLiteral("2"));
    fill(QStringLiteral("inches"), QStringLiteral("7"));
    fill(QStringLiteral("weight"), QStringLiteral("137"));
    window.click(QStringLiteral("sendMeasurements"));
    window.awaitText(QStringLiteral("That height or weight doesn't look right. Check the numbers and the units."));
    fill(QStringLiteral("feet"), QStringLiteral("5"));
    window.press(QStringLiteral("Return"));
    window.awaitGone(QStringLiteral("measurementsSheet"));
    awaitAnswer();
    EXPECT_EQ(lastBody(), QStringLiteral("📏 My measurements: height 170.2cm, weight 62.1kg, I prefer a regular fit. "
                                         "What size should I take?"));

    // Back to the look: its sizes are those that suit her.
    window.click(QStringLiteral("look"));
    QQuickItem* const sheet = window.await(QStringLiteral("lookSheet"));
    QList<QQuickItem*> pieces;
    const auto isAdvised = [](const QQuickItem* piece) {
        return piece->property("phase") == MiraLookModel::Ready &&
               (piece->property("sizes").toList().size() < 2 || !piece->property("recommendedSize").toString().isEmpty());
    };
    waitUntil(
        [&] {
            pieces = window.findAll(QStringLiteral("lookPiece."), sheet);
            return pieces.size() > 1 && std::ranges::all_of(pieces, isAdvised);
        },
        "there is advice for every piece");
    for (const QQuickItem* const piece : std::as_const(pieces)) {
        for (const QQuickItem* const size : window.findAll(QStringLiteral("size."), piece)) {
            const bool isWanted = size->property("recommended").toBool() && !size->property("soldOut").toBool();
            EXPECT_EQ(size->property("selected").toBool(), isWanted) << size->objectName().toStdString();
        }
    }
    // One is chosen by hand, one stays away.
    QList<QQuickItem*> others = window.findAll(QStringLiteral("size."), pieces.front());
    others.removeIf([](const QQuickItem* size) {
        return size->property("selected").toBool() || size->property("soldOut").toBool();
    });
    ASSERT_FALSE(others.isEmpty());
    const QString byHand = others.front()->objectName().mid(5);
    window.click(others.front());
    EXPECT_EQ(pieces.front()->property("chosenSize"), byHand);
    window.click(window.await(QStringLiteral("leaveOut"), pieces.last()));
    EXPECT_TRUE(window.shows(QStringLiteral("%1 of %2 pieces").arg(pieces.size() - 1).arg(pieces.size()), sheet));
    QMap<QString, QString> wanted;
    for (const QQuickItem* const piece : pieces.first(pieces.size() - 1))
        wanted.insert(piece->property("handle").toString(), piece->property("chosenSize").toString());
    const QQuickItem* const action = window.await(QStringLiteral("lookAction"));
    window.click(QStringLiteral("lookAction"));
    waitUntil([action] { return action->property("paying").toBool(); }, "the look is in the bag");
    EXPECT_EQ(store.count(QStringLiteral("CartCreate")), 1);
    EXPECT_EQ(store.count(QStringLiteral("CartLinesAdd")), 0);
    QMap<QString, QString> bought;
    for (const CartLine& line : shop->model().cartStore().cart()->lines) {
        EXPECT_EQ(line.quantity, 1);
        const auto size = std::ranges::find(line.selectedOptions, QStringLiteral("Size"), &SelectedOption::name);
        bought.insert(line.productHandle, size == line.selectedOptions.end() ? QString() : size->value);
    }
    EXPECT_EQ(bought, wanted);

    waitUntil([action] { return !action->property("locked").toBool(); }, "a double click is over");
    window.click(QStringLiteral("lookAction"));
    const WindowDriver checkout = shop->checkoutWindow();
    checkout.awaitGone(QStringLiteral("opening"));
    window.awaitGone(QStringLiteral("lookSheet"));
}

TEST_F(MiraJourney, WhatTheShopperCannotSeeInTheirWordsGoesAlongByteForByte)
{
    start(dressPage);
    window.awaitPage(dress);
    for (const ProductVariant& variant : shop->variants(blazer)) {
        if (variant.availableForSale && !shop->model().cartStore().cart()) {
            shop->leaveCart({{.merchandiseId = variant.id, .quantity = 1}});
            shop->model().cartStore().refresh();
            waitUntil([this] { return shop->model().cartStore().cart().has_value(); }, "the bag is there");
        }
    }
    window.click(QStringLiteral("saveProduct"));
    openDock();
    window.click(QStringLiteral("weather"));
    fill(QStringLiteral("city"), QStringLiteral("Nowhere at all"));
    window.press(QStringLiteral("Return"));
    waitUntil([this] { return !shop->model().weather()->failure().isEmpty(); }, "there is no such city");
    fill(QStringLiteral("city"), QStringLiteral("nyc"));
    window.press(QStringLiteral("Return"));
    window.awaitText(QStringLiteral("6 °C · New York"), window.await(QStringLiteral("context.weather")));
    window.press(QStringLiteral("Esc"));
    window.awaitGone(QStringLiteral("shareWeather"));
    window.click(QStringLiteral("wardrobe"));
    window.click(QStringLiteral("piece.") + blazer);
    window.click(QStringLiteral("piece.sabine-bias-slip-dress"));
    window.click(QStringLiteral("doneWardrobe"));
    window.awaitGone(QStringLiteral("miraWardrobe"));
    sayAndAwait(QStringLiteral("What is missing?"));
    const QString weather = QStringLiteral("[Weather: 6°C Partly cloudy in New York]");
    EXPECT_EQ(lastBody(),
              QStringLiteral("What is missing?\n\n[MY WARDROBE — style me using THESE pieces first, only suggest "
                             "something new if a slot is truly missing: Linden tailored blazer [outerwear/cart]; "
                             "Sabine bias slip dress [dress/wishlist]]\n") +
                  weather);
    EXPECT_EQ(timesShown(QStringLiteral("What is missing?")), 1);
    // A guest tells no more than this.
    EXPECT_EQ(lastMessage().keys(), QStringList({"attachments", "body", "guide", "lang", "visitorId", "visitorToken"}));

    // What is taken away stays away.
    window.click(QStringLiteral("context.wardrobe"));
    mira().anchorLook(blazer, QStringLiteral("Linden [tailored] blazer"));
    window.await(QStringLiteral("context.anchor"));
    sayAndAwait(QStringLiteral("And around it?"));
    EXPECT_EQ(lastBody(), QStringLiteral("And around it?\n[Build the look around: Linden (tailored) blazer]\n") + weather);
    window.click(QStringLiteral("context.anchor"));
    window.click(QStringLiteral("context.weather"));
    sayAndAwait(QStringLiteral("Only this"));
    EXPECT_EQ(lastBody(), QStringLiteral("Only this"));
}

/// Time passes only while a test lets it.
class MiraFailureJourney : public MiraJourney
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

TEST_F(MiraJourney, WhatWasWrittenOutlivesACrashAndIsNeverSaidTwice)
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
    start(miraPage, {.folder = crashed.path()});
    window.awaitText(lost);
    window.awaitText(QStringLiteral("Hello"));
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
