#pragma once

#include <qcoro/qcorotask.h>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace loom
{

/// How long the real world may take for anything in a test. Only a broken test ever waits that long.
inline constexpr std::chrono::seconds guard{20};

/// Turns the event loop until `isMet`; throws, which fails the test, when that never happens.
void waitUntil(const std::function<bool()>& isMet, const std::string& what);

/// Turns the event loop until nothing is left in it that could be done without waiting.
void drainEvents();

/// A coroutine at work. It goes on when this object goes away.
template <typename T>
class Running
{
public:
    explicit Running(QCoro::Task<T> task) { static_cast<void>(observe(std::move(task), m_result)); }

    [[nodiscard]] bool isDone() const { return m_result->has_value(); }

    /// What the coroutine returned; waits for it.
    [[nodiscard]] T& result()
    {
        waitUntil([this] { return isDone(); }, "a coroutine comes to its end");
        return **m_result;
    }

private:
    static QCoro::Task<> observe(QCoro::Task<T> task, std::shared_ptr<std::optional<T>> result)
    {
        result->emplace(co_await std::move(task));
    }

    std::shared_ptr<std::optional<T>> m_result = std::make_shared<std::optional<T>>();
};

template <>
class Running<void>
{
public:
    explicit Running(QCoro::Task<> task) { static_cast<void>(observe(std::move(task), m_isDone)); }

    [[nodiscard]] bool isDone() const { return *m_isDone; }
    void result()
    {
        waitUntil([this] { return isDone(); }, "a coroutine comes to its end");
    }

private:
    static QCoro::Task<> observe(QCoro::Task<> task, std::shared_ptr<bool> isDone)
    {
        co_await std::move(task);
        *isDone = true;
    }

    std::shared_ptr<bool> m_isDone = std::make_shared<bool>(false);
};

/// Runs a coroutine to its end and returns what it returned.
template <typename T>
T run(QCoro::Task<T> task)
{
    Running<T> running(std::move(task));
    if constexpr (std::is_void_v<T>)
        running.result();
    else
        return std::move(running.result());
}

} // namespace loom
