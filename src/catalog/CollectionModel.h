#pragma once

#include "catalog/CollectionPage.h"
#include "catalog/ProductListing.h"

namespace loom
{

class StorefrontAPI;

/// A collection as its page shows it: its title, and the listing of its products. Main thread; begins with load().
class CollectionModel final : public loom::ProductListing // in full, for the tools that read the types of pages
{
    Q_OBJECT
    Q_PROPERTY(QString handle READ handle CONSTANT)
    Q_PROPERTY(QString title READ title NOTIFY changed)

public:
    CollectionModel(QString handle, QString fallbackTitle, StorefrontAPI& api, const MarketStore& market,
                    const MoneyFormat& money, const Clock& clock, QObject* parent = nullptr);

    [[nodiscard]] const QString& handle() const { return m_handle; }
    /// The collection's own title, before it has arrived the fallback.
    [[nodiscard]] QString title() const;
    [[nodiscard]] const std::optional<CollectionInfo>& info() const { return m_info; }
    [[nodiscard]] CollectionSort sort() const { return m_sort; }
    /// The names of the orders, in the language of the window.
    [[nodiscard]] static QStringList sortLabels();

    /// Shows another order, from its first page.
    void setSort(CollectionSort sort);

private:
    [[nodiscard]] QString subject() const override;
    [[nodiscard]] QCoro::Task<ApiResult<ListingPage>> fetch(std::optional<QString> after,
                                                            std::stop_token stop) override;
    [[nodiscard]] QCoro::Task<ApiResult<std::optional<qint64>>> countAll(std::stop_token stop) override;
    [[nodiscard]] int sortIndex() const override { return static_cast<int>(m_sort); }
    void setSortIndex(int index) override;
    [[nodiscard]] QStringList sortLabelList() const override { return sortLabels(); }

    QString m_handle;
    QString m_fallbackTitle;
    StorefrontAPI& m_api;
    CollectionSort m_sort = CollectionSort::Featured;
    std::optional<CollectionInfo> m_info;
};

} // namespace loom
