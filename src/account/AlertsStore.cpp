#include "account/AlertsStore.h"

#include "account/AuthStore.h"
#include "net/WidgetClient.h"

namespace loom
{

namespace
{

auto find(auto& alerts, const AlertSubject& subject)
{
    return std::ranges::find(alerts, subject, &Alert::subject);
}

void takeOut(std::vector<Alert>& alerts, const AlertSubject& subject)
{
    std::erase_if(alerts, [&subject](const Alert& alert) { return alert.subject == subject; });
}

/// In place of one of the same subject, as far forward as `place`.
void putIn(std::vector<Alert>& alerts, Alert alert, std::size_t place)
{
    takeOut(alerts, alert.subject);
    alerts.insert(alerts.begin() + static_cast<std::ptrdiff_t>(std::min(place, alerts.size())), std::move(alert));
}

bool isGone(const Failure& failure)
{
    const auto* const http = failure.isCancelled() ? nullptr : failure.error().as<APIError::Http>();
    return http && http->code == QLatin1String("NOT_FOUND");
}

} // namespace

AlertsStore::AlertsStore(AuthStore& auth, Announcements& announcements, WidgetClient& widget, const MoneyFormat& money,
                         QObject* parent)
    : AccountContent(auth, announcements, {}, parent)
    , m_widget(widget)
    , m_list(money)
{
    connect(&auth, &AuthStore::sessionChanged, this, [this] {
        carryOutWish();
        Q_EMIT changed();
    });
}

bool AlertsStore::contains(const AlertSubject& subject) const
{
    return find(m_list.alerts(), subject) != m_list.alerts().end();
}

bool AlertsStore::add(const Alert& alert)
{
    show();
    if (!auth().isSignedIn()) {
        m_wish = alert;
        return false;
    }
    if (!contains(alert.subject))
        make({.adds = true, .alert = alert, .place = 0});
    return true;
}

void AlertsStore::remove(const AlertSubject& subject)
{
    const auto found = find(m_list.alerts(), subject);
    if (found != m_list.alerts().end())
        make({.adds = false, .alert = *found});
}

void AlertsStore::dropWish()
{
    if (!auth().isSignedIn()) // it is carried out otherwise, or was
        m_wish.reset();
}

void AlertsStore::carryOutWish()
{
    if (m_wish && auth().isSignedIn())
        add(*std::exchange(m_wish, std::nullopt));
}

void AlertsStore::removeRow(int row)
{
    if (row < 0 || row >= m_list.count())
        return;
    const Alert alert = m_list.alerts()[static_cast<std::size_t>(row)];
    m_removed.push_back({.alert = alert, .place = static_cast<std::size_t>(row)});
    remove(alert.subject);
}

QString AlertsStore::removedTitle() const
{
    return m_removed.empty() ? QString() : m_removed.back().alert.title;
}

void AlertsStore::undoRemoval()
{
    // The last first, so that each comes back to where it stood.
    for (auto removed = m_removed.rbegin(); removed != m_removed.rend(); ++removed) {
        if (!contains(removed->alert.subject))
            make({.adds = true, .alert = removed->alert, .place = removed->place});
    }
    forgetRemoval();
}

void AlertsStore::forgetRemoval()
{
    m_removed.clear();
    Q_EMIT changed();
}

QString AlertsStore::changeErrorText() const
{
    return m_changeFailure ? errorDescription(*m_changeFailure) : QString();
}

void AlertsStore::forgetChangeError()
{
    m_changeFailure.reset();
    m_refused.reset();
    Q_EMIT changed();
}

void AlertsStore::make(Change change)
{
    m_changes.push_back(std::move(change));
    m_changeFailure.reset();
    m_refused.reset();
    showAll();
    if (!m_changing.isRunning())
        static_cast<void>(carryOut());
}

QCoro::Task<> AlertsStore::carryOut()
{
    const Work::Run run = m_changing.begin();
    while (!m_changes.empty()) {
        const AlertSubject subject = m_changes.front().alert.subject;
        const ApiResult<void> outcome = co_await tell(m_changes.front(), run.stop());
        if (run.isStopped())
            co_return;
        m_changes.pop_front();
        if (!outcome && !outcome.error().isCancelled()) {
            m_refused = subject;
            m_changeFailure = outcome.error().error();
            // What could not be taken out is there: nothing to put back.
            std::erase_if(m_removed, [&subject](const Removed& removed) { return removed.alert.subject == subject; });
        }
        showAll();
    }
    // An answer that was asked for before the changes may not know of them.
    if (isLoading())
        reload();
}

QCoro::Task<ApiResult<void>> AlertsStore::tell(Change change, std::stop_token stop)
{
    const AlertSubject subject = change.alert.subject;
    const auto known = find(m_alerts, subject);
    if (change.adds) {
        QJsonObject body{{QStringLiteral("kind"), rawValue(subject.kind)}, {QStringLiteral("handle"), subject.handle}};
        if (!subject.variantId.isEmpty())
            body.insert(QStringLiteral("variantId"), subject.variantId);
        LOOM_CO_TRY(answer, co_await m_widget.post(QStringLiteral("/alerts-add"), body, {}, stop));
        if (stop.stop_requested())
            co_return Unexpected(Failure(Cancelled()));
        LOOM_CO_TRY(alert, decodedAnswer(decodeJson(
                               answer, [](const JsonReader& json) { return decodeAlert(json.object("alert")); })));
        takeOut(m_alerts, subject); // what comes back may be of another
        putIn(m_alerts, std::move(alert), change.place);
        co_return ApiResult<void>();
    }
    if (known == m_alerts.end())
        co_return ApiResult<void>();
    const auto answer =
        co_await m_widget.post(QStringLiteral("/alerts-remove"), {{QStringLiteral("id"), known->id}}, {}, stop);
    if (stop.stop_requested())
        co_return Unexpected(Failure(Cancelled()));
    if (!answer && !isGone(answer.error()))
        co_return Unexpected(answer.error());
    takeOut(m_alerts, subject);
    co_return ApiResult<void>();
}

void AlertsStore::showAll()
{
    std::vector<Alert> alerts = m_alerts;
    for (const Change& change : m_changes) {
        if (change.adds)
            putIn(alerts, change.alert, change.place);
        else
            takeOut(alerts, change.alert.subject);
    }
    m_list.show(alerts);
    Q_EMIT changed();
}

QCoro::Task<ApiResult<void>> AlertsStore::fetch(std::stop_token stop)
{
    LOOM_CO_TRY(body, co_await m_widget.post(QStringLiteral("/alerts"), {}, {}, stop));
    if (stop.stop_requested())
        co_return Unexpected(Failure(Cancelled()));
    LOOM_CO_TRY(alerts, decodedAnswer(decodeJson(body, [](const JsonReader& json) {
                    return JsonReader::decodeEach(json.list("alerts"), decodeAlert);
                })));
    m_alerts = std::move(alerts);
    showAll();
    co_return ApiResult<void>();
}

void AlertsStore::clear()
{
    m_changing.stop();
    m_changes.clear();
    m_alerts.clear();
    m_removed.clear();
    m_refused.reset();
    m_changeFailure.reset();
    showAll();
}

} // namespace loom
