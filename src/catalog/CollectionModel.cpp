#include "catalog/CollectionModel.h"

#include "catalog/MarketStore.h"
#include "catalog/StorefrontAPI.h"

#include <QCoreApplication>

namespace loom
{

namespace
{

/// How many pages that add nothing are passed over in one go.
constexpr int maximumPassedOver = 10;

} // namespace

CollectionModel::CollectionModel(QString handle, QString fallbackTitle, StorefrontAPI& api, const MarketStore& market,
                                 const MoneyFormat& money, const Clock& clock, QObject* parent)
    : QObject(parent)
    , m_handle(std::move(handle))
    , m_fallbackTitle(std::move(fallbackTitle))
    , m_api(api)
    , m_market(market)
    , m_products(money, clock)
    , m_loading([this] { Q_EMIT changed(); })
    , m_loadingMore([this] { Q_EMIT changed(); })
{
    connect(&market, &MarketStore::revisionChanged, this, [this] {
        if (phase() != Phase::Idle)
            reload();
    });
}

QString CollectionModel::title() const
{
    return m_info ? m_info->title : m_fallbackTitle;
}

CollectionModel::Phase CollectionModel::phase() const
{
    if (m_products.count() > 0)
        return Phase::Loaded;
    if (isLoading())
        return Phase::Loading;
    if (m_failure)
        return Phase::Failed;
    if (m_isMissing)
        return Phase::Missing;
    return m_loadedKey.isEmpty() ? Phase::Idle : Phase::Empty;
}

QString CollectionModel::errorText() const
{
    return m_failure ? errorDescription(*m_failure) : QString();
}

bool CollectionModel::isOffline() const
{
    return m_failure && m_failure->as<APIError::Offline>();
}

QStringList CollectionModel::sortLabels()
{
    QStringList labels;
    for (const CollectionSortOrder& order : collectionSortOrders)
        labels.append(QCoreApplication::translate("Loomstreet", order.label));
    return labels;
}

QString CollectionModel::key() const
{
    return QStringLiteral("%1|%2|%3").arg(m_handle, QLatin1String(orderOf(m_sort).rawValue)).arg(m_market.revision());
}

CollectionRequest CollectionModel::request(const std::optional<QString>& after) const
{
    return {
        .handle = m_handle, .first = after ? pageSize : firstPageSize, .after = after, .filters = {}, .sort = m_sort};
}

void CollectionModel::setSort(CollectionSort sort)
{
    if (sort == m_sort)
        return;
    m_sort = sort;
    Q_EMIT changed();
    reload();
}

void CollectionModel::setSortIndex(int index)
{
    if (index >= 0 && index < static_cast<int>(collectionSortOrders.size()))
        setSort(static_cast<CollectionSort>(index));
}

void CollectionModel::load()
{
    if (m_loadedKey != key() && !isLoading())
        static_cast<void>(loadFirst());
}

void CollectionModel::reload()
{
    static_cast<void>(loadFirst());
}

void CollectionModel::loadMore()
{
    // A list of another order or market, left there by a load that failed, is not continued in this one.
    if (m_hasNextPage && m_loadedKey == key() && !isLoadingMore() && !isLoading())
        static_cast<void>(loadNext());
}

QCoro::Task<> CollectionModel::loadFirst()
{
    const Work::Run run = m_loading.begin();
    m_loadingMore.stop();
    const QString loadedKey = key();
    auto page = co_await m_api.collectionProducts(request(std::nullopt), run.stop());
    if (run.isStopped())
        co_return;
    m_loadMoreFailure.reset();
    if (!page) {
        m_failure = page.error().error();
        co_return; // the end of the run tells of the change
    }
    m_failure.reset();
    m_loadedKey = loadedKey;
    m_isMissing = !page->collection;
    m_info = std::move(page->collection);
    m_filters = std::move(page->filters);
    m_cursor = page->endCursor;
    m_hasNextPage = page->hasNextPage;
    m_counting.stop(); // the former list's
    m_totalCount.reset();
    m_products.replace(std::move(page->products));
    if (m_isMissing)
        co_return;
    if (m_products.count() == 0) {
        auto failure = co_await append(run.stop());
        if (run.isStopped())
            co_return;
        if (failure) {
            m_failure = std::move(failure);
            m_loadedKey.clear();
            co_return;
        }
    }
    if (m_hasNextPage)
        static_cast<void>(count());
    else
        m_totalCount = m_products.count();
}

QCoro::Task<> CollectionModel::loadNext()
{
    m_loadMoreFailure.reset(); // first: who is told of the beginning must not see it
    const Work::Run run = m_loadingMore.begin();
    auto failure = co_await append(run.stop());
    if (!run.isStopped())
        m_loadMoreFailure = std::move(failure);
}

QCoro::Task<std::optional<APIError>> CollectionModel::append(std::stop_token stop)
{
    // A page adds nothing when none of its products can be read, or all are shown already.
    const int before = m_products.count();
    for (int pages = 0; m_hasNextPage && m_products.count() == before && pages < maximumPassedOver; ++pages) {
        auto page = co_await m_api.collectionProducts(request(m_cursor), stop);
        if (stop.stop_requested())
            co_return std::nullopt;
        if (!page)
            co_return page.error().error();
        m_hasNextPage = page->hasNextPage && page->endCursor != m_cursor; // one that does not move leads nowhere
        m_cursor = page->endCursor;
        m_products.append(std::move(page->products));
    }
    co_return std::nullopt;
}

QCoro::Task<> CollectionModel::count()
{
    const Work::Run run = m_counting.begin();
    const auto counted = co_await m_api.collectionProductCount(m_handle, {}, run.stop());
    // Without an exact number the page simply names none.
    if (run.isStopped() || !counted)
        co_return;
    m_totalCount = *counted;
    Q_EMIT changed();
}

} // namespace loom
