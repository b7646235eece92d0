#include "stylist/MiraAPI.h"

#include "base/JsonReader.h"
#include "net/WidgetClient.h"
#include "stylist/MiraReading.h"

#include <QJsonArray>
#include <QtConcurrentRun>
#include <qcoro/qcorofuture.h>

namespace loom
{

namespace
{

template <typename Record>
QCoro::Task<ApiResult<Record>> ask(std::reference_wrapper<WidgetClient> widget, QString path, QJsonObject body,
                                   Record (*decode)(const JsonReader&), std::stop_token stop)
{
    LOOM_CO_TRY(answer, co_await widget.get().post(path, body, {.timeout = MiraAPI::timeout}, stop));
    auto record = co_await QtConcurrent::run([answer, decode] { return decodeJson(answer, decode); });
    if (stop.stop_requested())
        co_return Unexpected(Failure(Cancelled()));
    co_return decodedAnswer(std::move(record));
}

/// Adds what is only told while somebody is signed in.
void insertKnown(QJsonObject& body, const QString& key, const QString& value)
{
    if (!value.isEmpty())
        body.insert(key, value);
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
    insertKnown(body, QStringLiteral("name"), identity.name);
    insertKnown(body, QStringLiteral("email"), identity.email);
    insertKnown(body, QStringLiteral("customer"), identity.customer);
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
