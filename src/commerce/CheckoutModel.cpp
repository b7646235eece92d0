#include "commerce/CheckoutModel.h"

#include "base/Announcements.h"
#include "base/Clock.h"
#include "base/Log.h"

#include <QCoreApplication>
#include <QtConcurrent>
#include <qcoro/qcorofuture.h>

namespace loom
{

CheckoutModel::CheckoutModel(CheckoutRequest request, QUrl start, CheckoutHosts hosts, CheckoutGoods goods,
                             Services services, QObject* parent)
    : QObject(parent)
    , m_request(std::move(request))
    , m_address(std::move(start))
    , m_hosts(std::move(hosts))
    , m_goods(std::move(goods))
    , m_services(std::move(services))
    , m_shown(m_address)
{
}

CheckoutModel::~CheckoutModel() = default;

void CheckoutModel::setPhase(Phase phase)
{
    m_phase = phase;
    Q_EMIT changed();
}

QString CheckoutModel::connectionText() const
{
    return isSecure() ? QCoreApplication::translate("Loomstreet", "Secure connection to %1").arg(m_shown.host())
                      : QCoreApplication::translate("Loomstreet", "Connection is not secure");
}

QString CheckoutModel::completionText() const
{
    if (m_number.isEmpty())
        return QCoreApplication::translate("Loomstreet", "Order placed. It will show under Orders in a few minutes.");
    return QCoreApplication::translate("Loomstreet", "Order %1 placed. It will show under Orders in a few minutes.")
        .arg(m_number);
}

QString CheckoutModel::summaryText() const
{
    const int pieces = static_cast<int>(m_goods.pieces);
    return QCoreApplication::translate("Loomstreet", "%Ln pieces  ·  confirmation sent to your email", nullptr, pieces);
}

QString CheckoutModel::userAgent() const
{
    return QStringLiteral("Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) AppleWebKit/605.1.15 (KHTML, like Gecko) "
                          "Version/18.0 Safari/605.1.15 LOOMSTREETMac/") +
           m_services.appVersion;
}

bool CheckoutModel::isAllowed(const QUrl& url) const
{
    return (m_isAtStart && url == m_address) || isAllowedInCheckout(url, m_hosts);
}

bool CheckoutModel::mayNavigate(const QUrl& url)
{
    if (m_isClosed)
        return false;
    if (isAllowed(url))
        return true;
    qCInfo(logApp) << "the checkout page may not go to" << url.scheme() << url.host();
    if (url.scheme() == QLatin1String("https")) {
        m_refusedLink = url;
        Q_EMIT changed();
    }
    return false;
}

void CheckoutModel::openRefusedLink()
{
    if (!m_refusedLink.isEmpty())
        m_services.openExternally(m_refusedLink);
    forgetRefusedLink();
}

void CheckoutModel::forgetRefusedLink()
{
    m_refusedLink.clear();
    Q_EMIT changed();
}

void CheckoutModel::loadStarted(const QUrl& url)
{
    // The engine tells of loads that were refused as well.
    if (m_phase == Phase::Failed || m_phase == Phase::Completed || m_isClosed || !isAllowed(url))
        return;
    m_reason.clear();
    Q_EMIT changed();
    static_cast<void>(watchLoad());
}

QCoro::Task<> CheckoutModel::watchLoad()
{
    const Work::Run run = m_loading.begin();
    co_await m_services.clock.sleep(loadTimeout, run.stop());
    if (!run.isStopped())
        die(QStringLiteral(QT_TRANSLATE_NOOP("Loomstreet", "The page took too long to load.")));
}

bool CheckoutModel::loadFinished(const QUrl& url)
{
    m_loading.stop();
    if (m_phase == Phase::Failed || m_phase == Phase::Completed || m_isClosed)
        return false;
    m_isAtStart = false;
    m_shown = url;
    if (!isOrderPage(url)) {
        setPhase(Phase::Page);
        return false;
    }
    m_refusedLink.clear();
    setPhase(Phase::Completed);
    m_services.announcements.post(Announcement::CheckoutCompleted);
    return true;
}

bool CheckoutModel::loadStopped(const QUrl& url)
{
    if (isAllowed(url))
        return loadFinished(url);
    m_loading.stop();
    if (m_phase == Phase::Opening)
        die(QStringLiteral(QT_TRANSLATE_NOOP("Loomstreet", "The page leads out of the checkout.")));
    return false;
}

void CheckoutModel::readConfirmation(const QString& text)
{
    if (m_phase == Phase::Completed && m_number.isEmpty())
        static_cast<void>(findNumber(text));
}

QCoro::Task<> CheckoutModel::findNumber(QString text)
{
    const Work::Run run = m_reading.begin();
    // A page may hold any amount of text.
    const auto number = co_await QtConcurrent::run(orderNumber, text);
    if (run.isStopped())
        co_return;
    m_number = number.value_or(QString());
    Q_EMIT changed();
    Q_EMIT orderPlaced(m_number);
}

void CheckoutModel::loadFailed(const QString& reason)
{
    m_loading.stop();
    if (m_phase != Phase::Completed)
        die(reason);
}

void CheckoutModel::rendererGone()
{
    m_loading.stop();
    if (m_phase != Phase::Completed)
        die(QStringLiteral(QT_TRANSLATE_NOOP("Loomstreet", "The page stopped working.")));
}

QString CheckoutModel::errorText() const
{
    // The engine's own reasons are in no table, and stay as they are.
    return m_reason.isEmpty() ? QString() : QCoreApplication::translate("Loomstreet", m_reason.toUtf8().constData());
}

void CheckoutModel::die(const QString& reason)
{
    if (m_phase == Phase::Failed || m_isClosed)
        return;
    if (!std::exchange(m_wasRebuilt, true)) {
        rebuild();
        return;
    }
    m_reason = reason;
    setPhase(Phase::Failed);
}

void CheckoutModel::rebuild()
{
    m_loading.stop();
    // A hand-over is good once; the cart's own address is good until the order is placed.
    m_address = m_request.url;
    m_shown = m_address;
    m_isAtStart = true;
    m_refusedLink.clear();
    m_reason.clear();
    ++m_generation;
    Q_EMIT addressChanged();
    setPhase(Phase::Opening);
}

void CheckoutModel::reload()
{
    if (m_phase != Phase::Completed && !m_isClosed)
        rebuild();
}

void CheckoutModel::continueInBrowser()
{
    m_services.openExternally(m_request.url);
}

void CheckoutModel::close()
{
    if (std::exchange(m_isClosed, true))
        return;
    m_loading.stop();
    m_services.announcements.post(Announcement::CheckoutClosed);
    Q_EMIT closed();
}

} // namespace loom
