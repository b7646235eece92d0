#include "account/SignInFailure.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace loom
{

namespace
{

using Reason = SignInFailure::Reason;

/// RFC 5321, section 4.5.3.1.3, less the brackets around it.
constexpr qsizetype longestEmailAddress = 254;

SignInFailure because(Reason reason)
{
    return {.reason = reason, .error = {}};
}

bool meansWrongPassword(const QString& code)
{
    // A refusal without a code of its own comes as "REAUTH".
    return code == QLatin1String("UNAUTHORIZED") || code == QLatin1String("REAUTH") ||
           code == QLatin1String("BAD_INPUT") || code == QLatin1String("NOT_FOUND");
}

} // namespace

SignInFailure signInFailure(const APIError& error, SignInMode mode)
{
    const auto* const http = error.as<APIError::Http>();
    const QString code = http ? http->code.value_or(QString()) : QString();
    if (code == QLatin1String("EMAIL_INVALID"))
        return because(Reason::Email);
    if (code == QLatin1String("CODE_INVALID") || code == QLatin1String("NO_SUCH_CODE"))
        return because(Reason::Code);
    if (code == QLatin1String("RATE_LIMITED"))
        return because(Reason::TooManyAttempts);
    if (mode == SignInMode::Password && meansWrongPassword(code))
        return because(Reason::Password);
    return {.reason = Reason::General, .error = error};
}

SignInFailure providerFailure(const QString& error)
{
    if (error == QLatin1String("not_configured"))
        return because(Reason::ProviderUnavailable);
    if (error == QLatin1String("no_email"))
        return because(Reason::ProviderNoEmail);
    if (error == QLatin1String("denied") || error == QLatin1String("cancelled"))
        return because(Reason::ProviderCancelled);
    return because(Reason::ProviderFailed);
}

QString errorDescription(const SignInFailure& failure)
{
    switch (failure.reason) {
    case Reason::Email:
        return QCoreApplication::translate("Loomstreet", "Enter a valid email address.");
    case Reason::Code:
        return QCoreApplication::translate("Loomstreet", "That code is wrong or has expired. Request a new one.");
    case Reason::TooManyAttempts:
        return QCoreApplication::translate("Loomstreet", "Too many attempts. Wait a minute and try again.");
    case Reason::Password:
        return QCoreApplication::translate(
            "Loomstreet", "That email and password don't match. Try again or sign in with an email code.");
    case Reason::General:
        return errorDescription(failure.error);
    case Reason::ProviderUnavailable:
        return QCoreApplication::translate("Loomstreet", "This sign-in method is not available yet.");
    case Reason::ProviderNoEmail:
        return QCoreApplication::translate("Loomstreet",
                                           "That account has no email address we can use. Try another method.");
    case Reason::ProviderCancelled:
        return QCoreApplication::translate("Loomstreet", "Sign-in was cancelled.");
    case Reason::ProviderFailed:
        return QCoreApplication::translate("Loomstreet", "Sign-in failed. Try again.");
    }
    return {};
}

bool isEmailAddress(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral(R"(\A[^@\s]+@[^@\s]+\.[^@\s]+\z)"),
                                            QRegularExpression::UseUnicodePropertiesOption);
    const bool isPlain = std::ranges::all_of(text, [](QChar character) { return character.isPrint(); });
    return text.size() <= longestEmailAddress && isPlain && pattern.match(text).hasMatch();
}

} // namespace loom
