#pragma once

#include "catalog/FilterModel.h"
#include "catalog/ProductListModel.h"
#include "net/ApiResult.h"
#include "net/Work.h"

#include <qcoro/qcorotask.h>

namespace loom
{

class MarketStore;

/// One page of a listing.
struct ListingPage {
    std::vector<ProductListItem> products;
    bool hasNextPage = false;
    std::optional<QString> endCursor;
    std::vector<CollectionFilter> filters;
    std::optional<qint64> totalCount; ///< where the answer itself says it
    bool isMissing = false;           ///< what is to be listed does not exist in this market
};

/// A list of products that pages on, narrowed by filters, in one of several orders: what collections and searches
/// share. What is shown stays until something newer has arrived, also across a failure; an answer to what is no longer
/// asked is dropped. Main thread; begins with load().
class ProductListing : public QObject
{
    Q_OBJECT
    Q_PROPERTY(loom::ProductListing::Phase phase READ phase NOTIFY changed)
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed)
    Q_PROPERTY(bool isOffline READ isOffline NOTIFY changed)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed)
    Q_PROPERTY(bool isLoadingMore READ isLoadingMore NOTIFY changed)
    Q_PROPERTY(bool hasNextPage READ hasNextPage NOTIFY changed)
    Q_PROPERTY(bool hasLoadMoreFailed READ hasLoadMoreFailed NOTIFY changed)
    Q_PROPERTY(QString loadMoreErrorText READ loadMoreErrorText NOTIFY changed)
    Q_PROPERTY(qlonglong totalCount READ totalCountOrUnknown NOTIFY changed)
    Q_PROPERTY(int sort READ sortIndex WRITE setSortIndex NOTIFY changed)
    Q_PROPERTY(QStringList sortLabels READ sortLabelList CONSTANT)
    Q_PROPERTY(loom::ProductListModel* products READ products CONSTANT)
    Q_PROPERTY(loom::FilterModel* filters READ filters CONSTANT)

public:
    enum class Phase {
        Idle,
        Loading,
        Loaded,
        Empty,
        Missing, ///< it does not exist in this market
        Failed,
    };
    Q_ENUM(Phase)

    /// How many products a page asks for: whole rows at two, three, four, six and eight columns.
    static constexpr int pageSize = 24;

    [[nodiscard]] Phase phase() const;
    /// The sentence of the last failed load; empty when there is none.
    [[nodiscard]] QString errorText() const;
    [[nodiscard]] bool isOffline() const;
    [[nodiscard]] bool isLoading() const { return m_loading.isRunning(); }
    [[nodiscard]] bool isLoadingMore() const { return m_loadingMore.isRunning(); }
    [[nodiscard]] bool hasNextPage() const { return m_hasNextPage; }
    [[nodiscard]] bool hasLoadMoreFailed() const { return m_loadMoreFailure.has_value(); }
    /// The sentence of the last failed attempt to load more; empty when there is none.
    [[nodiscard]] QString loadMoreErrorText() const
    {
        return m_loadMoreFailure ? errorDescription(*m_loadMoreFailure) : QString();
    }
    /// The exact number of products under the filters, once it is known.
    [[nodiscard]] const std::optional<qint64>& totalCount() const { return m_totalCount; }
    [[nodiscard]] const std::optional<QString>& cursor() const { return m_cursor; }
    /// Raised by every load of a first page.
    [[nodiscard]] int version() const { return m_version; }
    /// What the list shown was loaded for: what it is of, its order, its filters and the market.
    [[nodiscard]] const QString& loadedKey() const { return m_loadedKey; }
    [[nodiscard]] ProductListModel* products() { return &m_products; }

    [[nodiscard]] FilterModel* filters() { return &m_filters; }
    [[nodiscard]] const FilterSelection& selection() const { return m_filters.selection(); }
    [[nodiscard]] QHash<QString, qint64> liveCounts() const { return m_filters.liveCounts(); }
    void toggle(const QString& filterID, const QString& valueID) { m_filters.toggle(filterID, valueID); }
    void setPrice(std::optional<double> min, std::optional<double> max) { m_filters.setPrice(min, max); }
    void clearFilters() { m_filters.clear(); }

    /// Loads the first page, unless it is loaded already for what is chosen and this market.
    Q_INVOKABLE void load();
    /// Loads the first page anew.
    Q_INVOKABLE void reload();
    /// Loads the next page, when there is one and none is on its way.
    Q_INVOKABLE void loadMore();

Q_SIGNALS:
    void changed();

protected:
    ProductListing(const MarketStore& market, const MoneyFormat& money, const Clock& clock, QObject* parent);

    [[nodiscard]] const MarketStore& market() const { return m_market; }
    [[nodiscard]] QJsonArray filterInputs() const { return m_filters.inputs(); }

private:
    /// What is listed, in which order; empty when there is nothing to ask for.
    [[nodiscard]] virtual QString subject() const = 0;
    /// One page of it, the first one without `after`. After a wait, a stopped one touches nothing.
    [[nodiscard]] virtual QCoro::Task<ApiResult<ListingPage>> fetch(std::optional<QString> after,
                                                                    std::stop_token stop) = 0;
    /// Counts what an answer did not.
    [[nodiscard]] virtual QCoro::Task<ApiResult<std::optional<qint64>>> countAll(std::stop_token stop);
    [[nodiscard]] virtual int sortIndex() const = 0;
    virtual void setSortIndex(int index) = 0;
    [[nodiscard]] virtual QStringList sortLabelList() const = 0;

    [[nodiscard]] QString key() const;
    /// What the number of products depends on.
    [[nodiscard]] QString choices() const;
    [[nodiscard]] QCoro::Task<> loadFirst();
    [[nodiscard]] QCoro::Task<> loadNext();
    /// Takes further pages into the first until there are as many products, or no more to be had.
    [[nodiscard]] QCoro::Task<ListingPage> filled(ListingPage page, std::size_t count, std::stop_token stop);
    /// Appends pages until one has added something or the list ends; gives what stopped it, if anything did.
    [[nodiscard]] QCoro::Task<std::optional<APIError>> append(std::stop_token stop);
    [[nodiscard]] QCoro::Task<> count();
    [[nodiscard]] qlonglong totalCountOrUnknown() const { return m_totalCount.value_or(-1); }
    void enterMarket();
    void takeFilters(std::vector<CollectionFilter> filters);

    const MarketStore& m_market;
    ProductListModel m_products;
    FilterModel m_filters;
    QString m_country; ///< whose currency the price bounds are in
    std::optional<QString> m_cursor;
    bool m_hasNextPage = false;
    bool m_isMissing = false;
    std::optional<qint64> m_totalCount;
    QString m_countedChoices; ///< that it is the number for
    std::optional<APIError> m_failure;
    std::optional<APIError> m_loadMoreFailure;
    bool m_isToldAnew = false; ///< the next load is of what is shown, in another language
    int m_version = 0;
    QString m_loadedKey;
    Work m_loading;
    Work m_loadingMore;
    Work m_counting;
};

} // namespace loom
