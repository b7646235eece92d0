#pragma once

#include "catalog/CollectionPage.h"
#include "catalog/MarketCountry.h"
#include "catalog/Product.h"
#include "catalog/SearchPage.h"
#include "catalog/SearchSuggestions.h"
#include "catalog/StorefrontClient.h"

#include <QHash>

#include <functional>

namespace loom
{

/// A page of the plain product listing to ask for. `sortKey` is a value of ProductSortKeys.
struct ProductsRequest {
    int first = 0;
    std::optional<QString> after;
    std::optional<QString> query;
    std::optional<QString> sortKey;
    bool reverse = false;
};

struct ProductsPage {
    std::vector<ProductListItem> products;
    bool hasNextPage = false;
    std::optional<QString> endCursor;

    bool operator==(const ProductsPage&) const = default;
};

/// What a product costs now, in the market's currency.
struct LivePrice {
    bool available = false;
    double amount = 0;

    bool operator==(const LivePrice&) const = default;
};

/// The pictures of a product and of each of its variants, by the variants' titles.
struct SkuImages {
    std::optional<QString> productImage;
    QHash<QString, QString> variantImages;

    bool operator==(const SkuImages&) const = default;
};

/// The sum of a market's ten dearest products, and the currency it is in.
struct MarketSample {
    double sum = 0;
    QString currency;

    bool operator==(const MarketSample&) const = default;
};

/// The reads of the catalog: each turns a question into one or several Storefront queries and their answers into
/// records. All may be sent again after a passing failure. Main thread; the client must outlive it.
class StorefrontAPI
{
public:
    /// The most handles one batch asks for, and the most IDs; longer lists become several queries.
    static constexpr qsizetype maximumBatch = 100;
    static constexpr qsizetype maximumIDs = 250;
    /// The most handles one batch asks for whole cards of.
    static constexpr qsizetype maximumCards = 50;

    explicit StorefrontAPI(StorefrontClient& client)
        : m_client(client)
    {
    }

    /// Called with the country that was asked for and the currency that the answer's prices are in.
    using CurrencyWatcher = std::function<void(const QString& country, const QString& currency)>;
    void setCurrencyWatcher(CurrencyWatcher watcher) { m_currencyWatcher = std::move(watcher); }

    /// Nothing when no product has the handle.
    [[nodiscard]] QCoro::Task<ApiResult<std::optional<Product>>> product(QString handle, std::stop_token stop);
    /// In the order answered; products that are gone are left out.
    [[nodiscard]] QCoro::Task<ApiResult<std::vector<ProductListItem>>> productsByIDs(QStringList ids,
                                                                                     std::stop_token stop);
    /// By the handle asked for; unknown handles are left out.
    [[nodiscard]] QCoro::Task<ApiResult<QHash<QString, ProductListItem>>> productsByHandles(QStringList handles,
                                                                                            std::stop_token stop);
    /// By handle. `ids` may be numbers or global IDs.
    [[nodiscard]] QCoro::Task<ApiResult<QHash<QString, LivePrice>>> livePrices(QStringList ids, std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<std::vector<ProductListItem>>> recommendations(QString productId,
                                                                                       std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<ProductsPage>> products(ProductsRequest request, std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<SearchSuggestions>> suggest(QString text, std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<SearchPage>> search(SearchRequest request, std::stop_token stop);
    /// Nothing when no product has the handle.
    [[nodiscard]] QCoro::Task<ApiResult<std::optional<SkuImages>>> skuImages(QString handle, std::stop_token stop);

    /// By handle; unknown handles are left out.
    [[nodiscard]] QCoro::Task<ApiResult<QHash<QString, bool>>> cardAvailability(QStringList handles,
                                                                                std::stop_token stop);
    [[nodiscard]] QCoro::Task<ApiResult<QHash<QString, QStringList>>> searchCardImages(QStringList handles,
                                                                                       std::stop_token stop);
    /// In the order of the handles; collections this market does not have are left out.
    [[nodiscard]] QCoro::Task<ApiResult<std::vector<CollectionTile>>> collectionProbe(QStringList handles,
                                                                                      std::stop_token stop);

    [[nodiscard]] QCoro::Task<ApiResult<CollectionPage>> collectionProducts(CollectionRequest request,
                                                                            std::stop_token stop);
    /// Counts exactly, by walking the collection; nothing when it does not exist in this market.
    [[nodiscard]] QCoro::Task<ApiResult<std::optional<qint64>>>
    collectionProductCount(QString handle, QJsonArray filters, std::stop_token stop);

    [[nodiscard]] QCoro::Task<ApiResult<std::vector<MarketCountry>>> countries(std::stop_token stop);
    /// Nothing when the market sells nothing to measure by.
    [[nodiscard]] QCoro::Task<ApiResult<std::optional<MarketSample>>> rateSample(QString country, std::stop_token stop);

private:
    /// Reads the currency of an answer to what was asked in `country`.
    void noteCurrency(const QString& country, const std::vector<ProductListItem>& items) const;

    StorefrontClient& m_client;
    CurrencyWatcher m_currencyWatcher;
};

} // namespace loom
