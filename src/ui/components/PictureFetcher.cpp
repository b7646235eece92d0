#include "ui/components/PictureFetcher.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QQmlNetworkAccessManagerFactory>

#include <memory>

namespace loom
{

PictureFetcher::PictureFetcher(QQmlNetworkAccessManagerFactory& factory)
    : m_factory(factory)
{
}

void PictureFetcher::fetch(const QUrl& address)
{
    if (!m_access)
        m_access = m_factory.create(this);
    QNetworkRequest request(address);
    request.setPriority(QNetworkRequest::LowPriority);
    // Where else a picture may be is for the page to follow.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    QNetworkReply* const reply = m_access->get(request);
    m_running.insert(reply);
    connect(reply, &QNetworkReply::readyRead, this, [reply, received = std::make_shared<qint64>(0)] {
        // The cache has its own copy.
        *received += reply->readAll().size();
        if (*received > maximumBytes)
            reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply] { end(reply); });
}

void PictureFetcher::abort()
{
    const QSet<QNetworkReply*> running = m_running;
    for (QNetworkReply* const reply : running) {
        reply->disconnect(this);
        reply->abort();
        end(reply);
    }
}

void PictureFetcher::end(QNetworkReply* reply)
{
    if (!m_running.remove(reply))
        return;
    reply->deleteLater();
    Q_EMIT ended();
}

} // namespace loom
