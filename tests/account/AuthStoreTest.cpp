#include "AccountFixture.h"
#include "account/RemovalGroups.h"

#include <QCryptographicHash>
#include <QDir>
#include <QUrlQuery>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

const QString jane = QStringLiteral("Jane@mail.example");
const QString mary = QStringLiteral("mary@mail.example");

class AuthStoreTest : public AccountFixture
{
protected:
    ~AuthStoreTest() override
    {
        auth.reset();
        drainEvents();
    }

    void make()
    {
        auth = std::make_unique<AuthStore>(services());
        QObject::connect(auth.get(), &AuthStore::webAuthFinished, auth.get(),
                         [this](const std::optional<SignInFailure>& failure) { outcomes.push_back(failure); });
        auth->load();
        drainEvents();
    }
    void keep(const QByteArray& bytes) { secrets.secrets().insert(QStringLiteral("lst_auth"), bytes); }
    [[nodiscard]] QByteArray kept() { return secrets.secrets().value(QStringLiteral("lst_auth")); }
    [[nodiscard]] static QByteArray sessionUntil(const QDateTime& end)
    {
        return "{\"token\":\"token-1\",\"expiresAt\":\"" + end.toString(Qt::ISODate).toUtf8() +
               "\",\"customer\":{\"numericId\":\"7\",\"email\":\"jane@mail.example\",\"displayName\":\"Jane\"}}";
    }
    /// Every file that belongs to an account, and one that does not.
    void writeFiles()
    {
        for (const QString& name : RemovalGroups::stylist() + RemovalGroups::account() + RemovalGroups::shopper() +
                                       QStringList{QStringLiteral("lst_windows")})
            folder.save(name, QJsonObject{});
        folder.waitUntilWritten();
    }
    [[nodiscard]] QStringList files()
    {
        folder.waitUntilWritten();
        QStringList names = QDir(directory.path()).entryList(QDir::Files, QDir::Name);
        names.removeAll(QStringLiteral("lst_preferences.json"));
        return names;
    }
    [[nodiscard]] QString callback(const QString& items) const
    {
        return QStringLiteral("wrenfieldstore://auth?") +
               QString(items).replace(QLatin1String("STATE"), auth->webAuth()->key.state);
    }
    void allowRevoke()
    {
        server.allow(path("/shopify-checkout/revoke"), [](auto&) { return Answer::json({}); });
    }

    std::unique_ptr<AuthStore> auth;
    std::vector<std::optional<SignInFailure>> outcomes;
};

TEST_F(AuthStoreTest, ASessionIsKeptAndComesBackUntilItsEnd)
{
    make();
    EXPECT_EQ(auth->phase(), AuthStore::Phase::SignedOut);
    EXPECT_TRUE(posted.empty());
    ASSERT_TRUE(signInAs(*auth, jane));
    const QJsonObject request = server.requests().back().json();
    EXPECT_EQ(request.keys(),
              (QStringList{QStringLiteral("email"), QStringLiteral("password"), QStringLiteral("publicKey")}));
    EXPECT_EQ(posted, std::vector{Announcement::AuthChanged});
    const QDateTime end = clock.now().addSecs(5'184'000);
    EXPECT_EQ(kept(), R"({"customer":{"displayName":"Jane","email":"Jane@mail.example","numericId":""},"expiresAt":")" +
                          end.toString(Qt::ISODateWithMs).toUtf8() + R"(","token":"token-1"})");

    clock.setNow(end.addSecs(-1));
    make();
    EXPECT_EQ(auth->appToken(), QStringLiteral("token-1"));
    EXPECT_EQ(posted.size(), 2U);
    clock.advance(1s);
    EXPECT_EQ(auth->phase(), AuthStore::Phase::SignedOut);
    EXPECT_TRUE(kept().isEmpty());
    EXPECT_EQ(posted.size(), 3U);
}

TEST_F(AuthStoreTest, WhatIsKeptAndCannotCountIsThrownAway)
{
    const QDateTime now = clock.now();
    for (const QByteArray& bytes :
         {sessionUntil(now), sessionUntil(now.addSecs(-1)), sessionUntil(now.addDays(61)) /* the clock was set back */,
          sessionUntil(now.addDays(1)).chopped(5), QByteArray("[]"), QByteArray("{\"token\":\"\"}"),
          QByteArray("\xff")}) {
        keep(bytes);
        make();
        EXPECT_EQ(auth->phase(), AuthStore::Phase::SignedOut) << bytes.constData();
        EXPECT_FALSE(secrets.secrets().contains(QStringLiteral("lst_auth"))) << bytes.constData();
    }
    EXPECT_TRUE(posted.empty());
}

