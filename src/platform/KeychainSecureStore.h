#pragma once

#include "storage/SecureStore.h"

namespace loom
{

/// The system's credential store, by the Secret Service API. Each secret is a password of the service "LOOMSTREET".
class KeychainSecureStore final : public SecureStore
{
public:
    [[nodiscard]] QCoro::Task<Result<void, QString>> store(QString key, QByteArray bytes) override;
    [[nodiscard]] QCoro::Task<Result<std::optional<QByteArray>, QString>> read(QString key) override;
    [[nodiscard]] QCoro::Task<Result<void, QString>> remove(QString key) override;
};

} // namespace loom
