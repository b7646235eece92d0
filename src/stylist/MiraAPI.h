#pragma once

#include "net/ApiResult.h"
#include "net/CallerIdentity.h"
#include "stylist/MiraGuideResponse.h"
#include "stylist/MiraInitResponse.h"
#include "stylist/MiraMessageRequest.h"
#include "stylist/MiraOrdersResponse.h"
#include "stylist/MiraSendResponse.h"

#include <qcoro/qcorotask.h>

#include <chrono>
#include <functional>
#include <stop_token>

namespace loom
{

class WidgetClient;

/// The stylist service of the store's backend. Answers are decoded on a worker thread. Holds no state; the client must
/// outlive it. Main thread.
class MiraAPI
{
public:
    static constexpr std::chrono::seconds timeout{20};

    MiraAPI(WidgetClient& widget, std::function<CallerIdentity()> identity);

    [[nodiscard]] CallerIdentity identity() const { return m_identity(); }

    /// Opens the conversation. `visitorToken` and `guideName` are empty until the service gave them.
    [[nodiscard]] QCoro::Task<ApiResult<MiraInitResponse>> init(QString visitorToken, QString guideName,
                                                                std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<MiraSendResponse>> message(MiraMessageRequest request, std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<MiraGuideResponse>> guide(std::stop_token stop);
    /// Those of the signed-in customer.
    [[nodiscard]] QCoro::Task<ApiResult<MiraOrdersResponse>> orders(std::stop_token stop);

private:
    WidgetClient& m_widget;
    std::function<CallerIdentity()> m_identity;
};

} // namespace loom
