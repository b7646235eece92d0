#include "release/FileDigests.h"

#include <QIODevice>

#include <openssl/evp.h>

#include <memory>

namespace loom
{

namespace
{

/// Fits the second level of a processor's memory, so that the second digest finds there what the first has read.
constexpr qint64 blockBytes = 131072;

class Digest
{
public:
    explicit Digest(const EVP_MD* kind)
        : m_context(EVP_MD_CTX_new(), &EVP_MD_CTX_free)
        , m_isGood(m_context && EVP_DigestInit_ex(m_context.get(), kind, nullptr) == 1)
    {
    }

    void add(const char* bytes, qint64 size)
    {
        m_isGood = m_isGood && EVP_DigestUpdate(m_context.get(), bytes, static_cast<size_t>(size)) == 1;
    }

    /// Empty when the library does not have it.
    [[nodiscard]] QByteArray finish()
    {
        QByteArray value(EVP_MAX_MD_SIZE, Qt::Uninitialized);
        unsigned int size = 0;
        if (!m_isGood ||
            EVP_DigestFinal_ex(m_context.get(), reinterpret_cast<unsigned char*>(value.data()), &size) != 1)
            return {};
        value.truncate(size);
        return value;
    }

private:
    std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> m_context;
    bool m_isGood;
};

} // namespace

std::optional<FileDigests> digestsOf(QIODevice& file, const std::stop_token& stop)
{
    Digest sha256(EVP_sha256());
    Digest blake2b(EVP_blake2b512());
    const auto block = std::make_unique_for_overwrite<char[]>(blockBytes);
    FileDigests digests;
    while (true) {
        if (stop.stop_requested())
            return std::nullopt;
        const qint64 size = file.read(block.get(), blockBytes);
        if (size < 0)
            return std::nullopt;
        if (size == 0)
            break;
        sha256.add(block.get(), size);
        blake2b.add(block.get(), size);
        digests.size += size;
    }
    digests.sha256 = sha256.finish();
    digests.blake2b = blake2b.finish();
    if (digests.sha256.isEmpty() || digests.blake2b.isEmpty())
        return std::nullopt;
    return digests;
}

} // namespace loom
