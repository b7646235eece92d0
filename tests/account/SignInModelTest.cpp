#include "account/SignInModel.h"

#include "AccountFixture.h"
#include "account/AccountRemoval.h"

using namespace loom;
using namespace std::chrono_literals;

namespace
{

const QString jane = QStringLiteral("jane@mail.example");

class SignInModelTest : public AccountFixture
{
protected:
    SignInModelTest()
    {
        auth.load();
        drainEvents();
    }
    ~SignInModelTest() override { drainEvents(); }

    void submitted()
    {
        model.submit();
        waitUntil([this] { return !model.isBusy(); }, "the backend answers");
    }
    void sendCode()
    {
        server.expect(path("/app-auth/request-code"), Answer::json({}));
        model.setEmail(jane);
        submitted();
        ASSERT_TRUE(model.isCodeSent());
    }
    /// What the sheet says is wrong, field by field.
    [[nodiscard]] QStringList errors() const
    {
        QStringList texts;
        const auto take = [&texts](const char* field, const QString& text) {
            if (!text.isEmpty())
                texts.append(QLatin1String(field) + QStringLiteral(": ") + text);
        };
        take("email", model.emailError());
        take("code", model.codeError());
        take("password", model.passwordError());
        take("", model.generalError());
        take("link", model.pasteError());
        return texts;
    }

