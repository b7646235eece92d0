#include "catalog/SearchModel.h"

#include "catalog/MarketStore.h"
#include "catalog/StorefrontAPI.h"

#include <QCoreApplication>

namespace loom
{

SearchModel::SearchModel(const QString& query, StorefrontAPI& api, const MarketStore& market, const MoneyFormat& money,
                         const Clock& clock, QObject* parent)
    : ProductListing(market, money, clock, parent)
    , m_query(query.trimmed())
    , m_api(api)
{
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
    if (!after && m_collectionsRevision != market().revision())
        static_cast<void>(findCollections());
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
    m_collections.clear();
    for (const SearchSuggestions::Collection& collection : found->collections)
        m_collections.push_back({.handle = collection.handle, .title = collection.title});
    Q_EMIT collectionsChanged();
}

QVariantList SearchModel::collectionList() const
{
    QVariantList list;
    for (const Collection& collection : m_collections) {
        list.append(
            QVariantMap{{QStringLiteral("handle"), collection.handle}, {QStringLiteral("title"), collection.title}});
    }
    return list;
}

} // namespace loom
