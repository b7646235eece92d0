#include "catalog/SearchModel.h"

#include "catalog/MarketStore.h"
#include "catalog/StorefrontAPI.h"

#include <QCoreApplication>

namespace loom
{

namespace
{

/// Where the results that were chosen with understanding go on; the Storefront's own cursors are Base64.
const QString aiCursor = QStringLiteral("ai:");

} // namespace

SearchModel::SearchModel(const QString& query, StorefrontAPI& api, const MarketStore& market, const MoneyFormat& money,
                         const Clock& clock, QObject* parent)
    : ProductListing(market, money, clock, parent)
    , m_query(query.trimmed())
    , m_api(api)
{
    connect(&market, &MarketStore::rateChanged, this, &SearchModel::convertPrices);
}

void SearchModel::setOrder(Order order)
{
    if (order == m_order)
        return;
    m_order = order;
    Q_EMIT changed();
    reload();
}

void SearchModel::setSortIndex(int index)
{
    if (index >= 0 && index < static_cast<int>(searchOrders.size()))
        setOrder(static_cast<Order>(index));
}

QStringList SearchModel::sortLabelList() const
{
    QStringList labels;
    for (const SearchOrder& order : searchOrders)
        labels.append(QCoreApplication::translate("Loomstreet", order.label));
    return labels;
}

QString SearchModel::subject() const
{
    if (m_query.isEmpty())
        return {};
    return m_query + QLatin1Char('|') + QLatin1String(searchOrders.at(static_cast<std::size_t>(m_order)).rawValue);
}

QCoro::Task<ApiResult<ListingPage>> SearchModel::fetch(std::optional<QString> after, std::stop_token stop)
{
    if (after && after->startsWith(aiCursor)) {
        LOOM_CO_TRY(answer, co_await ask(after->mid(aiCursor.size()).toInt(), stop));
        if (stop.stop_requested())
            co_return Unexpected(Failure(Cancelled()));
        co_return take(std::move(answer));
    }
    if (!after && m_collectionsRevision != market().revision())
        static_cast<void>(findCollections());
    const bool isAsked = !after && m_aiSource && m_order == Order::BestMatch && filterInputs().isEmpty();
    // Both at once: the Storefront knows the filters, and is not waited for when the other has failed.
    auto storefront = searchStorefront(after, stop);
    if (isAsked) {
        auto answer = co_await ask(0, stop);
        if (answer && !answer->products.empty()) {
            auto filtered = co_await storefront;
            if (stop.stop_requested())
                co_return Unexpected(Failure(Cancelled()));
            m_usingStorefront = false;
            m_dollars.clear();
            m_summary = answer->summary;
            m_aiCollections = std::move(answer->collections);
            ListingPage page = take(*std::move(answer));
            if (filtered)
                page.filters = std::move(filtered->filters);
            Q_EMIT collectionsChanged();
            co_return page;
        }
    }
    auto page = co_await storefront;
    if (!after && page && !stop.stop_requested())
        useStorefront();
    co_return page;
}

QCoro::Task<ApiResult<AiSearchPage>> SearchModel::ask(int offset, std::stop_token stop)
{
    return m_aiSource({.query = m_query, .limit = pageSize, .offset = offset}, std::move(stop));
}

ListingPage SearchModel::take(AiSearchPage answer)
{
    for (ProductListItem& item : answer.products) {
        m_dollars.insert(item.handle, item.price.amount);
        item.price = market().convertUSDollars(item.price.amount).money();
    }
    const auto shown = static_cast<qint64>(answer.products.size());
    return {.products = std::move(answer.products),
            .hasNextPage = answer.hasMore,
            .endCursor = aiCursor + QString::number(answer.nextOffset),
            .filters = {},
            .totalCount = answer.total && *answer.total >= shown ? answer.total : std::nullopt};
}

void SearchModel::convertPrices()
{
    if (m_usingStorefront)
        return;
    std::vector<ProductListItem> items = products()->items();
    for (ProductListItem& item : items)
        item.price = market().convertUSDollars(m_dollars.value(item.handle, item.price.amount)).money();
    products()->replace(std::move(items));
}

void SearchModel::useStorefront()
{
    m_usingStorefront = true;
    m_dollars.clear();
    m_summary.clear();
    if (!m_aiCollections.empty()) {
        m_aiCollections.clear();
        Q_EMIT collectionsChanged();
    }
}

QCoro::Task<ApiResult<ListingPage>> SearchModel::searchStorefront(std::optional<QString> after, std::stop_token stop)
{
    auto page = co_await m_api.search({.query = m_query,
                                       .first = pageSize,
                                       .after = after,
                                       .filters = filterInputs(),
                                       .order = searchOrders.at(static_cast<std::size_t>(m_order))},
                                      stop);
    if (!page)
        co_return Unexpected(page.error());
    co_return ListingPage{.products = std::move(page->products),
                          .hasNextPage = page->hasNextPage,
                          .endCursor = page->endCursor,
                          .filters = std::move(page->filters),
                          .totalCount = page->totalCount};
}

QCoro::Task<> SearchModel::findCollections()
{
    const Work::Run run = m_finding.begin();
    m_collectionsRevision = market().revision();
    const auto found = co_await m_api.suggest(m_query, run.stop());
    if (run.isStopped())
        co_return;
    if (!found) {
        m_collectionsRevision = -1; // the page does without, and the next load looks again
        co_return;
    }
    m_collections = found->collections;
    Q_EMIT collectionsChanged();
}

QVariantList SearchModel::collectionList() const
{
    QVariantList list;
    for (const Collection& collection : collections()) {
        list.append(
            QVariantMap{{QStringLiteral("handle"), collection.handle}, {QStringLiteral("title"), collection.title}});
    }
    return list;
}

} // namespace loom
