#include "ui/web/StoreHostGuard.h"

namespace loom
{

void StoreHostInterceptor::interceptRequest(QWebEngineUrlRequestInfo& request)
{
    const QUrl url = request.requestUrl();
    // What a page carries in itself does not leave the machine.
    const bool isInline = url.scheme() == QLatin1String("data") || url.scheme() == QLatin1String("blob");
    if (!isInline && !m_storePages.mayLoad(url))
        request.block(true);
}

StoreHostGuard::~StoreHostGuard()
{
    if (m_profile)
        m_profile->setUrlRequestInterceptor(nullptr);
}

void StoreHostGuard::setStoreAddress(const QString& address)
{
    m_storeAddress = address;
    guard();
}

void StoreHostGuard::setProfile(QObject* profile)
{
    m_profile = qobject_cast<QQuickWebEngineProfile*>(profile);
    guard();
}

void StoreHostGuard::guard()
{
    if (m_profile && !m_storeAddress.isEmpty()) {
        m_interceptor = std::make_unique<StoreHostInterceptor>(StorePages(m_storeAddress));
        m_profile->setUrlRequestInterceptor(m_interceptor.get());
    }
    Q_EMIT changed();
}

} // namespace loom
