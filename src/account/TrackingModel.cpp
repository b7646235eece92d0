#include "account/TrackingModel.h"

#include "account/OrderWords.h"
#include "account/OrdersStore.h"
#include "catalog/DateFormat.h"
#include "catalog/DisplayText.h"

namespace loom
{

namespace
{

/// Numbers are copied out of e-mails, with what stands around them.
QString typedNumber(const QString& text)
{
    QString number = displayLine(text, TrackingModel::longestNumber);
    while (number.startsWith(u'#'))
        number.remove(0, 1);
    return number.trimmed();
}

} // namespace

TrackingModel::TrackingModel(const QString& number, QString carrier, OrdersStore& store, const DateFormat& dates,
                             QObject* parent)
    : QObject(parent)
    , m_carrier(std::move(carrier))
    , m_store(store)
    , m_dates(dates)
    , m_loading([this] { Q_EMIT changed(); })
{
    m_number = typedNumber(number);
    if (m_number.isEmpty())
        return;
    show(knownAnswer());
    reload();
}

TrackingModel::Phase TrackingModel::phase() const
{
    if (!m_answer.packages.empty())
        return Phase::Found;
    if (isLoading())
        return Phase::Waiting;
    if (isMissing())
        return Phase::Missing;
    return m_failure ? Phase::Failed : Phase::Idle;
}

bool TrackingModel::isMissing() const
{
    const auto* const http = m_failure ? m_failure->as<APIError::Http>() : nullptr;
    return m_isAnswered || (http && http->status == 404);
}

QString TrackingModel::errorText() const
{
    return m_failure && !isMissing() ? errorDescription(*m_failure) : QString();
}

QVariantList TrackingModel::packages() const
{
    QVariantList list;
    for (const Package& package : m_answer.packages)
        list.append(describe(package, m_dates));
    return list;
}

TrackingAnswer TrackingModel::knownAnswer() const
{
    for (const Order& order : m_store.orders()) {
        const auto found = std::ranges::find(order.packages, m_number, &Package::number);
        if (found != order.packages.end())
            return {.packages = {*found}, .orderId = order.id, .orderName = order.name};
        if (order.name == m_number && !order.packages.empty())
            return {.packages = order.packages, .orderId = order.id, .orderName = order.name};
    }
    return {};
}

void TrackingModel::search(const QString& number)
{
    const QString typed = typedNumber(number);
    if (typed.isEmpty())
        return;
    if (typed != m_number) {
        m_number = typed;
        m_carrier.clear();
        show(knownAnswer());
    }
    reload();
}

void TrackingModel::reload()
{
    if (!m_number.isEmpty())
        static_cast<void>(fetch());
}

QCoro::Task<> TrackingModel::fetch()
{
    const Work::Run run = m_loading.begin();
    m_failure.reset();
    m_isAnswered = false;
    Q_EMIT changed();
    auto answer = co_await m_store.api().track(m_number, m_carrier, run.stop());
    if (run.isStopped())
        co_return; // the end of the run tells of the change
    if (answer) {
        m_isAnswered = true;
        if (answer->orderId.isEmpty() && !m_answer.orderId.isEmpty()) {
            answer->orderId = m_answer.orderId;
            answer->orderName = m_answer.orderName;
        }
        show(*std::move(answer));
    } else if (!answer.error().isCancelled()) {
        m_failure = answer.error().error();
    }
}

void TrackingModel::show(TrackingAnswer answer)
{
    if (m_answer == answer)
        return;
    m_answer = std::move(answer);
    Q_EMIT packagesChanged();
    Q_EMIT changed();
}

} // namespace loom
