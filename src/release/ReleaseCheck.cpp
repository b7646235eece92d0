#include "release/ReleaseCheck.h"

#include "release/FileDigests.h"
#include "release/InstallJob.h"
#include "release/Minisign.h"
#include "release/RecordFile.h"

#include <QFile>

namespace loom
{

Result<QString, ReleaseFlaw> checkRelease(const QString& image, const ReleaseClaims& claims,
                                          const std::stop_token& stop)
{
    QFile file;
    if (!openPlainFile(file, image))
        return Unexpected(ReleaseFlaw::Unreadable);
    const auto digests = digestsOf(file, stop);
    if (!digests)
        return Unexpected(stop.stop_requested() ? ReleaseFlaw::Stopped : ReleaseFlaw::Unreadable);

    QString sha256 = QString::fromLatin1(digests->sha256.toHex());
    if (claims.sha256 && claims.sha256->toLower() != sha256)
        return Unexpected(ReleaseFlaw::Changed);
    if (claims.size && *claims.size != digests->size)
        return Unexpected(ReleaseFlaw::Changed);

    const auto key = MinisignKey::parse(claims.publicKey);
    const auto signature = MinisignSignature::parse(claims.signature);
    if (!key || !signature || !isSignedBy(*key, *signature, digests->blake2b))
        return Unexpected(ReleaseFlaw::NotSigned);
    return sha256;
}

bool openVerified(QFile& file, const InstallJob& job, const std::stop_token& stop)
{
    if (!openPlainFile(file, job.image))
        return false;
    const auto digests = digestsOf(file, stop);
    return digests && digests->sha256.toHex() == job.sha256.toLatin1();
}

} // namespace loom
