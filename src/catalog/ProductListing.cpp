#include "catalog/ProductListing.h"

#include "catalog/MarketStore.h"

namespace loom
{

namespace
{

/// How many pages that add nothing are passed over in one go.
constexpr int maximumPassedOver = 10;

} // namespace

ProductListing::ProductListing(const MarketStore& market, const MoneyFormat& money, const Clock& clock, QObject* parent)
    : QObject(parent)
    , m_market(market)
    , m_products(money, clock)
    , m_filters(money)
    , m_country(market.country())
    , m_loading([this] { Q_EMIT changed(); })
    , m_loadingMore([this] { Q_EMIT changed(); })
{
    connect(&market, &MarketStore::revisionChanged, this, &ProductListing::enterMarket);
    connect(&m_filters, &FilterModel::selectionChanged, this, [this] {
        Q_EMIT changed();
        reload();
    });
}

ProductListing::Phase ProductListing::phase() const
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

QString ProductListing::errorText() const
{
    return m_failure ? errorDescription(*m_failure) : QString();
}

bool ProductListing::isOffline() const
{
    return m_failure && m_failure->as<APIError::Offline>();
}

QString ProductListing::choices() const
{
    return selection().key() + QLatin1Char('|') + QString::number(m_market.revision());
}

QString ProductListing::key() const
{
    return subject() + QLatin1Char('|') + choices();
}

void ProductListing::enterMarket()
{
    const bool isBegun = phase() != Phase::Idle;
    // Bounds in another currency bound something else. Taking them back loads anew by itself.
    const bool isNewCountry = std::exchange(m_country, m_market.country()) != m_country;
    const bool hadBounds = selection().priceMin || selection().priceMax;
    if (isNewCountry && hadBounds)
        setPrice({}, {});
    else if (isBegun) {
        m_isToldAnew = !isNewCountry && m_products.count() > 0;
        reload();
    }
}

void ProductListing::load()
{
    if (m_loadedKey != key() && !isLoading())
        reload();
}

void ProductListing::reload()
{
    if (!subject().isEmpty())
        static_cast<void>(loadFirst());
}

void ProductListing::loadMore()
{
    // A list of other choices, left there by a load that failed, is not continued under these.
    if (m_hasNextPage && m_loadedKey == key() && !isLoadingMore() && !isLoading())
        static_cast<void>(loadNext());
}

QCoro::Task<> ProductListing::loadFirst()
{
    const Work::Run run = m_loading.begin();
    ++m_version;
    m_loadingMore.stop();
    const QString loadedKey = key();
    const QString loadedChoices = choices();
    const bool isToldAnew = std::exchange(m_isToldAnew, false);
    auto page = co_await fetch(std::nullopt, run.stop());
    if (run.isStopped())
        co_return;
    if (page && isToldAnew) {
        // Whoever has scrolled down stays there; and another language counts the same.
        m_countedChoices = loadedChoices;
        page = co_await filled(std::move(*page), static_cast<std::size_t>(m_products.count()), run.stop());
        if (run.isStopped())
            co_return;
    }
    m_loadMoreFailure.reset();
    if (!page) {
        m_failure = page.error().error();
        co_return; // the end of the run tells of the change
    }
    m_failure.reset();
    m_loadedKey = loadedKey;
    m_isMissing = page->isMissing;
    m_cursor = page->endCursor;
    m_hasNextPage = page->hasNextPage;
    m_counting.stop(); // the former list's
    // Another order has as many: the former number stays until they are counted anew.
    const bool isCounted = std::exchange(m_countedChoices, loadedChoices) == loadedChoices && !m_isMissing;
    if (page->totalCount || !isCounted)
        m_totalCount = page->totalCount;
    m_products.replace(std::move(page->products));
    takeFilters(std::move(page->filters));
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
    if (!m_hasNextPage)
        m_totalCount = m_products.count();
    else if (!page->totalCount && !(isToldAnew && m_totalCount))
        static_cast<void>(count());
}

void ProductListing::takeFilters(std::vector<CollectionFilter> filters)
{
    const auto& items = m_products.items();
    m_filters.update(std::move(filters), items.empty() ? QString() : items.front().price.currencyCode);
}

QCoro::Task<> ProductListing::loadNext()
{
    m_loadMoreFailure.reset(); // first: who is told of the beginning must not see it
    const Work::Run run = m_loadingMore.begin();
    auto failure = co_await append(run.stop());
    if (!run.isStopped())
        m_loadMoreFailure = std::move(failure);
}

QCoro::Task<ListingPage> ProductListing::filled(ListingPage page, std::size_t count, std::stop_token stop)
{
    const std::size_t pages = count / std::max<std::size_t>(page.products.size(), 1) + maximumPassedOver;
    for (std::size_t i = 0; i < pages && page.hasNextPage && page.products.size() < count; ++i) {
        auto next = co_await fetch(page.endCursor, stop);
        if (stop.stop_requested() || !next || next->endCursor == page.endCursor)
            break; // it goes on from here as the shopper does
        std::ranges::move(next->products, std::back_inserter(page.products));
        page.hasNextPage = next->hasNextPage;
        page.endCursor = std::move(next->endCursor);
    }
    co_return page;
}

QCoro::Task<std::optional<APIError>> ProductListing::append(std::stop_token stop)
{
    // A page adds nothing when none of its products can be read, or all are shown already.
    const int before = m_products.count();
    for (int pages = 0; m_hasNextPage && m_products.count() == before && pages < maximumPassedOver; ++pages) {
        auto page = co_await fetch(m_cursor, stop);
        if (stop.stop_requested())
            co_return std::nullopt;
        if (!page)
            co_return page.error().error();
        const bool isStuck = page->hasNextPage && page->endCursor == m_cursor; // leads nowhere
        m_hasNextPage = page->hasNextPage && !isStuck;
        m_cursor = page->endCursor;
        m_products.append(std::move(page->products));
        // Pieces come and go between two pages: whoever has seen the end has counted them.
        if (!page->hasNextPage) {
            m_counting.stop();
            m_totalCount = m_products.count();
        }
    }
    co_return std::nullopt;
}

QCoro::Task<ApiResult<std::optional<qint64>>> ProductListing::countAll(std::stop_token)
{
    co_return std::optional<qint64>();
}

QCoro::Task<> ProductListing::count()
{
    const Work::Run run = m_counting.begin();
    const auto counted = co_await countAll(run.stop());
    // Without an exact number the page simply names none.
    if (run.isStopped() || !counted)
        co_return;
    m_totalCount = *counted;
    Q_EMIT changed();
}

} // namespace loom