TEST_F(AuthStoreTest, AStoreThatIsLockedOrSilentLeavesTheSessionUnknown)
{
    writeFiles();
    const QStringList before = files();
    secrets.setFailing(FakeSecureStore::Operation::Store); // locked: reads as empty, refuses writes
    make();
    EXPECT_EQ(auth->phase(), AuthStore::Phase::SignedOut); // nobody ever signed in: nobody is asked for a password
    EXPECT_EQ(secrets.calls(), QStringList{QStringLiteral("read lst_auth")});
    preferences.set(preferences::lastAccountEmail, jane.toLower());
    make();
    EXPECT_EQ(auth->phase(), AuthStore::Phase::Unknown);
    EXPECT_TRUE(auth->isStuck());

    secrets.setFailing(FakeSecureStore::Operation::Store, false);
    secrets.setHolding(true);
    keep(sessionUntil(clock.now().addDays(1)));
    auth->load();
    EXPECT_FALSE(auth->isStuck());
    Running<void> waiting(auth->known(5s, {}));
    clock.advance(4999ms);
    EXPECT_FALSE(waiting.isDone());
    clock.advance(1ms);
    EXPECT_TRUE(waiting.isDone());
    EXPECT_TRUE(auth->isStuck());
    EXPECT_TRUE(posted.empty());
    EXPECT_EQ(files(), before);

    // It answers after all.
    Running<void> patient(auth->known(1h, {}));
    secrets.setHolding(false);
    secrets.release();
    drainEvents();
    EXPECT_TRUE(patient.isDone());
    EXPECT_TRUE(auth->isSignedIn());
    EXPECT_FALSE(auth->isStuck());
}

TEST_F(AuthStoreTest, SigningOutTakesTheAccountsFilesAndAnotherAccountTheShoppersToo)
{
    allowRevoke();
    make();
    ASSERT_TRUE(signInAs(*auth, jane));
    writeFiles();
    QStringList told;
    QObject::connect(auth.get(), &AuthStore::filesAboutToGo, auth.get(),
                     [&](const QStringList& names) { told += names; });
    auth->signOut();
    QStringList left{QStringLiteral("lst_followed_brands.json"),  QStringLiteral("lst_recently_viewed.json"),
                     QStringLiteral("lst_windows.json"),          QStringLiteral("lst_wishlist.json"),
                     QStringLiteral("vessa-compose-draft.json"),  QStringLiteral("vessa-note-history.json"),
                     QStringLiteral("vessa-recent-searches.json")};
    EXPECT_EQ(files(), left);
    EXPECT_EQ(told, RemovalGroups::stylist() + RemovalGroups::account());
    EXPECT_TRUE(kept().isEmpty());
    server.waitForRequests(2);
    EXPECT_EQ(server.requests().back().json().value(QStringLiteral("appToken")), QStringLiteral("token-1"));

    // The same address in other letters is nobody else.
    writeFiles();
    ASSERT_TRUE(signInAs(*auth, jane.toUpper()));
    EXPECT_FALSE(auth->switchedAccount());
    EXPECT_EQ(files().size(), left.size() + RemovalGroups::account().size());

    writeFiles();
    ASSERT_TRUE(signInAs(*auth, mary));
    EXPECT_TRUE(auth->switchedAccount());
    EXPECT_EQ(files(), QStringList{QStringLiteral("lst_windows.json")});
    EXPECT_EQ(preferences.value(preferences::lastAccountEmail), mary);
}

TEST_F(AuthStoreTest, OnlyARefusalOfTheCurrentTokenSignsOut)
{
    allowRevoke();
    make();
    server.expect(path("/app-auth/login"), refused(401, QStringLiteral("UNAUTHORIZED")));
    ASSERT_FALSE(run(auth->signIn(jane, QStringLiteral("wrong-password"))));
    ASSERT_TRUE(signInAs(*auth, jane));
    server.expect(path("/late"), refused(401, QStringLiteral("REAUTH")).pauseAfter(0));
    Running<ApiResult<QByteArray>> late(auth->widget().post(QStringLiteral("/late"), {}, {}, {}));
    server.waitForRequests(3);
    ASSERT_TRUE(signInAs(*auth, jane, QStringLiteral("token-2")));
    server.proceed();
    EXPECT_FALSE(late.result());
    server.expect(path("/app-auth/login"), refused(401, QStringLiteral("REAUTH")));
    EXPECT_FALSE(run(auth->signIn(mary, QStringLiteral("wrong-password"))));
    EXPECT_EQ(auth->appToken(), QStringLiteral("token-2"));

    server.expect(path("/orders"), refused(401, QStringLiteral("REAUTH")));
    EXPECT_FALSE(run(auth->widget().post(QStringLiteral("/orders"), {}, {}, {})));
    EXPECT_EQ(auth->phase(), AuthStore::Phase::SignedOut);
}

