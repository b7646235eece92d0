#include "discovery/ProductCompanions.h"

#include "catalog/MarketStore.h"
#include "catalog/StorefrontAPI.h"
#include "discovery/NotInterested.h"
#include "discovery/RecoAPI.h"

namespace loom
{

ProductCompanions::ProductCompanions(QString handle, const RecoServices& services, StorefrontAPI& catalog,
                                     QObject* parent)
    : QObject(parent)
    , m_handle(std::move(handle))
    , m_services(services)
    , m_catalog(catalog)
    , m_alsoViewed(services)
    , m_outfit(services)
    , m_similar(services.money, services.clock)
    , m_language(services.market.context().language)
    , m_loading([this] { Q_EMIT changed(); })
{
    m_alsoViewed.setExcluded({m_handle});
    exclude();
    connect(&m_alsoViewed, &RecoCards::shownChanged, this, &ProductCompanions::exclude);
    // What the catalog recommends is priced by the market, what the store recommends is converted.
    connect(&services.market, &MarketStore::revisionChanged, this, [this] {
        const bool areToldAnew = std::exchange(m_language, m_services.market.context().language) != m_language;
        if (m_similar.count() > 0 || (areToldAnew && m_isLoaded))
            reload();
    });
}

void ProductCompanions::exclude()
{
    const QStringList viewed = m_alsoViewed.handles();
    QSet<QString> handles(viewed.begin(), viewed.end());
    handles.insert(m_handle);
    m_outfit.setExcluded(std::move(handles));
}

bool ProductCompanions::isShown(const ProductListItem& item) const
{
    return item.handle != m_handle && !m_services.hidden.contains(item.handle);
}

void ProductCompanions::load()
{
    if (!m_isLoaded && !isLoading())
        reload();
}

void ProductCompanions::reload()
{
    static_cast<void>(fetch());
}

void ProductCompanions::loadSold()
{
    if (!m_unitsSold && !m_counting.isRunning())
        static_cast<void>(count());
}

QCoro::Task<> ProductCompanions::fetch()
{
    const Work::Run run = m_loading.begin();
    auto companions = co_await m_services.api.companions(m_handle, limit, run.stop());
    if (run.isStopped())
        co_return;
    std::vector<ProductListItem> similar;
    bool isKnown = companions.hasValue();
    if (!companions || (companions->alsoViewed.empty() && companions->outfit.empty())) {
        auto found = co_await fetchSimilar(run.stop());
        if (run.isStopped())
            co_return;
        isKnown = isKnown || found.hasValue();
        if (found)
            similar = *std::move(found);
    }
    m_isAwaited = false; // the end of the run tells of the change
    if (!isKnown)
        co_return;
    m_isLoaded = true;
    std::erase_if(similar, [this](const ProductListItem& item) { return !isShown(item); });
    m_similar.replace(std::move(similar));
    m_alsoViewed.replace(companions ? std::move(companions->alsoViewed) : std::vector<RecoProduct>());
    m_outfit.replace(companions ? std::move(companions->outfit) : std::vector<RecoProduct>());
}

QCoro::Task<ApiResult<std::vector<ProductListItem>>> ProductCompanions::fetchSimilar(std::stop_token stop)
{
    // The catalog knows pieces by their numbers, and this one perhaps only by what links call it.
    LOOM_CO_TRY(product, co_await m_catalog.product(m_handle, stop));
    if (stop.stop_requested())
        co_return Unexpected(Failure(Cancelled()));
    if (!product)
        co_return std::vector<ProductListItem>();
    co_return co_await m_catalog.recommendations(product->item.id, stop);
}

QCoro::Task<> ProductCompanions::count()
{
    const Work::Run run = m_counting.begin();
    const auto stats = co_await m_services.api.productStats({m_handle}, run.stop());
    if (run.isStopped() || !stats)
        co_return;
    m_unitsSold = stats->value(m_handle).sold;
    Q_EMIT changed();
}

} // namespace loom
