#pragma once

#include <QByteArray>

#include <array>
#include <optional>

namespace loom
{

/// A publisher's public key as minisign writes it: the one line of base64, or the file with its comment above it.
struct MinisignKey {
    std::array<unsigned char, 8> id{};
    std::array<unsigned char, 32> key{}; ///< of Ed25519 (RFC 8032)

    bool operator==(const MinisignKey&) const = default;

    [[nodiscard]] static std::optional<MinisignKey> parse(const QByteArray& text);
};

/// A detached signature in minisign's pre-hashed form: four lines, of which the first and the word before the trusted
/// comment mean nothing.
struct MinisignSignature {
    /// No signature of ours comes near it.
    static constexpr qsizetype maximumBytes = 4096;

    std::array<unsigned char, 8> id{};
    std::array<unsigned char, 64> signature{}; ///< over the file's BLAKE2b-512
    QByteArray trustedComment;
    std::array<unsigned char, 64> commentSignature{}; ///< over `signature` and `trustedComment`

    /// Nothing for any other form, and for one that something follows.
    [[nodiscard]] static std::optional<MinisignSignature> parse(const QByteArray& text);
};

/// Whether the owner of the key signed the file of this BLAKE2b-512, and the trusted comment with it. Any thread.
[[nodiscard]] bool isSignedBy(const MinisignKey& key, const MinisignSignature& signature, const QByteArray& blake2b);

} // namespace loom
