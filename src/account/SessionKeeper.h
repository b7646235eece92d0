#pragma once

#include "account/AuthSession.h"
#include "base/Result.h"

#include <qcoro/qcorotask.h>

#include <memory>
#include <optional>

namespace loom
{

class SecureStore;

/// Keeps the session in the secure store, under "lst_auth". What is to be kept last is what is kept, however slow the
/// store is. Held together by its owner and by the calls that still run; main thread.
class SessionKeeper final : public std::enable_shared_from_this<SessionKeeper>
{
public:
    explicit SessionKeeper(SecureStore& secrets)
        : m_secrets(&secrets)
    {
    }

    /// What a store that reads as empty is worth: one that is locked does, too.
    enum class Emptiness { Believed, Proven };

    /// The bytes that were kept. An emptiness is proven by writing, which may ask the shopper for a password. The
    /// failure is for the log.
    [[nodiscard]] QCoro::Task<Result<std::optional<QByteArray>, QString>> read(Emptiness emptiness);

    /// Keeps the session, or removes what is kept.
    void write(const std::optional<AuthSession>& session);

    /// From here on the store is not touched: it may go.
    void end() { m_secrets = nullptr; }

    /// Something is not yet written as it is to be.
    [[nodiscard]] bool isBusy() const { return m_isWriting; }

private:
    [[nodiscard]] static QCoro::Task<> writeAll(std::shared_ptr<SessionKeeper> self);

    SecureStore* m_secrets; ///< null at the end
    std::optional<QByteArray> m_wanted;
    bool m_isDirty = false;
    bool m_isWriting = false;
};

} // namespace loom
