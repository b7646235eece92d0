#include "app/AppLifecycle.h"
#include "kit/Journey.h"
#include "kit/Warnings.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QtTest>

namespace loom
{

namespace
{

const QString ines = QStringLiteral("ines.marinho@example.com");
const QString password = QStringLiteral("atelier24");

/// In and out of an account. Whatever a journey here types or is given must not stand in any line of the log.
class AccountJourney : public Journey
{
protected:
    void SetUp() override
    {
        Journey::SetUp();
        static_cast<void>(takeLog());
    }
    void TearDown() override
    {
        if (shop && shop->model().auth()->session())
            secrets.append(shop->model().auth()->appToken());
        for (const QString& line : takeLog()) {
            for (const QString& secret : std::as_const(secrets))
                EXPECT_FALSE(line.contains(secret)) << line.toStdString();
        }
        Journey::TearDown();
    }

    void openSheet() const
    {
        window.click(QStringLiteral("account"));
        window.await(QStringLiteral("signInSheet"));
    }
    void fill(const QString& field, const QString& text) const
    {
        const QQuickItem* const input = window.await(QStringLiteral("input"), window.await(field));
        window.click(window.await(field));
        waitUntil([input] { return input->hasActiveFocus(); }, "the field has the keyboard");
        window.press(QStringLiteral("Ctrl+A"));
        window.type(text);
    }
    void awaitSignedIn(const QString& name) const
    {
        window.awaitGone(QStringLiteral("signInSheet"));
        waitUntil([&] { return shop->model().auth()->name() == name; }, "somebody is signed in");
    }
    void signInWithPassword()
    {
        secrets.append({ines, password});
        openSheet();
        window.click(window.await(QStringLiteral("tab1"), window.await(QStringLiteral("modes"))));
        fill(QStringLiteral("email"), ines);
        fill(QStringLiteral("password"), password);
        window.press(QStringLiteral("Return"));
        awaitSignedIn(QStringLiteral("Ines Marinho"));
    }
    /// The way back that a provider's page takes, once a way to sign in there was chosen.
    QString comeBackFrom(const QString& provider)
    {
        const qsizetype before = shop->openedInBrowser().size();
        window.click(QStringLiteral("provider.") + provider);
        waitUntil([&] { return shop->openedInBrowser().size() > before; }, "the browser opens");
        const AuthStore::WebAuth& waiting = *shop->model().auth()->webAuth();
        secrets.append({waiting.key.verifier, waiting.key.state});
        const QString back =
            store.redirectOf(QUrl(shop->openedInBrowser().last().toString() + QStringLiteral("&choice=ines")))
                .toString();
        if (const QString code = QUrlQuery(QUrl(back)).queryItemValue(QStringLiteral("code")); !code.isEmpty())
            secrets.append(code);
        return back;
    }

