#pragma once

#include "net/APIError.h"

namespace loom
{

/// How the shopper signs in at the store itself.
enum class SignInMode { Code, Password, Create };

/// Why nobody was signed in. Each has one fixed sentence.
struct SignInFailure {
    enum class Reason {
        Email,               ///< the address is none
        Code,                ///< wrong or too old
        TooManyAttempts,     ///<
        Password,            ///< does not belong to the address
        General,             ///< whatever else; `error` tells
        ProviderUnavailable, ///< the store has not set this way up
        ProviderNoEmail,     ///< the provider's account has no address
        ProviderCancelled,   ///<
        ProviderFailed,      ///<
    };

    Reason reason = Reason::General;
    APIError error; ///< of Reason::General

    bool operator==(const SignInFailure&) const = default;
};

/// What a failed call means for somebody who signs in this way.
[[nodiscard]] SignInFailure signInFailure(const APIError& error, SignInMode mode);

/// What the `error` of a provider's callback means.
[[nodiscard]] SignInFailure providerFailure(const QString& error);

/// The sentence the shopper reads, in the language of the window.
[[nodiscard]] QString errorDescription(const SignInFailure& failure);

/// Whether a text can be an e-mail address: something, "@", something with a dot inside, no blanks and no second "@",
/// nothing that cannot be seen, and not longer than addresses are.
[[nodiscard]] bool isEmailAddress(const QString& text);

} // namespace loom