TEST_F(AuthStoreTest, AProviderIsAskedWithAProofThatOnlyTheExchangeReveals)
{
    make();
    auth->signIn(SocialProvider::Google);
    ASSERT_EQ(opened.size(), 1);
    const ProofKey key = auth->webAuth()->key;
    EXPECT_TRUE(opened.first().toString().startsWith(
        server.base() + QStringLiteral("/api/support/widget/app-auth/oauth/google/start?publicKey=key-1&cc=")));
    const QUrlQuery query(opened.first());
    EXPECT_EQ(query.queryItemValue(QStringLiteral("as")), key.state);
    EXPECT_EQ(query.queryItemValue(QStringLiteral("cc")), challengeOf(key.verifier));

    server.expect(path("/app-auth/oauth/exchange"), Answer::json({{QStringLiteral("token"), QStringLiteral("token-9")},
                                                                  {QStringLiteral("numericId"), 77},
                                                                  {QStringLiteral("email"), jane},
                                                                  {QStringLiteral("name"), QJsonValue()}}));
    EXPECT_TRUE(auth->takeCallback(callback(QStringLiteral("code=c%2B1&state=STATE"))));
    EXPECT_TRUE(
        auth->takeCallback(QStringLiteral("WrenfieldStore://auth?code=again&state=") + key.state)); // and dropped
    waitUntil([this] { return !outcomes.empty(); }, "the exchange");
    EXPECT_EQ(outcomes, (std::vector<std::optional<SignInFailure>>{std::nullopt}));
    const QJsonObject sent = server.onlyRequest().json();
    EXPECT_EQ(sent.value(QStringLiteral("code")), QStringLiteral("c+1"));
    EXPECT_EQ(sent.value(QStringLiteral("verifier")), key.verifier);
    EXPECT_EQ(auth->session()->customer, (Customer{QStringLiteral("77"), jane, QString()}));
    EXPECT_FALSE(auth->takeCallback(QStringLiteral("loomstreet://products/coat")));
}

TEST_F(AuthStoreTest, ACallbackThatIsNotTheOneAwaitedIsNeverExchanged)
{
    make();
    using Reason = SignInFailure::Reason;
    const std::vector<std::pair<QString, Reason>> callbacks{
        {QStringLiteral("code=1&state=other"), Reason::ProviderFailed},
        {QStringLiteral("code=1"), Reason::ProviderFailed},
        {QStringLiteral("state=STATE"), Reason::ProviderFailed},
        {QStringLiteral("code=1&state=STATE&state=STATE"), Reason::ProviderFailed},
        {QStringLiteral("code=1&code=2&state=STATE"), Reason::ProviderFailed},
        {QStringLiteral("error=denied&code=1&state=STATE"), Reason::ProviderCancelled},
        {QStringLiteral("error=no_email"), Reason::ProviderNoEmail},
        {QStringLiteral("error=not_configured"), Reason::ProviderUnavailable},
        {QStringLiteral("error="), Reason::ProviderFailed},
    };
    for (const auto& [items, reason] : callbacks) {
        auth->signIn(SocialProvider::Apple);
        EXPECT_TRUE(auth->takeCallback(callback(items)));
        ASSERT_FALSE(outcomes.empty());
        EXPECT_EQ(outcomes.back()->reason, reason) << items.toStdString();
        EXPECT_FALSE(auth->isWebAuthRunning());
    }
    EXPECT_EQ(outcomes.size(), callbacks.size());

    server.expect(path("/app-auth/oauth/exchange"), refused(400, QStringLiteral("NO_SUCH_CODE")));
    auth->signIn(SocialProvider::Apple);
    auth->takeCallback(callback(QStringLiteral("code=1&state=STATE")));
    waitUntil([&] { return outcomes.size() > callbacks.size(); }, "the exchange");
    EXPECT_EQ(outcomes.back()->reason, Reason::ProviderFailed);
    EXPECT_FALSE(auth->isSignedIn());
}

TEST_F(AuthStoreTest, TheLastWordIsKeptHoweverSlowTheStoreIs)
{
    allowRevoke();
    network.setOffline(false);
    make();
    secrets.setHolding(true);
    ASSERT_TRUE(signInAs(*auth, jane));
    auth->signOut();
    ASSERT_TRUE(signInAs(*auth, mary, QStringLiteral("token-2")));
    EXPECT_TRUE(auth->isSaving());
    secrets.setHolding(false);
    secrets.release();
    drainEvents();
    EXPECT_FALSE(auth->isSaving());
    EXPECT_TRUE(kept().contains("token-2"));
    server.waitForRequests(3);
}

