#pragma once

#include "account/AuthAPI.h"
#include "account/AuthSession.h"
#include "account/ProofKey.h"
#include "account/SignInFailure.h"
#include "commerce/CheckoutAuth.h"
#include "net/SessionSource.h"
#include "net/WidgetClient.h"
#include "net/Work.h"

#include <QObject>

#include <functional>

namespace loom
{

class Announcements;
class Clock;
class DataFolder;
class Preferences;
class SecureStore;
class SessionKeeper;

/// Who is signed in, and every way in and out. Owns the client of the backend, whose calls carry the session's token.
/// One per process; main thread.
class AuthStore final : public QObject, public SessionSource
{
    Q_OBJECT
    Q_PROPERTY(loom::AuthStore::Phase phase READ phase NOTIFY sessionChanged)
    Q_PROPERTY(bool isSignedIn READ isSignedIn NOTIFY sessionChanged)
    Q_PROPERTY(QString email READ email NOTIFY sessionChanged)
    Q_PROPERTY(QString displayName READ name NOTIFY nameChanged)
    Q_PROPERTY(bool isStuck READ isStuck NOTIFY stuckChanged)
    Q_PROPERTY(bool isWebAuthRunning READ isWebAuthRunning NOTIFY webAuthChanged)

public:
    enum class Phase {
        Unknown, ///< the secure store has not answered: neither guest nor signed in
        SignedOut,
        SignedIn,
    };
    Q_ENUM(Phase)

    /// A sign-in that waits for the shopper to come back from their browser.
    struct WebAuth {
        SocialProvider provider = SocialProvider::Apple;
        QUrl address; ///< where it began
        ProofKey key;
    };

    using Outcome = Result<void, SignInFailure>;

    /// What it needs; all of it outlives the store.
    struct Services {
        HttpTransport& transport;
        SecureStore& secrets;
        Preferences& preferences;
        DataFolder& folder;
        Clock& clock;
        Random& random;
        Announcements& announcements;
        std::function<void(const QUrl&)> openExternally;
        QString supportBase; ///< without a "/" at its end
        QString supportKey;
    };

    explicit AuthStore(Services services, QObject* parent = nullptr);
    ~AuthStore() override;

    [[nodiscard]] WidgetClient& widget() { return m_widget; }

    /// Reads the session kept from the last run. Calling it again while the phase is unknown asks anew.
    Q_INVOKABLE void load();

    [[nodiscard]] Phase phase() const { return m_phase; }
    [[nodiscard]] bool isSignedIn() const { return m_phase == Phase::SignedIn; }
    /// The secure store failed or keeps silent: nobody can sign in until it answers.
    [[nodiscard]] bool isStuck() const { return m_isStuck; }
    [[nodiscard]] const std::optional<AuthSession>& session() const { return m_session; }
    /// The last to sign in was not who had signed in before.
    [[nodiscard]] bool switchedAccount() const { return m_switchedAccount; }
    /// What the secure store is to keep is on its way there.
    [[nodiscard]] bool isSaving() const;
    /// Ends when it is known whether somebody is signed in, when `atMost` has passed, or at `stop`.
    [[nodiscard]] QCoro::Task<> known(std::chrono::milliseconds atMost, std::stop_token stop);

    [[nodiscard]] QString appToken() const override;
    [[nodiscard]] QString email() const override;
    [[nodiscard]] QString name() const override;
    void tokenRefused(const QString& appToken) override;

    // The ways in. One at a time: each ends those before it, which then come back cancelled.

    [[nodiscard]] QCoro::Task<ApiResult<void>> requestCode(QString email);
    [[nodiscard]] QCoro::Task<ApiResult<void>> signInWithCode(QString email, QString code);
    [[nodiscard]] QCoro::Task<ApiResult<void>> signIn(QString email, QString password);
    [[nodiscard]] QCoro::Task<ApiResult<void>> createAccount(QString email, QString code, QString password,
                                                             QString name);
    /// Opens the provider's page in the shopper's browser. webAuthFinished tells how it ended.
    void signIn(SocialProvider provider);

    [[nodiscard]] const std::optional<WebAuth>& webAuth() const { return m_webAuth; }
    /// Waiting for the shopper, or for the backend's word on what they brought back.
    [[nodiscard]] bool isWebAuthRunning() const { return m_webAuth || m_exchanging.isRunning(); }
    /// Takes a link that came from outside. True when it is a callback and so was meant for nobody else, whether or not
    /// a sign-in waited for it.
    bool takeCallback(const QString& link);
    void cancelWebAuth();

    /// The customer goes by another name now, which is kept with the session.
    void rename(const QString& name);

    // The ways out.

    /// Always succeeds on this machine; the backend is told.
    Q_INVOKABLE void signOut();
    /// Signs out once the backend has deleted the account.
    [[nodiscard]] QCoro::Task<ApiResult<void>> deleteAccount();

Q_SIGNALS:
    /// The phase or the session changed.
    void sessionChanged();
    void nameChanged();
    void stuckChanged();
    void webAuthChanged();
    /// Nothing when somebody is signed in.
    void webAuthFinished(const std::optional<loom::SignInFailure>& failure);
    /// The files of these names go now: who keeps one lets go of what it holds, and saves nothing any more.
    void filesAboutToGo(const QStringList& names);

private:
    [[nodiscard]] QCoro::Task<> readSession();
    [[nodiscard]] QCoro::Task<> watchForSilence();
    /// Ends every sign-in that runs.
    [[nodiscard]] Work::Run beginSigningIn();
    [[nodiscard]] QCoro::Task<> exchange(QString code, QString verifier);
    /// Takes over what the backend answered to somebody who gave this address.
    [[nodiscard]] ApiResult<void> enter(ApiResult<SignedIn> answer, const QString& email);
    void adopt(const SignedIn& answer, const QString& email);
    void finishWebAuth(const std::optional<SignInFailure>& failure);
    void begin(AuthSession session);
    /// The session ends on this machine.
    void leave();
    void settle(Phase phase);
    void setStuck(bool isStuck);
    void removeFiles(const QStringList& names);
    [[nodiscard]] QCoro::Task<> watchExpiry();

    Services m_services;
    WidgetClient m_widget;
    AuthAPI m_api;
    CheckoutAuth m_checkout;
    std::shared_ptr<SessionKeeper> m_keeper;
    Phase m_phase = Phase::Unknown;
    bool m_isStuck = false;
    std::optional<AuthSession> m_session;
    bool m_switchedAccount = false;
    std::optional<WebAuth> m_webAuth;
    std::stop_source m_becameKnown;
    std::stop_source m_ending; ///< for what nobody waits for
    Work m_reading;
    Work m_silence;
    Work m_signingIn;
    Work m_exchanging;
    Work m_deleting;
    Work m_expiring;
};

} // namespace loom
