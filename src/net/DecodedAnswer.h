#pragma once

#include "base/JsonReader.h"
#include "net/ApiResult.h"

#include <QtConcurrentRun>
#include <qcoro/qcorofuture.h>

#include <stop_token>

namespace loom
{

/// What an answer's bytes hold, decoded on a worker thread; cancelled if it is stopped meanwhile. To be called from the
/// main thread.
template <typename Decode>
[[nodiscard]] auto decodedElsewhere(QByteArray body, Decode decode, std::stop_token stop)
    -> QCoro::Task<ApiResult<decltype(decode(std::declval<const JsonReader&>()))>>
{
    auto record = co_await QtConcurrent::run([body, decode] { return decodeJson(body, decode); });
    if (stop.stop_requested())
        co_return Unexpected(Failure(Cancelled()));
    co_return decodedAnswer(std::move(record));
}

} // namespace loom
