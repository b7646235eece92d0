#include "platform/KeychainSecureStore.h"

#include <qcoro/qcorosignal.h>
#include <qt6keychain/keychain.h>

namespace loom
{

namespace
{

const QString serviceName = QStringLiteral("LOOMSTREET");

/// Starts the job and waits until it is done, however long the wallet takes.
QCoro::Task<> finished(QKeychain::Job* job)
{
    job->setAutoDelete(false);
    job->setInsecureFallback(false);
    job->start();
    co_await qCoro(job, &QKeychain::Job::finished);
}

template <typename JobType>
struct DeleteLater {
    void operator()(JobType* job) const { job->deleteLater(); }
};

template <typename JobType>
std::unique_ptr<JobType, DeleteLater<JobType>> makeJob(const QString& key)
{
    std::unique_ptr<JobType, DeleteLater<JobType>> job(new JobType(serviceName));
    job->setKey(key);
    return job;
}

} // namespace

QCoro::Task<Result<void, QString>> KeychainSecureStore::store(QString key, QByteArray bytes)
{
    const auto job = makeJob<QKeychain::WritePasswordJob>(key);
    job->setBinaryData(bytes);
    co_await finished(job.get());
    if (job->error() != QKeychain::NoError)
        co_return Unexpected(job->errorString());
    co_return Result<void, QString>();
}

QCoro::Task<Result<std::optional<QByteArray>, QString>> KeychainSecureStore::read(QString key)
{
    const auto job = makeJob<QKeychain::ReadPasswordJob>(key);
    co_await finished(job.get());
    if (job->error() == QKeychain::EntryNotFound)
        co_return std::optional<QByteArray>();
    if (job->error() != QKeychain::NoError)
        co_return Unexpected(job->errorString());
    co_return std::optional(job->binaryData());
}

QCoro::Task<Result<void, QString>> KeychainSecureStore::remove(QString key)
{
    const auto job = makeJob<QKeychain::DeletePasswordJob>(key);
    co_await finished(job.get());
    if (job->error() != QKeychain::NoError && job->error() != QKeychain::EntryNotFound)
        co_return Unexpected(job->errorString());
    co_return Result<void, QString>();
}

} // namespace loom
