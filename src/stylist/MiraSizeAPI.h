#pragma once

#include "net/ApiResult.h"
#include "net/CallerIdentity.h"

#include <qcoro/qcorotask.h>

#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>

namespace loom
{

class WidgetClient;

/// Asks the store's backend which size of a piece the shopper should take. Holds no state; the client must outlive it.
/// Main thread.
class MiraSizeAPI
{
public:
    static constexpr std::chrono::seconds timeout{10};

    MiraSizeAPI(WidgetClient& widget, std::function<CallerIdentity()> identity);

    /// None when the service has no advice. `locale` is the code of the window's language.
    [[nodiscard]] QCoro::Task<ApiResult<std::optional<QString>>> recommendedSize(QString handle, QString locale,
                                                                                 std::stop_token stop);

private:
    WidgetClient& m_widget;
    std::function<CallerIdentity()> m_identity;
};

} // namespace loom
