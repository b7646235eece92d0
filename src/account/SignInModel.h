#pragma once

#include "account/SignInFailure.h"
#include "account/SocialProvider.h"
#include "net/ApiResult.h"
#include "net/Work.h"

#include <QObject>
#include <qcoro/qcorotask.h>

#include <chrono>
#include <optional>

namespace loom
{

class AuthStore;
class Clock;

/// What the shopper has typed into the sign-in sheet and how far they have come. There is one for all windows, so that
/// a sheet that is closed and opened again shows what it showed. Main thread.
class SignInModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString mode READ mode WRITE setMode NOTIFY modeChanged)
    Q_PROPERTY(QString email READ email WRITE setEmail NOTIFY fieldsChanged)
    Q_PROPERTY(QString code READ code WRITE setCode NOTIFY fieldsChanged)
    Q_PROPERTY(QString password READ password WRITE setPassword NOTIFY fieldsChanged)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY fieldsChanged)
    Q_PROPERTY(bool isEmailValid READ isEmailValid NOTIFY fieldsChanged)
    Q_PROPERTY(bool isCodeSent READ isCodeSent NOTIFY codeSentChanged)
    Q_PROPERTY(QString codeSentTo READ codeSentTo NOTIFY codeSentChanged)
    Q_PROPERTY(int secondsToResend READ secondsToResend NOTIFY secondsToResendChanged)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY busyChanged)
    Q_PROPERTY(bool isSendingCode READ isSendingCode NOTIFY busyChanged)
    Q_PROPERTY(QString emailError READ emailError NOTIFY complaintsChanged)
    Q_PROPERTY(QString codeError READ codeError NOTIFY complaintsChanged)
    Q_PROPERTY(QString passwordError READ passwordError NOTIFY complaintsChanged)
    Q_PROPERTY(QString generalError READ generalError NOTIFY complaintsChanged)
    Q_PROPERTY(bool isProviderRunning READ isProviderRunning NOTIFY providerChanged)
    Q_PROPERTY(bool isWaitingForProvider READ isWaitingForProvider NOTIFY providerChanged)
    Q_PROPERTY(QString providerName READ providerName NOTIFY providerChanged)
    Q_PROPERTY(QString providerAddress READ providerAddress NOTIFY providerChanged)
    Q_PROPERTY(QString pasteError READ pasteError NOTIFY complaintsChanged)

public:
    static constexpr int codeLength = 6;
    static constexpr int leastPasswordLength = 6;

    SignInModel(AuthStore& auth, Clock& clock, QObject* parent = nullptr);

    /// "code", "password" or "create".
    [[nodiscard]] QString mode() const;
    void setMode(const QString& mode);
    [[nodiscard]] const QString& email() const { return m_email; }
    /// Another address than the code was sent to needs a code of its own.
    void setEmail(const QString& email);
    [[nodiscard]] const QString& code() const { return m_code; }
    /// Takes the digits out of what was typed or pasted.
    void setCode(const QString& code);
    [[nodiscard]] const QString& password() const { return m_password; }
    void setPassword(const QString& password);
    [[nodiscard]] const QString& name() const { return m_name; }
    void setName(const QString& name);
    [[nodiscard]] bool isEmailValid() const;

    [[nodiscard]] bool isCodeSent() const { return !m_sentTo.isEmpty(); }
    [[nodiscard]] const QString& codeSentTo() const { return m_sentTo; }
    /// 0 when another code may be asked for.
    [[nodiscard]] int secondsToResend() const;
    [[nodiscard]] bool isBusy() const { return m_sending.isRunning() || m_signingIn.isRunning(); }
    [[nodiscard]] bool isSendingCode() const { return m_sending.isRunning(); }

    [[nodiscard]] QString emailError() const;
    [[nodiscard]] QString codeError() const;
    [[nodiscard]] QString passwordError() const;
    [[nodiscard]] QString generalError() const;

    /// The next step of the mode: asks for a code, or signs in with what is there.
    Q_INVOKABLE void submit();
    Q_INVOKABLE void requestCode();
    /// Asks for another code; not before the last one had time to arrive.
    Q_INVOKABLE void resend();

    /// Opens the page of "apple", "google" or "facebook" in the browser and waits for it.
    Q_INVOKABLE void signInWith(const QString& provider);
    Q_INVOKABLE void cancelProvider();
    /// Where the desktop does not hand the provider's answer over, the shopper does.
    Q_INVOKABLE void pasteCallback(const QString& text);
    Q_INVOKABLE void forgetPasteError();
    /// From the press of the button until somebody is signed in or it failed.
    [[nodiscard]] bool isProviderRunning() const;
    /// The shopper has not come back from the browser yet.
    [[nodiscard]] bool isWaitingForProvider() const;
    [[nodiscard]] QString providerName() const;
    /// Of the page in the browser, to be opened there by hand; empty when nobody waits for it.
    [[nodiscard]] QString providerAddress() const;
    [[nodiscard]] QString pasteError() const;

Q_SIGNALS:
    void modeChanged();
    void fieldsChanged();
    void codeSentChanged();
    void secondsToResendChanged();
    void busyChanged();
    void complaintsChanged();
    void providerChanged();
    /// Something is wrong with what was submitted.
    void refused();

private:
    /// What is wrong with what was typed, and what the last attempt failed with.
    struct Complaints {
        bool email = false;
        bool code = false;
        bool password = false;
        bool callback = false;
        std::optional<SignInFailure> failure;

        bool operator==(const Complaints&) const = default;
    };
    enum class Field { None, Email, Code, Password };

    [[nodiscard]] bool canBegin() const;
    void send(const QString& email);
    [[nodiscard]] QCoro::Task<> sending(QString email);
    [[nodiscard]] QCoro::Task<> signingIn();
    [[nodiscard]] QCoro::Task<> counting();
    /// Whether the shopper is asked for the code they were sent.
    [[nodiscard]] bool asksForCode() const { return m_mode != SignInMode::Password && isCodeSent(); }
    /// The field that the failure is about, where it is shown.
    [[nodiscard]] Field fieldOfFailure() const;
    [[nodiscard]] QString failureAt(Field field) const;
    void complain(const Complaints& complaints);
    void finish(const ApiResult<void>& answer);
    /// The shopper is putting it right.
    void forget(bool Complaints::* complaint, Field field);
    void forgetSentCode();
    void clear();

    AuthStore& m_auth;
    Clock& m_clock;
    SignInMode m_mode = SignInMode::Code;
    QString m_email;
    QString m_code;
    QString m_password;
    QString m_name;
    QString m_sentTo; ///< whom the code was sent to
    std::chrono::milliseconds m_resendAt{0};
    SocialProvider m_provider = SocialProvider::Apple;
    Complaints m_complaints;
    Work m_sending;
    Work m_signingIn;
    Work m_counting;
};

} // namespace loom
