#pragma once

#include "catalog/AiSearch.h"
#include "catalog/ProductListing.h"
#include "catalog/SearchPage.h"

namespace loom
{

class StorefrontAPI;

/// The results of a search as its page shows them: the listing of products, and the collections the words lead to.
/// In the default order and without filters they are those of a search that understands, where the store has one; what
/// that does not find, and everything else, the Storefront's own search does. Main thread; begins with load().
class SearchModel final : public loom::ProductListing // in full, for the tools that read the types of pages
{
    Q_OBJECT
    Q_PROPERTY(QString query READ query CONSTANT)
    Q_PROPERTY(QString summary READ summary NOTIFY changed)
    Q_PROPERTY(bool usingStorefront READ usingStorefront NOTIFY changed)
    Q_PROPERTY(QVariantList collections READ collectionList NOTIFY collectionsChanged)

public:
    enum class Order { BestMatch, PriceLow, PriceHigh };
    Q_ENUM(Order)

    /// A collection that the query leads to.
    using Collection = SearchSuggestions::Collection;

    SearchModel(const QString& query, StorefrontAPI& api, const MarketStore& market, const MoneyFormat& money,
                const Clock& clock, QObject* parent = nullptr);

    [[nodiscard]] const QString& query() const { return m_query; }
    [[nodiscard]] Order order() const { return m_order; }
    /// Shows another order, from its first page.
    void setOrder(Order order);
    [[nodiscard]] const std::vector<Collection>& collections() const
    {
        return m_aiCollections.empty() ? m_collections : m_aiCollections;
    }
    [[nodiscard]] bool hasMore() const { return hasNextPage(); }
    [[nodiscard]] const std::optional<qint64>& total() const { return totalCount(); }
    /// A word above results that were chosen with understanding; the Storefront's own search gives none.
    [[nodiscard]] const QString& summary() const { return m_summary; }
    /// Whether the results are those of the Storefront's own search.
    [[nodiscard]] bool usingStorefront() const { return m_usingStorefront; }
    /// Asks this first from the next load on.
    void setAiSource(AiSearchSource source) { m_aiSource = std::move(source); }

Q_SIGNALS:
    void collectionsChanged();

private:
    [[nodiscard]] QString subject() const override;
    [[nodiscard]] QCoro::Task<ApiResult<ListingPage>> fetch(std::optional<QString> after,
                                                            std::stop_token stop) override;
    [[nodiscard]] int sortIndex() const override { return static_cast<int>(m_order); }
    void setSortIndex(int index) override;
    [[nodiscard]] QStringList sortLabelList() const override;
    [[nodiscard]] QCoro::Task<ApiResult<ListingPage>> searchStorefront(std::optional<QString> after,
                                                                       std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<AiSearchPage>> ask(int offset, std::stop_token stop);
    /// The page of the listing that an answer is.
    [[nodiscard]] ListingPage take(AiSearchPage answer);
    void convertPrices();
    void useStorefront();
    [[nodiscard]] QCoro::Task<> findCollections();
    [[nodiscard]] QVariantList collectionList() const;

    QString m_query; ///< without blanks around it
    StorefrontAPI& m_api;
    Order m_order = Order::BestMatch;
    AiSearchSource m_aiSource;
    bool m_usingStorefront = true;
    QString m_summary;
    QHash<QString, double> m_dollars; ///< what the pieces cost that the Storefront did not price, by handle
    std::vector<Collection> m_collections;
    std::vector<Collection> m_aiCollections;
    int m_collectionsRevision = -1; ///< of the market they were looked for in
    Work m_finding;
};

} // namespace loom
