#pragma once

#include "storage/SecureStore.h"

#include <memory>

namespace loom
{

class Preferences;

/// Keeps secrets in the system's credential store when one answers at the first secret, otherwise in files. The choice
/// is made once for an installation and remembered; it never changes silently, because a secret written to one place
/// would then not be found in the other. Before it, reading looks in both and asks the shopper nothing. Owns both
/// stores. A call goes on when this is gone.
class ChosenSecureStore final : public SecureStore
{
public:
    /// `system` may be null, where there is none.
    ChosenSecureStore(Preferences& preferences, std::unique_ptr<SecureStore> system,
                      std::unique_ptr<SecureStore> files);

    [[nodiscard]] QCoro::Task<Result<void, QString>> store(QString key, QByteArray bytes) override;
    [[nodiscard]] QCoro::Task<Result<std::optional<QByteArray>, QString>> read(QString key) override;
    [[nodiscard]] QCoro::Task<Result<void, QString>> remove(QString key) override;

private:
    struct State;

    [[nodiscard]] static QCoro::Task<Result<std::optional<QByteArray>, QString>>
    readUnchosen(std::shared_ptr<State> state, QString key);
    [[nodiscard]] static QCoro::Task<SecureStore*> choose(std::shared_ptr<State> state);
    [[nodiscard]] static QCoro::Task<bool> systemStoreWorks(SecureStore* system);

    std::shared_ptr<State> m_state; ///< every call holds it, and goes on when this is gone
};

} // namespace loom
