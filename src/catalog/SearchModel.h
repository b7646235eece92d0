#pragma once

#include "catalog/ProductListing.h"
#include "catalog/SearchPage.h"

namespace loom
{

class StorefrontAPI;

/// The results of a search as its page shows them: the listing of products, and the collections the words lead to.
/// Main thread; begins with load().
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
    struct Collection {
        QString handle;
        QString title;

        bool operator==(const Collection&) const = default;
    };

    SearchModel(const QString& query, StorefrontAPI& api, const MarketStore& market, const MoneyFormat& money,
                const Clock& clock, QObject* parent = nullptr);

    [[nodiscard]] const QString& query() const { return m_query; }
    [[nodiscard]] Order order() const { return m_order; }
    /// Shows another order, from its first page.
    void setOrder(Order order);
    [[nodiscard]] const std::vector<Collection>& collections() const { return m_collections; }
    [[nodiscard]] bool hasMore() const { return hasNextPage(); }
    [[nodiscard]] const std::optional<qint64>& total() const { return totalCount(); }
    /// A word above results that were chosen with understanding; the Storefront's own search gives none.
    [[nodiscard]] static QString summary() { return {}; }
    /// Whether the results are those of the Storefront's own search.
    [[nodiscard]] static bool usingStorefront() { return true; }

Q_SIGNALS:
    void collectionsChanged();

private:
    [[nodiscard]] QString subject() const override;
    [[nodiscard]] QCoro::Task<ApiResult<ListingPage>> fetch(std::optional<QString> after,
                                                            std::stop_token stop) override;
    [[nodiscard]] int sortIndex() const override { return static_cast<int>(m_order); }
    void setSortIndex(int index) override;
    [[nodiscard]] QStringList sortLabelList() const override;
    [[nodiscard]] QCoro::Task<> findCollections();
    [[nodiscard]] QVariantList collectionList() const;

    QString m_query; ///< without blanks around it
    StorefrontAPI& m_api;
    Order m_order = Order::BestMatch;
    std::vector<Collection> m_collections;
    int m_collectionsRevision = -1; ///< of the market they were looked for in
    Work m_finding;
};

} // namespace loom
