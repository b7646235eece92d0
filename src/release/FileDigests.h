#pragma once

#include <QByteArray>

#include <optional>
#include <stop_token>

class QIODevice;

namespace loom
{

/// What identifies the bytes of a file: their SHA-256 (FIPS 180-4) and BLAKE2b-512 (RFC 7693), raw, and their number.
struct FileDigests {
    QByteArray sha256;
    QByteArray blake2b;
    qint64 size = 0;

    bool operator==(const FileDigests&) const = default;
};

/// Reads the open device to its end, in memory that does not grow with it. Nothing when it cannot be read, or when it
/// was stopped. Blocks; any thread.
[[nodiscard]] std::optional<FileDigests> digestsOf(QIODevice& file, const std::stop_token& stop = {});

} // namespace loom
