#pragma once

#include "storage/SecureStore.h"

#include <QThreadPool>

namespace loom
{

/// Keeps each secret in a file ".secret-<key>" of the data folder, readable by its owner alone. Calls take effect one
/// after the other, also those that nobody waits for; the destructor waits until they have.
class FileSecureStore final : public SecureStore
{
public:
    explicit FileSecureStore(QString folder);

    [[nodiscard]] QCoro::Task<Result<void, QString>> store(QString key, QByteArray bytes) override;
    [[nodiscard]] QCoro::Task<Result<std::optional<QByteArray>, QString>> read(QString key) override;
    [[nodiscard]] QCoro::Task<Result<void, QString>> remove(QString key) override;

private:
    [[nodiscard]] QString filePath(const QString& key) const;

    QString m_folder;
    QThreadPool m_thread;
};

} // namespace loom
