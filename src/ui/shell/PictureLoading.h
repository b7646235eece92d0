#pragma once

#include <QQmlNetworkAccessManagerFactory>
#include <QString>

namespace loom
{

/// How the pictures of pages come over the network: over https alone, without cookies, with a bounded cache on disk
/// that serves what the store said may be kept. Called on the picture threads.
class PictureLoading final : public QQmlNetworkAccessManagerFactory
{
public:
    static constexpr qint64 cacheBytes = 256LL * 1024 * 1024;

    explicit PictureLoading(QString cacheFolder)
        : m_cacheFolder(std::move(cacheFolder))
    {
    }

    QNetworkAccessManager* create(QObject* parent) override;

private:
    QString m_cacheFolder;
};

} // namespace loom
