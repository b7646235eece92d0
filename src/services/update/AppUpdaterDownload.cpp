#include "services/update/AppUpdater.h"

#include "base/Log.h"
#include "base/Random.h"
#include "release/Minisign.h"
#include "release/ReleaseCheck.h"
#include "services/update/ImageDownload.h"
#include "services/update/UpdateFolder.h"

#include <QFile>
#include <QFileInfo>
#include <QtConcurrentRun>
#include <qcoro/qcorofuture.h>

namespace loom
{

namespace
{

bool isMissing(int status)
{
    return status == 404 || status == 410;
}

/// What is in a signature's file, which is needed only once.
QByteArray takeSignature(const QString& path)
{
    QFile file(path);
    const QByteArray signature =
        file.open(QIODevice::ReadOnly) ? file.read(MinisignSignature::maximumBytes) : QByteArray();
    file.remove();
    return signature;
}

} // namespace

void AppUpdater::downloadAndInstall()
{
    if (m_phase == Phase::Downloading || m_phase == Phase::Verifying) {
        m_downloadIsBackground = false; // from now on the shopper waits for it
        Q_EMIT changed();
    } else if (m_phase != Phase::Installing && isReady()) {
        if (isInstalledByHand())
            openImage();
    } else if (m_phase != Phase::Installing && m_release && canUpdate()) {
        m_downloadIsBackground = false;
        static_cast<void>(download(*m_release));
    }
}

QCoro::Task<> AppUpdater::download(Release release)
{
    const Work::Run run = m_download.begin();
    m_checking.stop();
    const QUuid token = m_services.random.uuid();
    m_downloadToken = token;
    m_progress = 0;
    enter(Phase::Downloading);
    const QString file = updateFolder::imageFile(m_platform.workingFolder, release);
    const Verified verified = co_await fetch(release, file, token, run.stop());
    if (run.isStopped() || m_downloadToken != token)
        co_return;
    m_downloadToken.reset();
    if (verified) {
        setReady(file, *verified);
        discardImages();
        if (!m_downloadIsBackground && isInstalledByHand())
            openImage();
        co_return;
    }
    const Trouble trouble = verified.error();
    qCWarning(logNet) << "the image of" << release.key() << "is not ready: trouble" << int(trouble.kind)
                      << trouble.status;
    if (trouble.isFlaw)
        m_flawedRelease = release.key();
    // Nobody waited for a download in the background: the shopper is offered to try it.
    if (m_downloadIsBackground)
        enter(Phase::Idle);
    else
        enterFailed(trouble);
}

QCoro::Task<AppUpdater::Verified> AppUpdater::fetch(Release release, QString file, QUuid token, std::stop_token stop)
{
    const auto stopped = Unexpected(Trouble{.kind = Trouble::Kind::Stopped});
    const bool isThere = co_await QtConcurrent::run(updateFolder::hasImage, m_platform.workingFolder, file);
    if (stop.stop_requested())
        co_return stopped;
    if (isThere) {
        // Downloaded by an earlier run.
        const Verified verified = co_await verify(release, file, stop);
        if (stop.stop_requested())
            co_return stopped;
        const bool isStillThere = co_await QtConcurrent::run(updateFolder::hasImage, m_platform.workingFolder, file);
        if (stop.stop_requested())
            co_return stopped;
        if (isStillThere)
            co_return verified;
        m_progress = 0;
        enter(Phase::Downloading);
    }
    const auto note = [this, token, stop](double progress) {
        if (stop.stop_requested() || m_downloadToken != token)
            return;
        m_progress = progress;
        Q_EMIT changed();
    };
    const auto downloaded =
        co_await downloadImage({.url = release.url, .file = file, .size = release.size}, note, stop);
    if (stop.stop_requested())
        co_return stopped;
    if (downloaded)
        co_return co_await verify(release, file, stop);
    switch (downloaded.error().kind) {
    case ImageDownloadFailure::Kind::Http:
        co_return Unexpected(Trouble{.kind = Trouble::Kind::Http, .status = downloaded.error().status});
    case ImageDownloadFailure::Kind::Unwritable:
        co_return Unexpected(Trouble{.kind = Trouble::Kind::Unreadable});
    case ImageDownloadFailure::Kind::Incomplete:
    case ImageDownloadFailure::Kind::TooLarge:
    case ImageDownloadFailure::Kind::Stopped:
        break;
    }
    co_return Unexpected(Trouble{.kind = Trouble::Kind::Changed});
}

QCoro::Task<Result<QByteArray, AppUpdater::Trouble>> AppUpdater::fetchSignature(Release release, QString file,
                                                                                std::stop_token stop)
{
    const auto downloaded = co_await downloadImage(
        {.url = release.signatureUrl(),
         .file = file + QStringLiteral(".minisig"),
         .size = {},
         .total = signatureTimeout,
         .most = MinisignSignature::maximumBytes},
        [](double) {}, stop);
    if (stop.stop_requested())
        co_return Unexpected(Trouble{.kind = Trouble::Kind::Stopped});
    if (downloaded)
        co_return co_await QtConcurrent::run(takeSignature, *downloaded);
    const ImageDownloadFailure failure = downloaded.error();
    switch (failure.kind) {
    case ImageDownloadFailure::Kind::TooLarge:
        co_return QByteArray();
    case ImageDownloadFailure::Kind::Http:
        if (isMissing(failure.status))
            co_return QByteArray();
        co_return Unexpected(Trouble{.kind = Trouble::Kind::Http, .status = failure.status});
    case ImageDownloadFailure::Kind::Unwritable:
        co_return Unexpected(Trouble{.kind = Trouble::Kind::Unreadable});
    case ImageDownloadFailure::Kind::Incomplete:
    case ImageDownloadFailure::Kind::Stopped:
        break;
    }
    co_return Unexpected(Trouble{.kind = Trouble::Kind::Changed});
}

QCoro::Task<AppUpdater::Verified> AppUpdater::verify(Release release, QString file, std::stop_token stop)
{
    m_progress = 1;
    enter(Phase::Verifying);
    const auto signature = co_await fetchSignature(release, file, stop);
    if (stop.stop_requested())
        co_return Unexpected(Trouble{.kind = Trouble::Kind::Stopped});

    // Without a signature the image is looked at all the same: that it is not whole is said first.
    const ReleaseClaims claims{.sha256 = release.sha256,
                               .size = release.size,
                               .signature = signature ? *signature : QByteArray(),
                               .publicKey = m_identity.publicKey};
    // Another time the server may have the signature, and then the image need not be downloaded again.
    const bool isConclusive = signature.hasValue();

    const auto check = [file, claims, isConclusive, stop] {
        auto sha256 = checkRelease(file, claims, stop);
        const bool isUseless = !sha256 && sha256.error() != ReleaseFlaw::Stopped &&
                               (isConclusive || sha256.error() != ReleaseFlaw::NotSigned);
        if (isUseless)
            QFile::remove(file);
        return sha256;
    };
    const Result<QString, ReleaseFlaw> sha256 = co_await QtConcurrent::run(check);
    if (stop.stop_requested())
        co_return Unexpected(Trouble{.kind = Trouble::Kind::Stopped});
    if (sha256)
        co_return *sha256;
    switch (sha256.error()) {
    case ReleaseFlaw::Changed:
        co_return Unexpected(Trouble{.kind = Trouble::Kind::Changed, .isFlaw = true});
    case ReleaseFlaw::NotSigned:
        co_return Unexpected(isConclusive ? Trouble{.kind = Trouble::Kind::NotSigned, .isFlaw = true}
                                          : signature.error());
    case ReleaseFlaw::Unreadable:
    case ReleaseFlaw::Stopped:
        break;
    }
    co_return Unexpected(Trouble{.kind = Trouble::Kind::Unreadable});
}

void AppUpdater::setReady(const QString& image, const QString& sha256)
{
    m_image = image;
    m_readySHA256 = sha256;
    m_isImageOpened = false;
    enter(Phase::Ready);
}

void AppUpdater::forgetImage()
{
    m_image.clear();
    m_readySHA256.reset();
    m_isImageOpened = false;
}

void AppUpdater::openImage()
{
    if (!isReady())
        return;
    m_isImageOpened = true;
    m_downloadIsBackground = false; // the shopper has it in hand
    if (m_platform.openExternally)
        m_platform.openExternally(QUrl::fromLocalFile(QFileInfo(m_image).absolutePath()));
    Q_EMIT changed();
}

void AppUpdater::discardImages() const
{
    const QString kept = m_release ? updateFolder::imageFile(m_platform.workingFolder, *m_release) : QString();
    static_cast<void>(QtConcurrent::run(updateFolder::removeImages, m_platform.workingFolder, kept));
}

} // namespace loom
