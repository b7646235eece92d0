#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>
#include <qcoro/qcorotask.h>

#include <optional>

namespace loom
{

/// Where secrets are kept, each under a key. Main thread; the calls do not block, however long a wallet takes to be
/// opened. The failure text is for the log and names no secret.
class SecureStore
{
public:
    SecureStore() = default;
    SecureStore(const SecureStore&) = delete;
    SecureStore& operator=(const SecureStore&) = delete;
    virtual ~SecureStore() = default;

    [[nodiscard]] virtual QCoro::Task<Result<void, QString>> store(QString key, QByteArray bytes) = 0;
    /// Nothing when the key is not there.
    [[nodiscard]] virtual QCoro::Task<Result<std::optional<QByteArray>, QString>> read(QString key) = 0;
    /// A key that is not there counts as removed.
    [[nodiscard]] virtual QCoro::Task<Result<void, QString>> remove(QString key) = 0;
};

} // namespace loom