    AuthStore auth{services()};
    SignInModel model{auth, clock};
};

TEST_F(SignInModelTest, NothingIsSentBeforeItCanBeRight)
{
    const QString badEmail = QStringLiteral("email: Enter a valid email address.");
    for (const QString& email :
         {QString(), QStringLiteral("jane"), QStringLiteral("jane@mail"), QStringLiteral("jane@@mail.example"),
          QStringLiteral("ja ne@mail.example"), QStringLiteral("ja\u0007ne@mail.example"),
          QString(243, QLatin1Char('j')) + QStringLiteral("@mail.example"),
          QString(10240, QLatin1Char('@')) + QStringLiteral(".example")}) {
        model.setEmail(email);
        model.submit();
        EXPECT_EQ(errors(), QStringList{badEmail}) << email.left(40).toStdString();
    }
    model.setEmail(QStringLiteral(" ") + QString(241, QLatin1Char('j')) + QStringLiteral("@mail.example\n"));
    EXPECT_TRUE(model.isEmailValid());
    EXPECT_EQ(errors(), QStringList()); // typing takes the complaint back

    model.setMode(QStringLiteral("password"));
    model.setPassword(QStringLiteral("12345"));
    model.setEmail({});
    model.submit();
    EXPECT_EQ(errors(), (QStringList{badEmail, QStringLiteral("password: Enter your password. It has 6 or more "
                                                              "characters.")}));
    EXPECT_TRUE(server.requests().empty());
}

TEST_F(SignInModelTest, ACodeIsSentAndSignsIn)
{
    sendCode();
    submitted();
    EXPECT_EQ(errors(), QStringList{QStringLiteral("code: Enter the six digits of the code.")});

    server.expect(path("/app-auth/login-code"), refused(400, QStringLiteral("CODE_INVALID")));
    model.setCode(QStringLiteral(" 41\u00a092-0\n01 77"));
    EXPECT_EQ(model.code(), QStringLiteral("419200"));
    submitted();
    EXPECT_EQ(errors(), QStringList{QStringLiteral("code: That code is wrong or has expired. Request a new one.")});

    // Arabic figures are figures.
    model.setCode(QStringLiteral("\u0664\u0661\u0669\u0662\u0660\u0661"));
    EXPECT_EQ(errors(), QStringList());
    server.expect(path("/app-auth/login-code"), signedIn(jane));
    submitted();
    EXPECT_EQ(server.requests().back().body, R"({"code":"419201","email":"jane@mail.example","publicKey":"key-1"})");
    EXPECT_TRUE(auth.isSignedIn());
    EXPECT_EQ(model.email() + model.code() + model.codeSentTo(), QString());
}

TEST_F(SignInModelTest, AnotherCodeCanBeAskedForAfterAMinute)
{
    sendCode();
    model.resend();
    EXPECT_EQ(model.secondsToResend(), 60);
    clock.advance(1s);
    EXPECT_EQ(model.secondsToResend(), 59);
    clock.advance(58s + 999ms);
    model.resend();
    EXPECT_EQ(model.secondsToResend(), 1);
    EXPECT_EQ(server.requests().size(), 1U);

    clock.advance(1ms);
    model.setCode(QStringLiteral("419"));
    server.expect(path("/app-auth/request-code"), Answer::json({}));
    model.resend();
    EXPECT_EQ(model.code(), QString());
    waitUntil([this] { return !model.isBusy(); }, "the code is sent");
    EXPECT_EQ(model.secondsToResend(), 60);

    // The code goes with the address, not with the mode.
    model.setMode(QStringLiteral("create"));
    EXPECT_TRUE(model.isCodeSent());
    model.setEmail(QStringLiteral("mary@mail.example"));
    EXPECT_FALSE(model.isCodeSent());
    EXPECT_EQ(model.secondsToResend(), 0);
}

TEST_F(SignInModelTest, AnAccountIsMadeWithACodeAndAPassword)
{
    model.setMode(QStringLiteral("create"));
    sendCode();
    model.setCode(QStringLiteral("419200"));
    model.setPassword(QStringLiteral("short"));
    submitted();
    EXPECT_EQ(errors(), QStringList{QStringLiteral("password: Choose a password of 6 or more characters.")});
    model.setPassword(QStringLiteral("secret-password"));
    model.setName(QStringLiteral("  Jane  Doe "));
    server.expect(path("/app-auth/set-password"), signedIn(jane));
    submitted();
    EXPECT_EQ(server.requests().back().body,
              R"({"code":"419200","email":"jane@mail.example","name":"Jane Doe","password":"secret-password",)"
              R"("publicKey":"key-1"})");
    EXPECT_EQ(model.password() + model.name(), QString());
    EXPECT_EQ(model.mode(), QStringLiteral("code"));
}

TEST_F(SignInModelTest, WhatTheShopperLeftBehindIsNotComplainedAbout)
{
    server.expect(path("/app-auth/request-code"), Answer::silence());
    model.setEmail(jane);
    model.submit();
    server.waitForRequests(1);
    EXPECT_TRUE(model.isBusy());
    model.setEmail(QStringLiteral("mary@mail.example"));
    EXPECT_FALSE(model.isBusy());

    server.expect(path("/app-auth/request-code"), Answer::silence());
    model.submit();
    server.waitForRequests(2);
    model.signInWith(QStringLiteral("apple"));
    EXPECT_FALSE(model.isBusy());
    model.cancelProvider();
    clock.advance(20s);
    drainEvents();
    EXPECT_EQ(errors(), QStringList());
    EXPECT_FALSE(model.isCodeSent());
}

TEST_F(SignInModelTest, AProvidersLinkCanBePasted)
{
    model.signInWith(QStringLiteral("myspace"));
    EXPECT_TRUE(opened.isEmpty());
    model.signInWith(QStringLiteral("google"));
    EXPECT_EQ(model.providerName(), QStringLiteral("Google"));
    EXPECT_EQ(model.providerAddress(), QString::fromLatin1(opened.last().toEncoded()));

    model.pasteCallback(QStringLiteral("https://accounts.example/?code=c1"));
    EXPECT_EQ(errors(), QStringList{QStringLiteral("link: That is not the link your sign-in ended with. It begins "
                                                   "with “wrenfieldstore://”.")});
    EXPECT_TRUE(model.isWaitingForProvider());

    const auto link = [](const QString& state) {
        return QStringLiteral(" \n wrenfieldstore://auth?code=c1\n&state=%1 \r\n").arg(state);
    };
    model.pasteCallback(link(QStringLiteral("other")));
    EXPECT_EQ(errors(), QStringList{QStringLiteral(": Sign-in failed. Try again.")});
    EXPECT_FALSE(model.isProviderRunning());

    model.signInWith(QStringLiteral("google"));
    EXPECT_EQ(errors(), QStringList());
    server.expect(path("/app-auth/oauth/exchange"), Answer::json({{QStringLiteral("token"), QStringLiteral("token-1")},
                                                                  {QStringLiteral("email"), jane},
                                                                  {QStringLiteral("name"), QStringLiteral("Jane")}}));
    model.pasteCallback(link(auth.webAuth()->key.state));
    EXPECT_TRUE(model.isProviderRunning());
    EXPECT_FALSE(model.isWaitingForProvider());
    waitUntil([this] { return auth.isSignedIn(); }, "somebody is signed in");
    EXPECT_EQ(server.onlyRequest().json().value(QStringLiteral("code")), QStringLiteral("c1"));
}

TEST_F(SignInModelTest, AnAccountIsDeletedWhenItsAddressWasTyped)
{
    AccountRemoval removal(auth);
    ASSERT_TRUE(signInAs(auth, jane));
    removal.setTyped(QStringLiteral("jane@mail.exampl"));
    removal.remove();
    EXPECT_FALSE(removal.isBusy());

    const auto removed = [&](const Answer& answer) {
        server.expect(path("/app-auth/delete"), answer);
        removal.setTyped(QStringLiteral(" JANE@mail.example "));
        removal.remove();
        EXPECT_TRUE(removal.isBusy());
        waitUntil([&] { return !removal.isBusy(); }, "the backend answers");
    };
    removed(refused(500, QStringLiteral("GENERIC_FAILED")));
    EXPECT_NE(removal.errorText(), QString());
    EXPECT_TRUE(auth.isSignedIn());

    // Being signed out on the way must not look like success.
    server.allow(path("/shopify-checkout/revoke"), [](auto&) { return Answer::json({}); });
    removed(refused(401, QStringLiteral("REAUTH")));
    EXPECT_EQ(removal.outcome(), QStringLiteral("You were signed out before your account could be deleted. Sign in "
                                                "again to delete it."));
    ASSERT_TRUE(signInAs(auth, jane));
    EXPECT_EQ(removal.outcome(), QString());
    removed(Answer::json({}));
    EXPECT_EQ(removal.outcome(), QStringLiteral("Your account was deleted."));
}

} // namespace
