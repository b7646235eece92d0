#pragma once

#include <QSslConfiguration>

namespace loom
{

/// What a test server shows to prove who it is.
enum class Credentials {
    Valid,
    ForeignAuthority, ///< signed by an authority that nobody trusts
    OtherHost,
    Expired,
};

/// The certificate and the key of a server on "localhost". The authority behind it is made once per process, in
/// memory, and the first call makes the process trust it.
[[nodiscard]] QSslConfiguration serverConfiguration(Credentials credentials);

} // namespace loom
