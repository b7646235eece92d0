#pragma once

#include "account/SocialProvider.h"
#include "base/Result.h"

#include <QUrl>

namespace loom
{

class Random;

/// What ties a callback to the sign-in it belongs to: Proof Key for Code Exchange (RFC 7636) and an anti-forgery state.
/// Both are secrets.
struct ProofKey {
    QString verifier; ///< 64 characters
    QString state;    ///< 24 characters

    bool operator==(const ProofKey&) const = default;
};

[[nodiscard]] ProofKey makeProofKey(Random& random);

/// The S256 challenge of a verifier: its SHA-256, Base64url without padding (RFC 7636, section 4.2).
[[nodiscard]] QString challengeOf(const QString& verifier);

/// The scheme by which a provider's page comes back to the application (RFC 8252, section 7.1).
inline constexpr QLatin1String callbackScheme{"wrenfieldstore"};

/// Whether a link is a callback, however it is written. A callback is a secret: it goes to the sign-in that waits for
/// it, or nowhere.
[[nodiscard]] bool isCallback(const QString& link);

/// The page on which a sign-in at a provider begins.
[[nodiscard]] QUrl signInAddress(const QString& supportBase, const QString& supportKey, SocialProvider provider,
                                 const ProofKey& key);

/// The code that a callback brings to the sign-in of that state; or the callback's `error`, which is "state_mismatch"
/// where the state, or the code, is not there, is not the one sent, or is there twice.
[[nodiscard]] Result<QString, QString> readCallback(const QString& link, const QString& state);

} // namespace loom
