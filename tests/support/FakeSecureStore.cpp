#include "support/FakeSecureStore.h"

#include <gtest/gtest.h>

namespace loom
{

namespace
{

const QString refusal = QStringLiteral("the wallet refuses");

} // namespace

/// Suspends a call for as long as the store holds its answers back.
class FakeSecureStore::Turn
{
public:
    explicit Turn(FakeSecureStore& store)
        : m_store(store)
    {
    }

    [[nodiscard]] bool await_ready() const { return !m_store.m_isHolding; }
    void await_suspend(std::coroutine_handle<> waiting) { m_store.m_waiting.push_back(waiting); }
    void await_resume() const {}

private:
    FakeSecureStore& m_store;
};

FakeSecureStore::~FakeSecureStore()
{
    if (!m_waiting.empty())
        ADD_FAILURE() << m_waiting.size() << " calls still wait when their secure store goes away";
}

QCoro::Task<Result<void, QString>> FakeSecureStore::store(QString key, QByteArray bytes)
{
    m_calls.append(QStringLiteral("store ") + key);
    co_await Turn(*this);
    if (m_failing.contains(Operation::Store))
        co_return Unexpected(refusal);
    m_secrets.insert(key, bytes);
    co_return Result<void, QString>();
}

QCoro::Task<Result<std::optional<QByteArray>, QString>> FakeSecureStore::read(QString key)
{
    m_calls.append(QStringLiteral("read ") + key);
    co_await Turn(*this);
    if (m_failing.contains(Operation::Read))
        co_return Unexpected(refusal);
    co_return m_secrets.contains(key) ? std::optional(m_secrets.value(key)) : std::nullopt;
}

QCoro::Task<Result<void, QString>> FakeSecureStore::remove(QString key)
{
    m_calls.append(QStringLiteral("remove ") + key);
    co_await Turn(*this);
    if (m_failing.contains(Operation::Remove))
        co_return Unexpected(refusal);
    m_secrets.remove(key);
    co_return Result<void, QString>();
}

void FakeSecureStore::setFailing(Operation operation, bool isFailing)
{
    if (isFailing)
        m_failing.insert(operation);
    else
        m_failing.remove(operation);
}

void FakeSecureStore::release()
{
    ASSERT_FALSE(m_waiting.empty()) << "no call waits";
    const std::coroutine_handle<> first = m_waiting.front();
    m_waiting.erase(m_waiting.begin());
    first.resume();
}

} // namespace loom
