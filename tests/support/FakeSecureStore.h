#pragma once

#include "storage/SecureStore.h"

#include <QMap>
#include <QSet>
#include <QStringList>

#include <coroutine>
#include <vector>

namespace loom
{

/// Secrets in memory. Answers at once unless told to hold its answers back, as a wallet does that asks for a password
/// first. A call that still waits when the store goes away fails the test.
class FakeSecureStore final : public SecureStore
{
public:
    enum class Operation { Store, Read, Remove };

    ~FakeSecureStore() override;

    [[nodiscard]] QCoro::Task<Result<void, QString>> store(QString key, QByteArray bytes) override;
    [[nodiscard]] QCoro::Task<Result<std::optional<QByteArray>, QString>> read(QString key) override;
    [[nodiscard]] QCoro::Task<Result<void, QString>> remove(QString key) override;

    /// From now on every such call fails, or no longer.
    void setFailing(Operation operation, bool isFailing = true);
    /// From now on calls wait for release(), or no longer.
    void setHolding(bool isHolding) { m_isHolding = isHolding; }
    /// Lets the call that has waited longest have its answer.
    void release();
    [[nodiscard]] int waiting() const { return static_cast<int>(m_waiting.size()); }

    QMap<QString, QByteArray>& secrets() { return m_secrets; }
    /// What was asked, in order, such as "read lst_auth".
    [[nodiscard]] const QStringList& calls() const { return m_calls; }

private:
    class Turn;

    QMap<QString, QByteArray> m_secrets;
    QSet<Operation> m_failing;
    bool m_isHolding = false;
    std::vector<std::coroutine_handle<>> m_waiting;
    QStringList m_calls;
};

} // namespace loom
