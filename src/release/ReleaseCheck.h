#pragma once

#include "base/Result.h"

#include <QString>

#include <optional>
#include <stop_token>

class QFile;

namespace loom
{

struct InstallJob;

/// What the store says of a release's image, and who must have signed it.
struct ReleaseClaims {
    std::optional<QString> sha256; ///< hexadecimal, in small or capital letters
    std::optional<qint64> size;    ///< in bytes
    QByteArray signature;          ///< as it was downloaded, in minisign's form
    QByteArray publicKey;          ///< the publisher's, in minisign's form
};

enum class ReleaseFlaw {
    Unreadable, ///< the file is not there, or cannot be read
    Changed,    ///< another checksum or size than was said
    NotSigned,  ///< not by the publisher
    Stopped,
};

/// Holds an image to what is claimed of it: first the checksum, then the size, then the signature. Gives its SHA-256 in
/// small hexadecimal letters. Blocks, in memory that does not grow with the file; any thread.
[[nodiscard]] Result<QString, ReleaseFlaw> checkRelease(const QString& image, const ReleaseClaims& claims,
                                                        const std::stop_token& stop = {});

/// Opens the image of a job, which has to be a plain file and the one that was verified when the job was written. What
/// is read through `file` from then on is what was looked at, whatever lies at its path by now. Blocks; any thread.
[[nodiscard]] bool openVerified(QFile& file, const InstallJob& job, const std::stop_token& stop = {});

} // namespace loom
