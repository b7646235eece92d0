#include "account/OrdersStore.h"

#include "account/AuthStore.h"
#include "account/OrdersReading.h"
#include "base/Announcements.h"
#include "base/Clock.h"
#include "storage/DataFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

namespace loom
{

namespace
{

const QString ordersFile = QStringLiteral("snap-orders");
const QString hiddenFile = QStringLiteral("lst_hidden_orders");

/// An order takes minutes to appear: three of them are waited for it, ever more patiently.
constexpr std::array<std::chrono::seconds, 6> waits{{std::chrono::seconds(4), std::chrono::seconds(8),
                                                     std::chrono::seconds(16), std::chrono::seconds(32),
                                                     std::chrono::seconds(50), std::chrono::seconds(70)}};
/// Where it is not known what was ordered before, an order this young is the new one.
constexpr std::chrono::seconds youth{std::chrono::minutes(10)};
/// An answer larger than this is shown but not kept.
constexpr qsizetype largestKept = qsizetype{2} * 1024 * 1024;
constexpr qsizetype mostHidden = 1000;

/// The answer as it came, so that it is read again as it was read first.
QByteArray snapshotOf(const QByteArray& answer, const QDateTime& savedAt)
{
    return QJsonDocument(QJsonObject{{QStringLiteral("value"), QJsonDocument::fromJson(answer).object()},
                                     {QStringLiteral("savedAt"), formatDate(savedAt)}})
        .toJson(QJsonDocument::Compact);
}

QStringList decodeHidden(const JsonReader& json)
{
    QStringList ids;
    for (const JsonReader& element : json.elements()) {
        if (const auto id = element.asText(); id && ids.size() < mostHidden)
            ids.append(*id);
    }
    return ids;
}

} // namespace

OrdersStore::OrdersStore(AuthStore& auth, Announcements& announcements, WidgetClient& widget, DataFolder& folder,
                         Clock& clock, QObject* parent)
    : AccountContent(auth, announcements, {ordersFile, hiddenFile}, parent)
    , m_api(widget)
    , m_folder(folder)
    , m_clock(clock)
    , m_awaiting([this] { Q_EMIT awaitingChanged(); })
{
    connect(&announcements, &Announcements::posted, this, [this](Announcement announcement) {
        if (announcement == Announcement::CheckoutCompleted && this->auth().isSignedIn())
            awaitOrder();
    });
}

const Order* OrdersStore::order(const QString& id) const
{
    const auto found = std::ranges::find(m_answer.orders, id, &Order::id);
    return found == m_answer.orders.end() ? nullptr : &*found;
}

void OrdersStore::awaitOrder()
{
    show(); // whoever ordered looks at their orders next
    m_known.clear();
    for (const Order& order : m_answer.orders)
        m_known.insert(order.id);
    m_newSince = phase() == Phase::Ready ? QDateTime() : m_clock.now().addSecs(-youth.count());
    static_cast<void>(askUntilItIsThere());
}

QCoro::Task<> OrdersStore::askUntilItIsThere()
{
    const Work::Run run = m_awaiting.begin();
    for (const auto wait : waits) {
        co_await m_clock.sleep(wait, run.stop());
        if (run.isStopped())
            co_return;
        reload();
    }
}

QCoro::Task<ApiResult<void>> OrdersStore::fetch(std::stop_token stop)
{
    auto fetched = co_await m_api.orders(stop);
    if (stop.stop_requested())
        co_return Unexpected(Failure(Cancelled()));
    if (!fetched)
        co_return Unexpected(std::move(fetched).error());
    if (fetched->json.size() <= largestKept) {
        m_folder.save(ordersFile,
                      [answer = fetched->json, savedAt = m_clock.now()] { return snapshotOf(answer, savedAt); });
    } else {
        m_folder.remove(ordersFile);
    }
    take(std::move(fetched->answer));
    co_return {};
}

bool OrdersStore::restore()
{
    setHidden(m_folder.load(hiddenFile, decodeHidden).value_or(QStringList()));
    auto saved = m_folder.loadSnapshot(ordersFile, decodeOrders);
    if (!saved)
        return false;
    take(std::move(saved->value));
    return true;
}

void OrdersStore::clear()
{
    m_awaiting.stop();
    m_justHidden.clear();
    setHidden({});
    take({});
}

void OrdersStore::take(OrdersAnswer answer)
{
    if (m_answer == answer)
        return;
    m_answer = std::move(answer);
    const auto isNew = [this](const Order& order) {
        return !m_known.contains(order.id) && (!m_newSince.isValid() || order.placedAt > m_newSince);
    };
    if (isAwaitingOrder() && std::ranges::any_of(m_answer.orders, isNew))
        m_awaiting.stop();
    Q_EMIT ordersChanged();
}

QString OrdersStore::hiddenName() const
{
    const Order* const hidden = order(m_justHidden);
    return hidden ? hidden->name : QString();
}

void OrdersStore::hide(const QString& id)
{
    if (!order(id) || m_hidden.contains(id))
        return;
    m_justHidden = id;
    QStringList hidden = m_hidden + QStringList{id};
    setHidden(hidden.mid(std::max<qsizetype>(0, hidden.size() - mostHidden)));
    saveHidden();
}

void OrdersStore::unhide(const QString& id)
{
    if (!m_hidden.contains(id))
        return;
    if (m_justHidden == id)
        m_justHidden.clear();
    QStringList hidden = m_hidden;
    hidden.removeAll(id);
    setHidden(std::move(hidden));
    saveHidden();
}

void OrdersStore::forgetHiding()
{
    m_justHidden.clear();
    Q_EMIT hiddenChanged();
}

void OrdersStore::setHidden(QStringList hidden)
{
    m_hidden = std::move(hidden);
    Q_EMIT hiddenChanged();
}

void OrdersStore::saveHidden()
{
    if (m_hidden.isEmpty())
        m_folder.remove(hiddenFile);
    else
        m_folder.save(hiddenFile, QJsonArray::fromStringList(m_hidden));
}

} // namespace loom
