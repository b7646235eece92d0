#pragma once

#include "stylist/LocationSource.h"

#include <QFuture>
#include <QPromise>
#include <qcoro/qcorofuture.h>

#include <memory>

namespace loom
{

/// A desktop that says where the machine is once the test answers.
class FakeLocation final : public LocationSource
{
public:
    [[nodiscard]] bool isAvailable() override { return canLocate; }
    [[nodiscard]] QCoro::Task<Result<Coordinates, LocationFailure>> locate(std::stop_token stop) override
    {
        ++asked;
        auto promise = std::make_shared<QPromise<Answer>>();
        m_promise = promise;
        promise->start();
        const std::stop_callback cancel(stop, [promise] {
            if (!promise->future().isFinished()) {
                promise->addResult(Unexpected(LocationFailure::Cancelled));
                promise->finish();
            }
        });
        co_return co_await promise->future();
    }

    void answer(Result<Coordinates, LocationFailure> found)
    {
        m_promise->addResult(std::move(found));
        m_promise->finish();
    }

    bool canLocate = true;
    int asked = 0;

private:
    using Answer = Result<Coordinates, LocationFailure>;

    std::shared_ptr<QPromise<Answer>> m_promise;
};

} // namespace loom
