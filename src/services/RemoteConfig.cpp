#include "services/RemoteConfig.h"

#include "base/Clock.h"
#include "base/Log.h"
#include "net/WidgetClient.h"
#include "storage/DataFolder.h"

#include <QJsonDocument>
#include <QtConcurrentRun>
#include <qcoro/qcorofuture.h>

namespace loom
{

namespace
{

const QString cacheFile = QStringLiteral("remote-config-macos.json");

/// What is written of the largest document is about as large.
constexpr qsizetype maximumCacheBytes = 2 * maximumDocumentBytes;

constexpr std::chrono::seconds fetchTimeout{15};

/// The system's clock may be set meanwhile.
constexpr std::chrono::milliseconds longestWait = std::chrono::hours(1);

RemoteConfigValues readCache(DataFolder& folder)
{
    const auto bytes = folder.read(cacheFile);
    if (!bytes || bytes->size() > maximumCacheBytes)
        return {};
    auto values = decodeJson(*bytes, decodeRemoteConfigValues);
    return values ? *std::move(values) : RemoteConfigValues();
}

} // namespace

RemoteConfig::RemoteConfig(WidgetClient& widget, DataFolder& folder, Clock& clock, Source source, QObject* parent)
    : QObject(parent)
    , m_widget(widget)
    , m_folder(folder)
    , m_clock(clock)
    , m_source(source)
    , m_values(source == Source::Store ? readCache(folder) : Values())
    , m_fetching([this] { Q_EMIT fetchingChanged(); })
{
    updatePromo();
}

bool RemoteConfig::isEnabled(Feature feature) const
{
    return m_values.features.value(QLatin1String(featureKeys.at(static_cast<std::size_t>(feature)).second), true);
}

std::vector<DashboardCard> RemoteConfig::dashboard() const
{
    if (m_values.dashboard)
        return *m_values.dashboard;
    std::vector<DashboardCard> all;
    all.reserve(dashboardCardKeys.size());
    for (const auto& [card, key] : dashboardCardKeys)
        all.push_back(card);
    return all;
}

QStringList RemoteConfig::dashboardKeys() const
{
    QStringList keys;
    for (const DashboardCard card : dashboard())
        keys.append(QLatin1String(dashboardCardKeys.at(static_cast<std::size_t>(card)).second));
    return keys;
}

void RemoteConfig::setLanguage(AppLanguage language)
{
    if (std::exchange(m_language, language) == language)
        return;
    updatePromo();
    Q_EMIT copyChanged();
}

void RemoteConfig::start()
{
    if (m_source == Source::Store)
        static_cast<void>(fetchFromTimeToTime());
}

QCoro::Task<> RemoteConfig::fetchFromTimeToTime()
{
    const Work::Run run = m_timer.begin();
    while (!run.isStopped()) {
        refresh();
        co_await m_clock.sleep(interval, run.stop());
    }
}

void RemoteConfig::refresh()
{
    if (m_source == Source::Store && !fetching())
        static_cast<void>(fetch());
}

void RemoteConfig::becameActive()
{
    updatePromo(); // the machine may have slept
    // A clock that was set back makes the last attempt one of the future.
    if (!m_lastFetched || std::chrono::milliseconds(qAbs(m_lastFetched->msecsTo(m_clock.now()))) > leastAge)
        refresh();
}

QCoro::Task<> RemoteConfig::fetch()
{
    const Work::Run run = m_fetching.begin();
    const auto document = co_await m_widget.get(QStringLiteral("/app-version/config"),
                                                {{QStringLiteral("platform"), QStringLiteral("macos")}},
                                                {.timeout = fetchTimeout}, run.stop());
    if (run.isStopped())
        co_return;
    if (document) {
        const auto values = co_await QtConcurrent::run(readRemoteDocument, *document, m_values.revision);
        if (run.isStopped())
            co_return;
        if (values)
            take(*values);
        else
            qCWarning(logNet) << "the store's configuration cannot be read:" << values.error();
    }
    m_lastFetched = m_clock.now();
}

void RemoteConfig::take(const Values& values)
{
    if (values.revision < m_values.revision) {
        qCInfo(logNet) << "revision" << values.revision << "of the store's configuration is older than what is applied";
        return;
    }
    m_folder.save(cacheFile, [values] { return QJsonDocument(toJson(values)).toJson(QJsonDocument::Compact); });
    apply(values);
}

void RemoteConfig::apply(Values values)
{
    const Values before = std::exchange(m_values, std::move(values));
    updatePromo();
    if (before.features != m_values.features)
        Q_EMIT featuresChanged();
    if (before.copy != m_values.copy)
        Q_EMIT copyChanged();
    if (before.dashboard != m_values.dashboard)
        Q_EMIT dashboardChanged();
    if (before.hiddenTools != m_values.hiddenTools)
        Q_EMIT toolsChanged();
}

void RemoteConfig::updatePromo()
{
    const QDateTime now = m_clock.now();
    const std::optional<Promo>& promo = m_values.promo;
    std::optional<ShownPromo> shown;
    if (promo && promo->isOpenAt(now)) {
        shown = {.id = promo->id,
                 .image = promo->image.value_or(QString()),
                 .title = textFor(promo->title, m_language),
                 .subtitle = textFor(promo->subtitle.value_or(LanguageTexts()), m_language),
                 .link = promo->link};
    }
    if (const auto bound = promo ? promo->nextBound(now) : std::nullopt)
        static_cast<void>(awaitBound(std::min(std::chrono::milliseconds(now.msecsTo(*bound)), longestWait)));
    else
        m_awaitingBound.stop();
    if (std::exchange(m_promo, shown) != shown)
        Q_EMIT promoChanged();
}

QCoro::Task<> RemoteConfig::awaitBound(std::chrono::milliseconds duration)
{
    const Work::Run run = m_awaitingBound.begin();
    co_await m_clock.sleep(duration, run.stop());
    if (!run.isStopped())
        updatePromo();
}

} // namespace loom