    QStringList secrets;
    QTemporaryDir folder;
};

TEST_F(AccountJourney, ACodeByEmailSignsInAndNothingIsLostOnTheWay)
{
    const QString email = QStringLiteral("new.shopper@example.com");
    start(QStringLiteral("/account"));
    window.awaitText(QStringLiteral("Sign in"));
    openSheet();
    window.awaitText(QStringLiteral("Sign in to your account"));
    fill(QStringLiteral("email"), QStringLiteral("nobody@nowhere"));
    window.press(QStringLiteral("Return"));
    window.awaitText(QStringLiteral("Enter a valid email address."));
    fill(QStringLiteral("email"), email);
    window.press(QStringLiteral("Return"));
    window.awaitText(QStringLiteral("We sent a code to %1. It can take a minute to arrive.").arg(email));
    const QString code = store.code(email);
    ASSERT_EQ(code.size(), 6);
    secrets = {email, code};

    // A wrong one, and the sheet closed and opened again.
    window.awaitFocus(QStringLiteral("input"));
    window.type(code == QStringLiteral("000000") ? QStringLiteral("111111") : QStringLiteral("000000"));
    window.press(QStringLiteral("Return"));
    window.awaitText(QStringLiteral("That code is wrong or has expired. Request a new one."));
    window.press(QStringLiteral("Ctrl+T"));
    EXPECT_EQ(shop->model().windows().front()->tabs()->count(), 1) << "a key reached what the sheet lies over";
    window.press(QStringLiteral("Esc"));
    window.awaitGone(QStringLiteral("signInSheet"));
    openSheet();
    window.awaitText(QStringLiteral("We sent a code to %1. It can take a minute to arrive.").arg(email));

    // Pasted as it stands in a letter.
    const QQuickItem* const field = window.await(QStringLiteral("input"), window.await(QStringLiteral("code")));
    waitUntil([field] { return field->hasActiveFocus(); }, "the field has the keyboard");
    QGuiApplication::clipboard()->setText(QStringLiteral(" %1 %2\n").arg(code.left(3), code.mid(3)));
    window.press(QStringLiteral("Ctrl+V"));
    window.press(QStringLiteral("Return"));
    window.awaitGone(QStringLiteral("signInSheet"));
    window.awaitText(email);
    EXPECT_TRUE(shop->model().auth()->isSignedIn());

    window.click(QStringLiteral("signOut"));
    window.awaitText(QStringLiteral(
        "Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in."));
    window.click(QStringLiteral("confirmSignOut"));
    window.awaitText(QStringLiteral("Create account"));
    EXPECT_FALSE(shop->model().auth()->isSignedIn());
}

TEST_F(AccountJourney, APasswordSignsInAndTheOrdersAreThere)
{
    start(QStringLiteral("/account"), {.folder = folder.path()});
    openSheet();
    window.click(window.await(QStringLiteral("tab1"), window.await(QStringLiteral("modes"))));
    fill(QStringLiteral("email"), ines);
    fill(QStringLiteral("password"), QStringLiteral("atelier25"));
    window.press(QStringLiteral("Return"));
    window.awaitText(QStringLiteral("That email and password don't match. Try again or sign in with an email code."));
    fill(QStringLiteral("password"), password);
    secrets = {ines, password, QStringLiteral("atelier25")};
    window.press(QStringLiteral("Return"));
    awaitSignedIn(QStringLiteral("Ines Marinho"));

    window.click(QStringLiteral("way.orders"));
    window.awaitPage(QStringLiteral("Orders"));
    window.await(QStringLiteral("orders"));
    waitUntil([this] { return window.findAll(QStringLiteral("order.LST")).size() > 2; }, "the orders are there");
    QQuickItem* const first = window.findInOrder(QStringLiteral("order.LST")).front();
    const QString name = first->objectName().mid(6);
    window.click(first);
    window.awaitPage(QStringLiteral("Order ") + name);
    window.press(QStringLiteral("Alt+Left"));
    window.awaitPage(QStringLiteral("Orders"));

    // The next start is signed in, and what was there shows at once, also without a line.
    store.fail({.kind = QStringLiteral("drop"), .path = QStringLiteral("/api/support/widget/orders")});
    shop.reset();
    start(QStringLiteral("/account"), {.folder = folder.path()});
    window.awaitText(QStringLiteral("Ines Marinho"));
    window.click(QStringLiteral("way.orders"));
    waitUntil([this] { return window.findAll(QStringLiteral("order.LST")).size() > 2; }, "the orders are there");

    // A session that the backend has ended ends here, and nothing of it is left on this machine.
    secrets.append(shop->model().auth()->appToken());
    store.reset();
    window.press(QStringLiteral("Ctrl+R"));
    window.awaitText(QStringLiteral("Sign in"));
    waitUntil([this] { return !shop->model().auth()->isSaving(); }, "the session is forgotten");
    EXPECT_FALSE(shop->model().auth()->isSignedIn());
    const QDir data(folder.filePath(QStringLiteral("data")));
    EXPECT_EQ(data.entryList({QStringLiteral(".secret-*"), QStringLiteral("snap-orders*")}, QDir::Files | QDir::Hidden),
              QStringList());
}

TEST_F(AccountJourney, AProviderComesBackByTheDesktopOrByHand)
{
    start(QStringLiteral("/account"));
    AppLifecycle lifecycle(shop->model(), shop->windows(), *std::make_unique<SystemClock>());
    openSheet();
    const QString back = comeBackFrom(QStringLiteral("google"));
    window.awaitText(QStringLiteral("Continue with Google"));
    secrets.append(back);
    lifecycle.handleOpen(QStringList{back});
    awaitSignedIn(QStringLiteral("Ines Marinho"));
    EXPECT_EQ(shop->model().windows().front()->tabs()->count(), 1);

    window.click(QStringLiteral("signOut"));
    window.click(QStringLiteral("confirmSignOut"));
    window.awaitText(QStringLiteral("Create account"));
    openSheet();
    store.setAuth({{QStringLiteral("error"), QStringLiteral("denied")}});
    lifecycle.handleOpen(QStringList{comeBackFrom(QStringLiteral("apple"))});
    window.awaitText(QStringLiteral("Sign-in was cancelled."));
    store.setAuth({{QStringLiteral("error"), QJsonValue()}, {QStringLiteral("state"), QStringLiteral("wrong")}});
    lifecycle.handleOpen(QStringList{comeBackFrom(QStringLiteral("facebook"))});
    window.awaitText(QStringLiteral("Sign-in failed. Try again."));
    store.setAuth({{QStringLiteral("state"), QStringLiteral("same")}});

    // By hand, over the address that stands in the browser.
    const QString pasted = comeBackFrom(QStringLiteral("apple"));
    fill(QStringLiteral("callback"), QStringLiteral("not a link"));
    window.click(QStringLiteral("finish"));
    EXPECT_TRUE(shop->model().auth()->webAuth());
    const QQuickItem* const input = window.await(QStringLiteral("input"), window.await(QStringLiteral("callback")));
    waitUntil([input] { return input->isEnabled(); }, "the field");
    fill(QStringLiteral("callback"), QString());
    QGuiApplication::clipboard()->setText(pasted + QLatin1Char('\n'));
    window.press(QStringLiteral("Ctrl+V"));
    window.click(QStringLiteral("finish"));
    awaitSignedIn(QStringLiteral("Ines Marinho"));
}

TEST_F(AccountJourney, AnAccountIsMadeAndDeleted)
{
    const QString email = QStringLiteral("short.stay@example.com");
    start(QStringLiteral("/account"));
    window.click(QStringLiteral("createAccount"));
    window.awaitText(QStringLiteral("Create your account"));
    fill(QStringLiteral("email"), email);
    window.press(QStringLiteral("Return"));
    window.awaitText(QStringLiteral("Verification code"));
    const QString code = store.code(email);
    secrets = {email, code, QStringLiteral("hunter2hunter2")};
    window.awaitFocus(QStringLiteral("input"));
    fill(QStringLiteral("code"), code);
    fill(QStringLiteral("password"), QStringLiteral("hunter2hunter2"));
    fill(QStringLiteral("name"), QStringLiteral("Short Stay"));
    window.press(QStringLiteral("Return"));
    awaitSignedIn(QStringLiteral("Short Stay"));

    window.click(QStringLiteral("deleteAccount"));
    window.await(QStringLiteral("deleteAccountSheet"));
    EXPECT_FALSE(window.await(QStringLiteral("confirmDelete"))->isEnabled());
    fill(QStringLiteral("typedEmail"), QStringLiteral(" Short.Stay@Example.com "));
    window.click(QStringLiteral("confirmDelete"));
    window.awaitText(QStringLiteral("Create account"));
    EXPECT_FALSE(shop->model().auth()->isSignedIn());
}

} // namespace

} // namespace loom
