#pragma once

#include "net/ApiResult.h"
#include "net/CallerIdentity.h"
#include "support/SupportFile.h"
#include "support/SupportInitResponse.h"
#include "support/SupportRepliesResponse.h"

#include <QJsonObject>
#include <qcoro/qcorotask.h>

#include <chrono>
#include <functional>
#include <stop_token>

namespace loom
{

class WidgetClient;

/// Customer service at the store's backend. Answers are decoded on a worker thread. Holds no state; the client must
/// outlive it. Main thread.
class SupportAPI
{
public:
    static constexpr std::chrono::seconds timeout{20};
    static constexpr std::chrono::seconds uploadSilence{60};

    /// What the shopper wrote. The same `clientID` again is the same message to the service.
    struct Message {
        QString visitorToken;
        QString clientID;
        QString body;
        QString language;
    };

    SupportAPI(WidgetClient& widget, std::function<CallerIdentity()> identity);

    /// Opens the conversation of a token, or a new one for an empty token.
    [[nodiscard]] QCoro::Task<ApiResult<SupportInitResponse>> init(QString visitorToken, std::stop_token stop);
    /// Answers with the message as the service has it and with all that came after it.
    [[nodiscard]] QCoro::Task<ApiResult<SupportRepliesResponse>> message(Message message, std::stop_token stop);
    /// The same with a file, whose message may have no body.
    [[nodiscard]] QCoro::Task<ApiResult<SupportRepliesResponse>> upload(Message message, SupportFile file,
                                                                        std::stop_token stop);
    /// What was written after the message `after`; everything if that is empty.
    [[nodiscard]] QCoro::Task<ApiResult<SupportRepliesResponse>> replies(QString visitorToken, QString after,
                                                                         std::stop_token stop);
    /// The shopper has seen everything up to the message `upTo`.
    [[nodiscard]] QCoro::Task<ApiResult<void>> read(QString visitorToken, QString upTo, std::stop_token stop);

private:
    /// With what the service is told of the caller.
    [[nodiscard]] QJsonObject identified(QJsonObject body) const;

    WidgetClient& m_widget;
    std::function<CallerIdentity()> m_identity;
};

/// The service does not, or no longer, know the conversation.
[[nodiscard]] bool isUnknownConversation(const Failure& failure);

} // namespace loom
