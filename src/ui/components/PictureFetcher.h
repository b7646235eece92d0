#pragma once

#include <QObject>
#include <QSet>
#include <QUrl>

class QNetworkAccessManager;
class QNetworkReply;
class QQmlNetworkAccessManagerFactory;

namespace loom
{

/// Brings pictures into the cache on disk, as the pages would load them, and keeps nothing of them itself. Lives on a
/// thread of its own, where the cache is read and written; owned by PicturePrefetch.
class PictureFetcher final : public QObject
{
    Q_OBJECT

public:
    /// A picture larger than this is none.
    static constexpr qint64 maximumBytes = 16LL * 1024 * 1024;

    /// The factory is the engine's, and outlives this.
    explicit PictureFetcher(QQmlNetworkAccessManagerFactory& factory);

    void fetch(const QUrl& address);
    /// Gives up whatever is under way.
    void abort();

Q_SIGNALS:
    /// One of them has ended, in whatever way.
    void ended();

private:
    void end(QNetworkReply* reply);

    QQmlNetworkAccessManagerFactory& m_factory;
    QNetworkAccessManager* m_access = nullptr; ///< made with the first picture, on the thread it is used on
    QSet<QNetworkReply*> m_running;
};

} // namespace loom
