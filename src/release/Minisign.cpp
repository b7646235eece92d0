#include "release/Minisign.h"

#include <QList>

#include <openssl/evp.h>

#include <algorithm>
#include <memory>

namespace loom
{

namespace
{

constexpr QByteArrayView untrustedBeginning("untrusted comment: ");
constexpr QByteArrayView trustedBeginning("trusted comment: ");
constexpr QByteArrayView keyAlgorithm("Ed");
/// Over the file's BLAKE2b-512; "Ed" is over the file itself and not accepted.
constexpr QByteArrayView prehashedAlgorithm("ED");
constexpr qsizetype algorithmBytes = 2;

/// The bytes that a line of base64 stands for, if it is so many and written in the one way there is.
std::optional<QByteArray> decoded(const QByteArray& line, qsizetype size)
{
    const auto result = QByteArray::fromBase64Encoding(line, QByteArray::AbortOnBase64DecodingErrors);
    if (!result || (*result).size() != size || (*result).toBase64() != line)
        return std::nullopt;
    return *result;
}

template <std::size_t size>
void take(QByteArrayView& bytes, std::array<unsigned char, size>& part)
{
    std::copy_n(bytes.begin(), size, part.begin());
    bytes = bytes.sliced(static_cast<qsizetype>(size));
}

bool verify(const MinisignKey& key, const std::array<unsigned char, 64>& signature, const QByteArray& message)
{
    const std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> publicKey(
        EVP_PKEY_new_raw_public_key(EVP_PKEY_ED25519, nullptr, key.key.data(), key.key.size()), &EVP_PKEY_free);
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
    return publicKey && context &&
           EVP_DigestVerifyInit(context.get(), nullptr, nullptr, nullptr, publicKey.get()) == 1 &&
           EVP_DigestVerify(context.get(), signature.data(), signature.size(),
                            reinterpret_cast<const unsigned char*>(message.constData()),
                            static_cast<size_t>(message.size())) == 1;
}

} // namespace

std::optional<MinisignKey> MinisignKey::parse(const QByteArray& text)
{
    QList<QByteArray> lines = text.trimmed().split('\n');
    if (lines.size() == 2 && lines.front().startsWith(untrustedBeginning))
        lines.removeFirst();
    MinisignKey key;
    const auto bytes = decoded(lines.front(), algorithmBytes + key.id.size() + key.key.size());
    if (lines.size() != 1 || !bytes || !bytes->startsWith(keyAlgorithm))
        return std::nullopt;
    QByteArrayView rest = QByteArrayView(*bytes).sliced(algorithmBytes);
    take(rest, key.id);
    take(rest, key.key);
    return key;
}

std::optional<MinisignSignature> MinisignSignature::parse(const QByteArray& text)
{
    if (text.size() > maximumBytes)
        return std::nullopt;
    QList<QByteArray> lines = text.split('\n');
    if (lines.size() == 5 && lines.back().isEmpty())
        lines.removeLast();
    if (lines.size() != 4 || !lines[0].startsWith(untrustedBeginning) || !lines[2].startsWith(trustedBeginning))
        return std::nullopt;
    MinisignSignature signature;
    const auto bytes = decoded(lines[1], algorithmBytes + signature.id.size() + signature.signature.size());
    const auto commentBytes = decoded(lines[3], signature.commentSignature.size());
    if (!bytes || !commentBytes || !bytes->startsWith(prehashedAlgorithm))
        return std::nullopt;
    QByteArrayView rest = QByteArrayView(*bytes).sliced(algorithmBytes);
    take(rest, signature.id);
    take(rest, signature.signature);
    rest = *commentBytes;
    take(rest, signature.commentSignature);
    signature.trustedComment = lines[2].sliced(trustedBeginning.size());
    return signature;
}

bool isSignedBy(const MinisignKey& key, const MinisignSignature& signature, const QByteArray& blake2b)
{
    constexpr qsizetype blake2bBytes = 64;
    const QByteArray commented = QByteArray(reinterpret_cast<const char*>(signature.signature.data()),
                                            static_cast<qsizetype>(signature.signature.size())) +
                                 signature.trustedComment;
    return signature.id == key.id && blake2b.size() == blake2bBytes && verify(key, signature.signature, blake2b) &&
           verify(key, signature.commentSignature, commented);
}

} // namespace loom
