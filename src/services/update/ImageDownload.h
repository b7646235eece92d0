#pragma once

#include "base/Result.h"

#include <QString>
#include <QUrl>
#include <qcoro/qcorotask.h>

#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>

namespace loom
{

/// How long nothing may arrive.
inline constexpr std::chrono::seconds imageDownloadSilence{60};
/// What an image without an announced size may have.
inline constexpr qint64 maximumImageBytes = 4LL * 1024 * 1024 * 1024;

struct ImageDownloadOrder {
    QUrl url;
    QString file;               ///< where the image is to lie in the end; until then it grows in `file` + ".part"
    std::optional<qint64> size; ///< the announced one, in bytes; nothing beyond it is taken
    /// Who wants it otherwise, mostly tests, says so.
    std::chrono::milliseconds silence = imageDownloadSilence;
    std::optional<std::chrono::milliseconds> total; ///< how long all of it may take
    qint64 most = maximumImageBytes;                ///< what it may have without an announced size
};

struct ImageDownloadFailure {
    enum class Kind {
        Http,       ///< the server answered with `status`
        Incomplete, ///< the connection ended early, was silent too long, or more came than was announced
        TooLarge,   ///< more than `most`
        Unwritable, ///< the file cannot be written, or there is no room for it
        Stopped,
    };
    Kind kind = Kind::Incomplete;
    int status = 0;

    bool operator==(const ImageDownloadFailure&) const = default;
};

/// Downloads an image, or what lies beside it, into a file, on a thread of its own, and goes on where an earlier
/// attempt ended: with the range that is missing, as long as the server still has the same file (RFC 9110, Range and
/// If-Range). Call on the main thread, where `progress` (0 to 1, at most ten times a second) is called and the task
/// ends, too; everything else, the disk included, happens on the thread. https only, redirections likewise.
[[nodiscard]] QCoro::Task<Result<QString, ImageDownloadFailure>>
downloadImage(ImageDownloadOrder order, std::function<void(double)> progress, std::stop_token stop);

} // namespace loom
