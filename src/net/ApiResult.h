#pragma once

#include "base/Result.h"
#include "net/APIError.h"

#include <variant>

namespace loom
{

/// The shopper went elsewhere. Never shown.
struct Cancelled {
    bool operator==(const Cancelled&) const = default;
};

/// Why a call has no result: an error to show, or a cancellation.
class Failure
{
public:
    Failure(APIError error)
        : m_reason(std::move(error))
    {
    } // NOLINT: an error is a failure wherever one is expected
    Failure(Cancelled cancelled)
        : m_reason(cancelled)
    {
    } // NOLINT

    [[nodiscard]] bool isCancelled() const { return std::holds_alternative<Cancelled>(m_reason); }
    /// Only when it is not a cancellation.
    [[nodiscard]] const APIError& error() const { return std::get<APIError>(m_reason); }

    bool operator==(const Failure&) const = default;

private:
    std::variant<Cancelled, APIError> m_reason;
};

template <typename T>
using ApiResult = Result<T, Failure>;

/// For `return`: the failure that holds one case of APIError.
template <typename Case>
[[nodiscard]] Unexpected<Failure> apiFailure(Case error)
{
    return Unexpected(Failure(APIError{std::move(error)}));
}

/// What was decoded from an answer, or the error that it could not be.
template <typename Record>
[[nodiscard]] ApiResult<Record> decodedAnswer(Result<Record, QString> record)
{
    if (!record)
        return apiFailure(APIError::Decoding{std::move(record).error()});
    return *std::move(record);
}

} // namespace loom
