#include "account/SignInModel.h"

#include "account/AuthStore.h"
#include "base/Clock.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace loom
{

namespace
{

using namespace std::chrono_literals;

/// How long a code may take to arrive before another one can be asked for.
constexpr std::chrono::seconds resendAfter = 60s;

struct ModeName {
    SignInMode mode;
    QLatin1String name;
};

constexpr std::array modeNames{ModeName{SignInMode::Code, QLatin1String("code")},
                               ModeName{SignInMode::Password, QLatin1String("password")},
                               ModeName{SignInMode::Create, QLatin1String("create")}};

constexpr std::array providers{SocialProvider::Apple, SocialProvider::Google, SocialProvider::Facebook};

/// The digits of a text, whichever script they are written in, as many as a code has.
QString digitsOf(const QString& text)
{
    QString digits;
    for (const char32_t character : text.toUcs4()) {
        const int value = QChar::digitValue(character);
        if (value >= 0 && digits.size() < SignInModel::codeLength)
            digits.append(QChar(u'0' + value));
    }
    return digits;
}

} // namespace

SignInModel::SignInModel(AuthStore& auth, Clock& clock, QObject* parent)
    : QObject(parent)
    , m_auth(auth)
    , m_clock(clock)
    , m_sending([this] { Q_EMIT busyChanged(); })
    , m_signingIn([this] { Q_EMIT busyChanged(); })
{
    connect(&auth, &AuthStore::webAuthChanged, this, &SignInModel::providerChanged);
    connect(&auth, &AuthStore::webAuthFinished, this, [this](const std::optional<SignInFailure>& failure) {
        if (failure)
            complain({.failure = failure});
    });
    connect(&auth, &AuthStore::sessionChanged, this, [this] {
        if (m_auth.isSignedIn())
            clear();
    });
}

QString SignInModel::mode() const
{
    return std::ranges::find(modeNames, m_mode, &ModeName::mode)->name;
}

void SignInModel::setMode(const QString& mode)
{
    const auto* const found = std::ranges::find(modeNames, mode, &ModeName::name);
    if (found == modeNames.end() || found->mode == m_mode || isBusy())
        return;
    m_mode = found->mode;
    m_password.clear(); // one to choose and one to remember are not the same
    m_complaints = {};
    Q_EMIT modeChanged();
    Q_EMIT fieldsChanged();
    Q_EMIT complaintsChanged();
}

void SignInModel::setEmail(const QString& email)
{
    if (email == m_email)
        return;
    m_email = email;
    if (m_email.trimmed() != m_sentTo)
        forgetSentCode();
    Q_EMIT fieldsChanged();
    forget(&Complaints::email, Field::Email);
}

void SignInModel::setCode(const QString& code)
{
    const QString digits = digitsOf(code);
    if (digits != m_code) {
        m_code = digits;
        forget(&Complaints::code, Field::Code);
    }
    Q_EMIT fieldsChanged(); // also when nothing is left of what was typed: the field shows it no longer
}

void SignInModel::setPassword(const QString& password)
{
    if (password == m_password)
        return;
    m_password = password;
    Q_EMIT fieldsChanged();
    forget(&Complaints::password, Field::Password);
}

void SignInModel::setName(const QString& name)
{
    if (name == m_name)
        return;
    m_name = name;
    Q_EMIT fieldsChanged();
}

bool SignInModel::isEmailValid() const
{
    return isEmailAddress(m_email.trimmed());
}

int SignInModel::secondsToResend() const
{
    const auto left = std::chrono::ceil<std::chrono::seconds>(m_resendAt - m_clock.elapsed());
    return isCodeSent() ? static_cast<int>(std::max(0s, left).count()) : 0;
}

QString SignInModel::emailError() const
{
    if (m_complaints.email)
        return errorDescription(SignInFailure{.reason = SignInFailure::Reason::Email, .error = {}});
    return failureAt(Field::Email);
}

QString SignInModel::codeError() const
{
    if (m_complaints.code)
        return QCoreApplication::translate("Loomstreet", "Enter the six digits of the code.");
    return failureAt(Field::Code);
}

QString SignInModel::passwordError() const
{
    if (!m_complaints.password)
        return failureAt(Field::Password);
    return m_mode == SignInMode::Create
               ? QCoreApplication::translate("Loomstreet", "Choose a password of 6 or more characters.")
               : QCoreApplication::translate("Loomstreet", "Enter your password. It has 6 or more characters.");
}

QString SignInModel::generalError() const
{
    return failureAt(Field::None);
}

void SignInModel::submit()
{
    if (!canBegin())
        return;
    Complaints complaints{.email = !isEmailValid(), .code = asksForCode() && m_code.size() < codeLength};
    if (m_mode == SignInMode::Password || (m_mode == SignInMode::Create && isCodeSent()))
        complaints.password = m_password.size() < leastPasswordLength;
    complain(complaints);
    if (complaints != Complaints{})
        return;
    if (m_mode == SignInMode::Password || isCodeSent())
        static_cast<void>(signingIn());
    else
        send(m_email.trimmed());
}

void SignInModel::requestCode()
{
    if (!canBegin())
        return;
    complain({.email = !isEmailValid()});
    if (isEmailValid())
        send(m_email.trimmed());
}

void SignInModel::resend()
{
    if (!canBegin() || !isCodeSent() || secondsToResend() > 0)
        return;
    complain({});
    setCode({});
    send(m_sentTo);
}

bool SignInModel::canBegin() const
{
    // Until it is known who is signed in, nobody else can be.
    return !isBusy() && m_auth.phase() != AuthStore::Phase::Unknown;
}

void SignInModel::send(const QString& email)
{
    static_cast<void>(sending(email));
}

QCoro::Task<> SignInModel::sending(QString email)
{
    const Work::Run run = m_sending.begin();
    const ApiResult<void> answer = co_await m_auth.requestCode(email);
    if (run.isStopped())
        co_return;
    if (answer) {
        m_sentTo = email;
        m_resendAt = m_clock.elapsed() + resendAfter;
        Q_EMIT codeSentChanged();
        static_cast<void>(counting());
    }
    finish(answer);
}

QCoro::Task<> SignInModel::signingIn()
{
    const Work::Run run = m_signingIn.begin();
    const QString email = m_email.trimmed();
    const ApiResult<void> answer = m_mode == SignInMode::Password ? co_await m_auth.signIn(email, m_password)
                                   : m_mode == SignInMode::Code
                                       ? co_await m_auth.signInWithCode(email, m_code)
                                       : co_await m_auth.createAccount(email, m_code, m_password, m_name.simplified());
    if (!run.isStopped())
        finish(answer);
}

QCoro::Task<> SignInModel::counting()
{
    const Work::Run run = m_counting.begin();
    Q_EMIT secondsToResendChanged();
    while (secondsToResend() > 0) {
        co_await m_clock.sleep(m_resendAt - m_clock.elapsed() - std::chrono::seconds(secondsToResend() - 1),
                               run.stop());
        if (run.isStopped())
            co_return;
        Q_EMIT secondsToResendChanged();
    }
}

void SignInModel::finish(const ApiResult<void>& answer)
{
    if (!answer && !answer.error().isCancelled())
        complain({.failure = signInFailure(answer.error().error(), m_mode)});
}

void SignInModel::signInWith(const QString& provider)
{
    const auto* const found = std::ranges::find(providers, provider, [](SocialProvider one) { return rawValue(one); });
    if (found == providers.end() || m_auth.phase() == AuthStore::Phase::Unknown)
        return;
    m_sending.stop();
    m_signingIn.stop();
    complain({});
    m_provider = *found;
    m_auth.signIn(m_provider);
    Q_EMIT providerChanged();
}

void SignInModel::cancelProvider()
{
    m_auth.cancelWebAuth(); // no news to whoever pressed the button
    complain({});
}

void SignInModel::pasteCallback(const QString& text)
{
    if (!isWaitingForProvider())
        return;
    // A link may have been broken into lines on its way; there are no blanks in one.
    QString link = text;
    link.removeIf([](QChar character) { return character.isSpace(); });
    complain({});
    if (!m_auth.takeCallback(link))
        complain({.callback = true});
}

void SignInModel::forgetPasteError()
{
    if (std::exchange(m_complaints.callback, false))
        Q_EMIT complaintsChanged();
}

bool SignInModel::isProviderRunning() const
{
    return m_auth.isWebAuthRunning();
}

bool SignInModel::isWaitingForProvider() const
{
    return m_auth.webAuth().has_value();
}

QString SignInModel::providerName() const
{
    switch (m_provider) {
    case SocialProvider::Apple:
        return QStringLiteral("Apple");
    case SocialProvider::Google:
        return QStringLiteral("Google");
    case SocialProvider::Facebook:
        return QStringLiteral("Facebook");
    }
    return {};
}

QString SignInModel::providerAddress() const
{
    return m_auth.webAuth() ? m_auth.webAuth()->address.toString(QUrl::FullyEncoded) : QString();
}

QString SignInModel::pasteError() const
{
    return m_complaints.callback
               ? QCoreApplication::translate(
                     "Loomstreet", "That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.")
               : QString();
}

SignInModel::Field SignInModel::fieldOfFailure() const
{
    using Reason = SignInFailure::Reason;
    const Reason reason = m_complaints.failure ? m_complaints.failure->reason : Reason::General;
    if (reason == Reason::Email)
        return Field::Email;
    if (reason == Reason::Code && asksForCode())
        return Field::Code;
    if (reason == Reason::Password && m_mode == SignInMode::Password)
        return Field::Password;
    return Field::None;
}

QString SignInModel::failureAt(Field field) const
{
    return m_complaints.failure && fieldOfFailure() == field ? errorDescription(*m_complaints.failure) : QString();
}

void SignInModel::complain(const Complaints& complaints)
{
    if (m_complaints != complaints) {
        m_complaints = complaints;
        Q_EMIT complaintsChanged();
    }
    if (complaints != Complaints{})
        Q_EMIT refused();
}

void SignInModel::forget(bool Complaints::* complaint, Field field)
{
    const bool wasWrong = std::exchange(m_complaints.*complaint, false);
    const Field failed = fieldOfFailure();
    if (m_complaints.failure && (failed == field || failed == Field::None)) {
        m_complaints.failure.reset();
        Q_EMIT complaintsChanged();
    } else if (wasWrong) {
        Q_EMIT complaintsChanged();
    }
}

void SignInModel::forgetSentCode()
{
    m_sending.stop();
    m_counting.stop();
    if (!isCodeSent())
        return;
    m_sentTo.clear();
    m_code.clear();
    Q_EMIT codeSentChanged();
    Q_EMIT secondsToResendChanged();
}

void SignInModel::clear()
{
    m_email.clear();
    m_code.clear();
    m_password.clear();
    m_name.clear();
    m_mode = SignInMode::Code;
    forgetSentCode();
    m_signingIn.stop();
    complain({});
    Q_EMIT modeChanged();
    Q_EMIT fieldsChanged();
    Q_EMIT providerChanged(); // whoever is signed in waits for no browser
}

} // namespace loom
