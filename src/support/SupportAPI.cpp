#include "support/SupportAPI.h"

#include "net/DecodedAnswer.h"
#include "net/WidgetClient.h"
#include "support/SupportReading.h"

namespace loom
{

namespace
{

template <typename Record>
QCoro::Task<ApiResult<Record>> ask(std::reference_wrapper<WidgetClient> widget, QString path, QJsonObject body,
                                   Record (*decode)(const JsonReader&), std::stop_token stop)
{
    LOOM_CO_TRY(answer, co_await widget.get().post(path, body, {.timeout = SupportAPI::timeout}, stop));
    co_return co_await decodedElsewhere(answer, decode, stop);
}

} // namespace

SupportAPI::SupportAPI(WidgetClient& widget, std::function<CallerIdentity()> identity)
    : m_widget(widget)
    , m_identity(std::move(identity))
{
}

QJsonObject SupportAPI::identified(QJsonObject body) const
{
    const CallerIdentity identity = m_identity();
    body.insert(QStringLiteral("visitorId"), identity.visitorId);
    insertCustomer(body, identity);
    return body;
}

QCoro::Task<ApiResult<SupportInitResponse>> SupportAPI::init(QString visitorToken, std::stop_token stop)
{
    QJsonObject body;
    insertKnown(body, QStringLiteral("visitorToken"), visitorToken);
    co_return co_await ask(m_widget, QStringLiteral("/support-init"), identified(body), decodeSupportInit, stop);
}

QCoro::Task<ApiResult<SupportRepliesResponse>> SupportAPI::message(Message message, std::stop_token stop)
{
    co_return co_await ask(m_widget, QStringLiteral("/support-message"),
                           identified({{QStringLiteral("visitorToken"), message.visitorToken},
                                       {QStringLiteral("body"), message.body},
                                       {QStringLiteral("lang"), message.language},
                                       {QStringLiteral("clientID"), message.clientID}}),
                           decodeSupportReplies, stop);
}

QCoro::Task<ApiResult<SupportRepliesResponse>> SupportAPI::upload(Message message, SupportFile file,
                                                                  std::stop_token stop)
{
    const QList<std::pair<QString, QString>> fields{{QStringLiteral("visitorToken"), message.visitorToken},
                                                    {QStringLiteral("visitorId"), m_identity().visitorId},
                                                    {QStringLiteral("clientID"), message.clientID},
                                                    {QStringLiteral("body"), message.body}};
    const UploadFile uploaded{
        .fieldName = QStringLiteral("file"), .fileName = file.name, .mimeType = file.mimeType, .bytes = file.bytes};
    LOOM_CO_TRY(answer,
                co_await m_widget.upload(QStringLiteral("/support-upload"), fields, uploaded, stop, uploadSilence));
    co_return co_await decodedElsewhere(answer, decodeSupportReplies, stop);
}

QCoro::Task<ApiResult<SupportRepliesResponse>> SupportAPI::replies(QString visitorToken, QString after,
                                                                   std::stop_token stop)
{
    QJsonObject body{{QStringLiteral("visitorToken"), visitorToken}};
    insertKnown(body, QStringLiteral("after"), after);
    co_return co_await ask(m_widget, QStringLiteral("/support-replies"), body, decodeSupportReplies, stop);
}

QCoro::Task<ApiResult<void>> SupportAPI::read(QString visitorToken, QString upTo, std::stop_token stop)
{
    const QJsonObject body{{QStringLiteral("visitorToken"), visitorToken}, {QStringLiteral("upTo"), upTo}};
    LOOM_CO_TRY(answer, co_await m_widget.post(QStringLiteral("/support-read"), body, {.timeout = timeout}, stop));
    static_cast<void>(answer);
    co_return ApiResult<void>();
}

bool isUnknownConversation(const Failure& failure)
{
    const auto* const http = failure.isCancelled() ? nullptr : failure.error().as<APIError::Http>();
    return http && http->status == 404 && http->code == QLatin1String("NOT_FOUND");
}

} // namespace loom
