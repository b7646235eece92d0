#include "platform/PortalRequest.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <qcoro/qcorofuture.h>

#include <utility>

namespace loom
{

QDBusMessage PortalRequest::call(const QString& interface, const char* method)
{
    return QDBusMessage::createMethodCall(service, root, interface, QLatin1String(method));
}

QString PortalRequest::path(const QDBusConnection& bus, const char* kind, const QString& token)
{
    QString sender = bus.baseService().mid(1); // begins with a colon
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    return root + QLatin1Char('/') + QLatin1String(kind) + QLatin1Char('/') + sender + QLatin1Char('/') + token;
}

QCoro::Task<PortalAnswer> PortalRequest::ask(QDBusConnection bus, QDBusMessage call, QVariantMap options, QString token,
                                             std::stop_token stop)
{
    if (!bus.isConnected() || stop.stop_requested())
        co_return PortalAnswer{};
    PortalRequest request;
    // Heard before it is asked: portals may answer at once.
    if (!bus.connect(service, path(bus, "request", token), QStringLiteral("org.freedesktop.portal.Request"),
                     QStringLiteral("Response"), &request, SLOT(responded(uint, QVariantMap))))
        co_return PortalAnswer{};
    options.insert(QStringLiteral("handle_token"), token);
    call << options;
    const QDBusPendingCallWatcher sending(bus.asyncCall(call));
    connect(&sending, &QDBusPendingCallWatcher::finished, &request, [&request](QDBusPendingCallWatcher* sent) {
        if (sent->isError())
            request.finish({});
    });
    const std::stop_callback onStop(stop, [&request] { request.finish({}); });
    co_return co_await request.m_promise.future();
}

void PortalRequest::responded(uint code, const QVariantMap& results)
{
    PortalAnswer answer{.isAsked = true};
    if (code == 0)
        answer.result = results;
    finish(std::move(answer));
}

void PortalRequest::finish(PortalAnswer answer)
{
    if (std::exchange(m_isFinished, true))
        return;
    m_promise.addResult(std::move(answer));
    m_promise.finish();
}

} // namespace loom
