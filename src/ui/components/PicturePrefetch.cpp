#include "ui/components/PicturePrefetch.h"

#include "ui/components/PictureAddress.h"
#include "ui/components/PictureFetcher.h"

#include <utility>

namespace loom
{

PicturePrefetch::PicturePrefetch(QQmlEngine& engine, QObject* parent)
    : QObject(parent)
    , m_engine(engine)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(rest);
    connect(&m_rest, &QTimer::timeout, this, &PicturePrefetch::begin);
    m_thread.setObjectName(QStringLiteral("prefetch"));
}

PicturePrefetch::~PicturePrefetch()
{
    m_thread.quit();
    m_thread.wait();
}

void PicturePrefetch::setEnabled(bool isEnabled)
{
    if (std::exchange(m_isEnabled, isEnabled) == isEnabled)
        return;
    if (!isEnabled)
        drop();
    Q_EMIT enabledChanged();
}

void PicturePrefetch::setPageWidth(int pixels)
{
    if (std::exchange(m_pageWidth, pixels) != pixels)
        Q_EMIT pageWidthChanged();
}

void PicturePrefetch::expect(const QStringList& pictures)
{
    drop();
    m_expected = pictures;
    if (m_isEnabled && !pictures.isEmpty())
        m_rest.start();
}

void PicturePrefetch::forget(const QStringList& pictures)
{
    if (pictures == m_expected)
        drop();
}

void PicturePrefetch::endWaiting()
{
    --m_awaited;
    proceed();
}

void PicturePrefetch::begin()
{
    for (const QString& picture : m_expected.mid(0, maximumExpected)) {
        // Of what is no address over https nothing is left.
        if (const QString address = pictureAddress(picture, m_pageWidth); !address.isEmpty())
            m_queue.append(QUrl(address));
    }
    proceed();
}

void PicturePrefetch::proceed()
{
    if (m_queue.isEmpty() || m_awaited > 0 || !m_engine.networkAccessManagerFactory())
        return;
    if (!m_fetcher) {
        m_fetcher = new PictureFetcher(*m_engine.networkAccessManagerFactory());
        m_fetcher->moveToThread(&m_thread);
        connect(&m_thread, &QThread::finished, m_fetcher, &QObject::deleteLater);
        connect(m_fetcher, &PictureFetcher::ended, this, [this] {
            --m_running;
            proceed();
        });
        m_thread.start(QThread::LowPriority);
    }
    while (m_running < maximumRunning && !m_queue.isEmpty()) {
        ++m_running;
        QMetaObject::invokeMethod(m_fetcher,
                                  [fetcher = m_fetcher, address = m_queue.takeFirst()] { fetcher->fetch(address); });
    }
}

void PicturePrefetch::drop()
{
    m_rest.stop();
    m_expected.clear();
    m_queue.clear();
    if (m_running > 0)
        QMetaObject::invokeMethod(m_fetcher, &PictureFetcher::abort);
}

} // namespace loom
