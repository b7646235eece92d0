#include "catalog/CollectionModel.h"

#include "catalog/StorefrontAPI.h"

#include <QCoreApplication>

namespace loom
{

CollectionModel::CollectionModel(QString handle, QString fallbackTitle, StorefrontAPI& api, const MarketStore& market,
                                 const MoneyFormat& money, const Clock& clock, QObject* parent)
    : ProductListing(market, money, clock, parent)
    , m_handle(std::move(handle))
    , m_fallbackTitle(std::move(fallbackTitle))
    , m_api(api)
{
}

QString CollectionModel::title() const
{
    return m_info ? m_info->title : m_fallbackTitle;
}

QStringList CollectionModel::sortLabels()
{
    QStringList labels;
    for (const CollectionSortOrder& order : collectionSortOrders)
        labels.append(QCoreApplication::translate("Loomstreet", order.label));
    return labels;
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

QString CollectionModel::subject() const
{
    return m_handle + QLatin1Char('|') + QLatin1String(orderOf(m_sort).rawValue);
}

QCoro::Task<ApiResult<ListingPage>> CollectionModel::fetch(std::optional<QString> after, std::stop_token stop)
{
    auto page = co_await m_api.collectionProducts(
        {.handle = m_handle, .first = pageSize, .after = after, .filters = filterInputs(), .sort = m_sort}, stop);
    if (stop.stop_requested())
        co_return Unexpected(Failure(Cancelled{}));
    if (!page)
        co_return Unexpected(page.error());
    if (!after)
        m_info = page->collection;
    co_return ListingPage{.products = std::move(page->products),
                          .hasNextPage = page->hasNextPage,
                          .endCursor = page->endCursor,
                          .filters = std::move(page->filters),
                          .totalCount = page->exactCount,
                          .isMissing = !page->collection};
}

QCoro::Task<ApiResult<std::optional<qint64>>> CollectionModel::countAll(std::stop_token stop)
{
    return m_api.collectionProductCount(m_handle, filterInputs(), stop);
}

} // namespace loom
