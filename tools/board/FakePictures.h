#pragma once

#include <QMutex>
#include <QNetworkAccessManager>
#include <QObject>
#include <QQmlNetworkAccessManagerFactory>
#include <QStringList>

namespace loom
{

/// Answers an engine's picture requests from memory: it draws a garment at the width asked for. A path that ends in
/// "broken" is answered with 404 until `mend` is called, one that ends in "late" when `release` is called.
/// Requests come from the engine's loader thread.
class FakePictures : public QObject, public QQmlNetworkAccessManagerFactory
{
    Q_OBJECT

public:
    QNetworkAccessManager* create(QObject* parent) override;

    /// The addresses that were asked for, since the last `forget`.
    Q_INVOKABLE QStringList requests() const;
    Q_INVOKABLE void release();
    Q_INVOKABLE void mend();
    Q_INVOKABLE void forget();

    /// Notes a request and says whether its answer may come at once.
    bool receive(const QUrl& url);
    [[nodiscard]] bool isBroken(const QUrl& url) const;

Q_SIGNALS:
    void released();

private:
    mutable QMutex m_mutex;
    QStringList m_requests;
    bool m_released = false;
    bool m_mended = false;
};

} // namespace loom
