#include "ui/shell/PictureLoading.h"

#include <QNetworkAccessManager>
#include <QNetworkDiskCache>
#include <QNetworkRequest>

#include <chrono>

namespace loom
{

namespace
{

constexpr std::chrono::seconds silence{15};

class PictureAccess final : public QNetworkAccessManager
{
public:
    using QNetworkAccessManager::QNetworkAccessManager;

protected:
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& original, QIODevice* data) override
    {
        QNetworkRequest request(original);
        // Qt Quick follows redirects by itself, wherever they lead.
        if (request.url().scheme() != QLatin1String("https"))
            request.setUrl(QUrl());
        request.setRawHeader("Accept", "image/webp,image/jpeg,image/png;q=0.8");
        request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::PreferCache);
        request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
        request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
        // Qt 6.4 loses requests on a shared HTTP/2 connection when others on it are given up, as scrolling does.
        request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
        request.setTransferTimeout(static_cast<int>(std::chrono::milliseconds(silence).count()));
        return QNetworkAccessManager::createRequest(operation, request, data);
    }
};

} // namespace

QNetworkAccessManager* PictureLoading::create(QObject* parent)
{
    auto* const access = new PictureAccess(parent);
    auto* const cache = new QNetworkDiskCache(access);
    cache->setCacheDirectory(m_cacheFolder);
    cache->setMaximumCacheSize(cacheBytes);
    access->setCache(cache);
    return access;
}

} // namespace loom
