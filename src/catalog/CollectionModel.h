#pragma once

#include "catalog/CollectionPage.h"
#include "catalog/ProductListModel.h"
#include "net/ApiResult.h"
#include "net/Work.h"

#include <qcoro/qcorotask.h>

namespace loom
{

class MarketStore;
class StorefrontAPI;

/// A collection as its page shows it: title, sort, and products that page on. What is shown stays until something
/// newer has arrived, also across a failure. Main thread; begins with load().
class CollectionModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString handle READ handle CONSTANT)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(loom::CollectionModel::Phase phase READ phase NOTIFY changed)
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed)
    Q_PROPERTY(bool isOffline READ isOffline NOTIFY changed)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed)
    Q_PROPERTY(bool isLoadingMore READ isLoadingMore NOTIFY changed)
    Q_PROPERTY(bool hasNextPage READ hasNextPage NOTIFY changed)
    Q_PROPERTY(bool hasLoadMoreFailed READ hasLoadMoreFailed NOTIFY changed)
    Q_PROPERTY(QString loadMoreErrorText READ loadMoreErrorText NOTIFY changed)
    Q_PROPERTY(qlonglong totalCount READ totalCountOrUnknown NOTIFY changed)
    Q_PROPERTY(int sort READ sortIndex WRITE setSortIndex NOTIFY changed)
    Q_PROPERTY(QStringList sortLabels READ sortLabels CONSTANT)
    Q_PROPERTY(loom::ProductListModel* products READ products CONSTANT)

public:
    enum class Phase {
        Idle,
        Loading,
        Loaded,
        Empty,
        Missing, ///< the collection does not exist in this market
        Failed,
    };
    Q_ENUM(Phase)

    /// How many products a page asks for, whole rows at two, three, four, six and eight columns: the first is what a
    /// window shows, so that it comes quickly.
    static constexpr int firstPageSize = 24;
    static constexpr int pageSize = 48;

    CollectionModel(QString handle, QString fallbackTitle, StorefrontAPI& api, const MarketStore& market,
                    const MoneyFormat& money, const Clock& clock, QObject* parent = nullptr);

    [[nodiscard]] const QString& handle() const { return m_handle; }
    /// The collection's own title, before it has arrived the fallback.
    [[nodiscard]] QString title() const;
    [[nodiscard]] const std::optional<CollectionInfo>& info() const { return m_info; }
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
    /// The exact number of products, once it has been counted.
    [[nodiscard]] const std::optional<qint64>& totalCount() const { return m_totalCount; }
    [[nodiscard]] const std::vector<CollectionFilter>& filters() const { return m_filters; }
    [[nodiscard]] CollectionSort sort() const { return m_sort; }
    /// The names of the orders, in the language of the window.
    [[nodiscard]] static QStringList sortLabels();
    [[nodiscard]] ProductListModel* products() { return &m_products; }

    /// Shows another order, from its first page.
    void setSort(CollectionSort sort);

    /// Loads the first page, unless it is loaded already for this sort and market.
    Q_INVOKABLE void load();
    /// Loads the first page anew.
    Q_INVOKABLE void reload();
    /// Loads the next page, when there is one and none is on its way.
    Q_INVOKABLE void loadMore();

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] QString key() const;
    [[nodiscard]] CollectionRequest request(const std::optional<QString>& after) const;
    [[nodiscard]] QCoro::Task<> loadFirst();
    [[nodiscard]] QCoro::Task<> loadNext();
    /// Appends pages until one has added something or the list ends; gives what stopped it, if anything did.
    [[nodiscard]] QCoro::Task<std::optional<APIError>> append(std::stop_token stop);
    [[nodiscard]] QCoro::Task<> count();
    [[nodiscard]] qlonglong totalCountOrUnknown() const { return m_totalCount.value_or(-1); }
    [[nodiscard]] int sortIndex() const { return static_cast<int>(m_sort); }
    void setSortIndex(int index);

    QString m_handle;
    QString m_fallbackTitle;
    StorefrontAPI& m_api;
    const MarketStore& m_market;
    ProductListModel m_products;
    CollectionSort m_sort = CollectionSort::Featured;
    std::optional<CollectionInfo> m_info;
    std::vector<CollectionFilter> m_filters;
    std::optional<QString> m_cursor;
    bool m_hasNextPage = false;
    bool m_isMissing = false;
    std::optional<qint64> m_totalCount;
    std::optional<APIError> m_failure;
    std::optional<APIError> m_loadMoreFailure;
    QString m_loadedKey; ///< what the list shown was loaded for
    Work m_loading;
    Work m_loadingMore;
    Work m_counting;
};

} // namespace loom
