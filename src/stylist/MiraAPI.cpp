#include "stylist/MiraAPI.h"

#include "net/DecodedAnswer.h"
#include "net/WidgetClient.h"
#include "stylist/MiraReading.h"

#include <QJsonArray>

namespace loom
{

namespace
{

template <typename Record>
QCoro::Task<ApiResult<Record>> ask(std::reference_wrapper<WidgetClient> widget, QString path, QJsonObject body,
                                   Record (*decode)(const JsonReader&), std::stop_token stop)
{
    LOOM_CO_TRY(answer, co_await widget.get().post(path, body, {.timeout = MiraAPI::timeout}, stop));
    co_return co_await decodedElsewhere(answer, decode, stop);
}

} // namespace

MiraAPI::MiraAPI(WidgetClient& widget, std::function<CallerIdentity()> identity)
    : m_widget(widget)
    , m_identity(std::move(identity))
{
}

QCoro::Task<ApiResult<MiraInitResponse>> MiraAPI::init(QString visitorToken, QString guideName, std::stop_token stop)
{
    return ask(m_widget, QStringLiteral("/init"),
               {{QStringLiteral("visitorToken"), visitorToken},
                {QStringLiteral("visitorId"), m_identity().visitorId},
                {QStringLiteral("guide"), guideName}},
               decodeMiraInit, stop);
}

QCoro::Task<ApiResult<MiraSendResponse>> MiraAPI::message(MiraMessageRequest request, std::stop_token stop)
{
    const CallerIdentity identity = m_identity();
    QJsonArray attachments;
    for (const MiraAttachment& attachment : request.attachments)
        attachments.append(miraAttachmentJson(attachment));
    QJsonObject body{{QStringLiteral("visitorToken"), request.visitorToken},
                     {QStringLiteral("body"), request.body},
                     {QStringLiteral("lang"), request.language},
                     {QStringLiteral("attachments"), attachments},
                     {QStringLiteral("guide"), request.guideName},
                     {QStringLiteral("visitorId"), identity.visitorId}};
    insertCustomer(body, identity);
    return ask(m_widget, QStringLiteral("/message"), body, decodeMiraSend, stop);
}

QCoro::Task<ApiResult<MiraGuideResponse>> MiraAPI::guide(std::stop_token stop)
{
    const CallerIdentity identity = m_identity();
    QJsonObject body{{QStringLiteral("visitorId"), identity.visitorId}};
    insertKnown(body, QStringLiteral("email"), identity.email);
    return ask(m_widget, QStringLiteral("/guide-get"), body, decodeMiraGuide, stop);
}

QCoro::Task<ApiResult<MiraOrdersResponse>> MiraAPI::orders(std::stop_token stop)
{
    return ask(m_widget, QStringLiteral("/orders"), {}, decodeMiraOrders, stop);
}

} // namespace loom
