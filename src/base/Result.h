#pragma once

#include <QtGlobal>

#include <expected>
#include <utility>

namespace loom
{

/// A failure on its way into a Result.
template <typename E>
struct Unexpected {
    E reason;
    explicit Unexpected(E failure)
        : reason(std::move(failure))
    {
    }
};

/// A value or the reason there is none; look before you take either. Looking at it cannot be forgotten.
///
/// Wraps std::expected instead of naming it: the comparison templates of libstdc++ 12 cannot be instantiated for an
/// optional value inside a coroutine.
template <typename T, typename E>
class [[nodiscard]] Result
{
public:
    using Value = T;
    using Error = E;

    Result() = default;
    Result(T value)
        : m_content(std::move(value))
    {
    } // NOLINT
    Result(Unexpected<E> failure)
        : m_content(std::unexpected(std::move(failure.reason)))
    {
    } // NOLINT

    [[nodiscard]] explicit operator bool() const { return m_content.has_value(); }
    [[nodiscard]] bool hasValue() const { return m_content.has_value(); }

    [[nodiscard]] const T& operator*() const&
    {
        Q_ASSERT(hasValue());
        return *m_content;
    }
    [[nodiscard]] T& operator*() &
    {
        Q_ASSERT(hasValue());
        return *m_content;
    }
    [[nodiscard]] T&& operator*() && { return std::move(**this); }
    [[nodiscard]] const T* operator->() const { return &**this; }
    [[nodiscard]] T* operator->() { return &**this; }

    [[nodiscard]] const E& error() const&
    {
        Q_ASSERT(!hasValue());
        return m_content.error();
    }
    [[nodiscard]] E&& error() &&
    {
        Q_ASSERT(!hasValue());
        return std::move(m_content).error();
    }

    bool operator==(const Result& other) const
    {
        if (hasValue() != other.hasValue())
            return false;
        return hasValue() ? **this == *other : error() == other.error();
    }

private:
    std::expected<T, E> m_content;
};

/// Success without a value, or the reason there is none.
template <typename E>
class [[nodiscard]] Result<void, E>
{
public:
    using Value = void;
    using Error = E;

    Result() = default;
    Result(Unexpected<E> failure)
        : m_content(std::unexpected(std::move(failure.reason)))
    {
    } // NOLINT

    [[nodiscard]] explicit operator bool() const { return m_content.has_value(); }
    [[nodiscard]] bool hasValue() const { return m_content.has_value(); }
    [[nodiscard]] const E& error() const& { return m_content.error(); }
    [[nodiscard]] E&& error() && { return std::move(m_content).error(); }

private:
    std::expected<void, E> m_content;
};

} // namespace loom

/// In a coroutine: `variable` becomes the value of `expression`, or the coroutine returns its failure.
/// A statement form on purpose: a statement expression around co_await is miscompiled.
#define LOOM_CO_TRY(variable, expression)                                                                              \
    auto variable##OrFailure = (expression);                                                                           \
    if (!variable##OrFailure)                                                                                          \
        co_return ::loom::Unexpected(std::move(variable##OrFailure).error());                                          \
    auto variable = *std::move(variable##OrFailure)

/// The same in a plain function.
#define LOOM_TRY(variable, expression)                                                                                 \
    auto variable##OrFailure = (expression);                                                                           \
    if (!variable##OrFailure)                                                                                          \
        return ::loom::Unexpected(std::move(variable##OrFailure).error());                                             \
    auto variable = *std::move(variable##OrFailure)