TEST_F(AuthStoreTest, ASessionThatWasSignedOutOfDoesNotComeBackFromAStoreThatRefusedToLetGoOfIt)
{
    allowRevoke();
    make();
    ASSERT_TRUE(signInAs(*auth, jane));
    clock.setNow(clock.now().addSecs(-5)); // as clocks are put right
    EXPECT_EQ(auth->appToken(), QStringLiteral("token-1"));
    secrets.setFailing(FakeSecureStore::Operation::Remove);
    auth->signOut();
    server.waitForRequests(2);
    EXPECT_FALSE(kept().isEmpty());
    clock.setNow(clock.now().addSecs(10));
    make();
    EXPECT_EQ(auth->phase(), AuthStore::Phase::SignedOut);
}

TEST_F(AuthStoreTest, OneWayInEndsTheOther)
{
    make();
    server.expect(path("/app-auth/login"), signedIn(jane).pauseAfter(0));
    Running<ApiResult<void>> first(auth->signIn(jane, QStringLiteral("secret-password")));
    server.waitForRequests(1);
    auth->signIn(SocialProvider::Google);
    EXPECT_TRUE(first.result().error().isCancelled());
    server.proceed();
    EXPECT_TRUE(auth->isWebAuthRunning());
    ASSERT_TRUE(signInAs(*auth, mary, QStringLiteral("token-2")));
    EXPECT_FALSE(auth->isWebAuthRunning());
    EXPECT_EQ(auth->email(), mary);
}

TEST_F(AuthStoreTest, AnAccountIsDeletedOnlyWhenTheBackendSaysSo)
{
    make();
    ASSERT_TRUE(signInAs(*auth, jane));
    server.expect(path("/app-auth/delete"), refused(500, QStringLiteral("OOPS")));
    EXPECT_FALSE(run(auth->deleteAccount()));
    EXPECT_TRUE(auth->isSignedIn());
    server.expect(path("/app-auth/delete"), Answer::json({}));
    EXPECT_TRUE(run(auth->deleteAccount()));
    EXPECT_EQ(server.requests().back().json().value(QStringLiteral("appToken")), QStringLiteral("token-1"));
    EXPECT_EQ(auth->phase(), AuthStore::Phase::SignedOut);
    EXPECT_TRUE(kept().isEmpty());
}

TEST(SignInFailureTest, EachCodeHasItsSentenceInItsMode)
{
    using Reason = SignInFailure::Reason;
    const auto reason = [](int status, const char* code, SignInMode mode) {
        return signInFailure(
                   APIError{APIError::Http{.status = status, .code = QString::fromLatin1(code), .message = {}}}, mode)
            .reason;
    };
    for (const char* const code : {"UNAUTHORIZED", "BAD_INPUT", "NOT_FOUND", "REAUTH"}) {
        EXPECT_EQ(reason(401, code, SignInMode::Password), Reason::Password) << code;
        EXPECT_EQ(reason(401, code, SignInMode::Code), Reason::General) << code;
        EXPECT_EQ(reason(401, code, SignInMode::Create), Reason::General) << code;
    }
    EXPECT_EQ(reason(400, "EMAIL_INVALID", SignInMode::Create), Reason::Email);
    EXPECT_EQ(reason(400, "CODE_INVALID", SignInMode::Code), Reason::Code);
    EXPECT_EQ(reason(400, "NO_SUCH_CODE", SignInMode::Create), Reason::Code);
    EXPECT_EQ(reason(429, "RATE_LIMITED", SignInMode::Password), Reason::TooManyAttempts);
}

TEST(SignInFailureTest, AnAddressHasOneAtAndADotBehindIt)
{
    for (const char* const address : {"a@b.c", "j.d+x@mail.example", "ü@ö.example"})
        EXPECT_TRUE(isEmailAddress(QString::fromUtf8(address))) << address;
    for (const char* const address :
         {"", "a@b", "@b.c", "a@.c@d.e", "a b@c.d", "a@b.c\n", " a@b.c", "a@b.", "a\x01@b.c", "a\xC2\xA0@b.c"})
        EXPECT_FALSE(isEmailAddress(QString::fromUtf8(address))) << address;
    EXPECT_FALSE(isEmailAddress(QString(10'000, QLatin1Char('a')) + QStringLiteral("@b.c")));
}

TEST(ProofKeyTest, TheChallengeIsThatOfTheStandard)
{
    // RFC 7636, appendix B.
    EXPECT_EQ(challengeOf(QStringLiteral("dBjftJeZ4CVP-mB92K27uhbUJU1p1r_wW1gFWFOEjXk")),
              QStringLiteral("E9Melhoa2OwvFrEMTJguCHaoeK1t8URWbuGJSstw-cM"));
    SystemRandom random;
    const QRegularExpression alphabet(QStringLiteral("^[A-Za-z0-9_-]+$"));
    for (int i = 0; i < 20; ++i) {
        const ProofKey key = makeProofKey(random);
        EXPECT_EQ(key.verifier.size(), 64);
        EXPECT_EQ(key.state.size(), 24);
        EXPECT_TRUE(alphabet.match(key.verifier + key.state).hasMatch());
    }
}

} // namespace
