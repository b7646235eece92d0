#include "catalog/StorefrontAPI.h"

#include "catalog/StorefrontQueries.h"
#include "catalog/StorefrontReading.h"

#include <QSet>

#include <string>

namespace loom
{

namespace
{

const QString productIDPrefix = QStringLiteral("gid://shopify/Product/");

std::optional<Product> readProduct(const JsonReader& data)
{
    const auto product = data.optionalObject("product");
    return product ? std::optional(decodeProduct(*product)) : std::nullopt;
}

/// A null node fails to decode as an item, and so is left out.
std::vector<ProductListItem> readProductNodes(const JsonReader& data)
{
    return JsonReader::decodeEach(data.list("nodes"), decodeListItem);
}

QHash<QString, LivePrice> readLivePrices(const JsonReader& data)
{
    QHash<QString, LivePrice> prices;
    for (const JsonReader& node : data.list("nodes")) {
        const auto handle = node.optionalText("handle");
        const auto range = node.optionalObject("priceRange");
        const auto price = range ? range->optionalObject("minVariantPrice") : std::nullopt;
        const auto amount = price ? price->optionalDecimal("amount") : std::nullopt;
        if (handle && amount) {
            prices.insert(*handle,
                          {.available = node.optionalBoolean("availableForSale").value_or(false), .amount = *amount});
        }
    }
    return prices;
}

std::vector<ProductListItem> readRecommendations(const JsonReader& data)
{
    return JsonReader::decodeEach(data.optionalList("productRecommendations"), decodeListItem);
}

ProductsPage readProductsPage(const JsonReader& data)
{
    const JsonReader products = data.object("products");
    PageInfo pageInfo = readPageInfo(products);
    return {.products = JsonReader::decodeEach(products.list("nodes"), decodeListItem),
            .hasNextPage = pageInfo.hasNextPage,
            .endCursor = std::move(pageInfo.endCursor)};
}

std::optional<SkuImages> readSkuImages(const JsonReader& data)
{
    const auto product = data.optionalObject("product");
    if (!product)
        return std::nullopt;
    SkuImages images{.productImage = readImageAddress(*product, "featuredImage"), .variantImages = {}};
    for (const JsonReader& variant : readNodes(*product, "variants")) {
        const auto title = variant.optionalText("title");
        const auto address = readImageAddress(variant, "image");
        if (title && address)
            images.variantImages.insert(*title, *address);
    }
    return images;
}

QHash<QString, bool> readAvailability(const JsonReader& data)
{
    QHash<QString, bool> availability;
    for (const auto& [alias, product] : data.members()) {
        const auto handle = product.optionalText("handle");
        const auto isAvailable = product.optionalBoolean("availableForSale");
        if (handle && isAvailable)
            availability.insert(*handle, *isAvailable);
    }
    return availability;
}

QHash<QString, QStringList> readCardImages(const JsonReader& data)
{
    QHash<QString, QStringList> images;
    for (const auto& [alias, product] : data.members()) {
        const auto handle = product.optionalText("handle");
        if (!handle)
            continue;
        QStringList addresses;
        for (const JsonReader& image : readNodes(product, "images")) {
            if (const auto address = readImageAddress(image))
                addresses.append(*address);
        }
        images.insert(*handle, addresses);
    }
    return images;
}

std::vector<std::pair<QString, ProductListItem>> readAliasedProducts(const JsonReader& data)
{
    std::vector<std::pair<QString, ProductListItem>> products;
    for (const auto& [alias, product] : data.members()) {
        for (ProductListItem& item : JsonReader::decodeEach({product}, decodeListItem))
            products.emplace_back(alias, std::move(item));
    }
    return products;
}

/// A JSON object has no order: the aliases have.
std::vector<CollectionTile> readTiles(const JsonReader& data)
{
    std::vector<CollectionTile> tiles;
    for (qsizetype i = 0; i < StorefrontAPI::maximumBatch; ++i) {
        const auto collection = data.optionalObject("c" + std::to_string(i));
        const auto handle = collection ? collection->optionalText("handle") : std::nullopt;
        const auto title = collection ? collection->optionalText("title") : std::nullopt;
        if (!handle || !title)
            continue;
        CollectionTile tile{.handle = *handle, .title = *title, .imageURL = readImageAddress(*collection, "image")};
        for (const JsonReader& product : readNodes(*collection, "firstProduct")) {
            if (!tile.imageURL)
                tile.imageURL = readImageAddress(product, "featuredImage");
        }
        tiles.push_back(std::move(tile));
    }
    return tiles;
}

struct CountPage {
    bool exists = false;
    qint64 count = 0;
    std::optional<QString> nextCursor;
};

CountPage readCountPage(const JsonReader& data)
{
    const auto collection = data.optionalObject("collection");
    if (!collection)
        return {};
    const JsonReader products = collection->object("products");
    const JsonReader pageInfo = products.object("pageInfo");
    return {.exists = true,
            .count = static_cast<qint64>(products.list("nodes").size()),
            .nextCursor = pageInfo.boolean("hasNextPage") ? std::optional(pageInfo.text("endCursor")) : std::nullopt};
}

MarketCountry readCountry(const JsonReader& json)
{
    return {.isoCode = json.text("isoCode"),
            .name = json.text("name"),
            .currency = json.object("currency").text("isoCode")};
}

std::vector<MarketCountry> readCountries(const JsonReader& data)
{
    return JsonReader::decodeEach(data.object("localization").list("availableCountries"), readCountry);
}

std::optional<MarketSample> readRateSample(const JsonReader& data)
{
    MarketSample sample;
    for (const JsonReader& node : data.object("products").list("nodes")) {
        const auto range = node.optionalObject("priceRange");
        const auto price = range ? range->optionalObject("minVariantPrice") : std::nullopt;
        if (!price)
            continue;
        sample.sum += price->optionalDecimal("amount").value_or(0);
        sample.currency = price->optionalText("currencyCode").value_or(QString());
    }
    return sample.sum > 0 && !sample.currency.isEmpty() ? std::optional(sample) : std::nullopt;
}

QJsonValue orNull(const std::optional<QString>& text)
{
    return text ? QJsonValue(*text) : QJsonValue();
}

/// Consecutive pieces of at most `size`.
std::vector<QStringList> chunks(const QStringList& list, qsizetype size)
{
    std::vector<QStringList> result;
    for (qsizetype i = 0; i < list.size(); i += size)
        result.push_back(list.mid(i, size));
    return result;
}

QJsonObject handleVariables(const QStringList& handles)
{
    QJsonObject variables;
    for (qsizetype i = 0; i < handles.size(); ++i)
        variables.insert(QStringLiteral("h%1").arg(i), handles.at(i));
    return variables;
}

} // namespace

void StorefrontAPI::noteCurrency(const QString& country, const std::vector<ProductListItem>& items) const
{
    if (m_currencyWatcher && !items.empty() && !items.front().price.currencyCode.isEmpty())
        m_currencyWatcher(country, items.front().price.currencyCode);
}

QCoro::Task<ApiResult<std::optional<Product>>> StorefrontAPI::product(QString handle, std::stop_token stop)
{
    const QString country = m_client.country();
    auto product = co_await m_client.send(queries::product(), {{QStringLiteral("handle"), handle}}, Retry::Transient,
                                          readProduct, stop);
    if (product && *product)
        noteCurrency(country, {(*product)->item});
    co_return product;
}

QCoro::Task<ApiResult<std::vector<ProductListItem>>> StorefrontAPI::productsByIDs(QStringList ids, std::stop_token stop)
{
    const QString country = m_client.country();
    std::vector<ProductListItem> items;
    for (const QStringList& chunk : chunks(ids, maximumIDs)) {
        LOOM_CO_TRY(some, co_await m_client.send(queries::productsByIDs(),
                                                 {{QStringLiteral("ids"), QJsonArray::fromStringList(chunk)}},
                                                 Retry::Transient, readProductNodes, stop));
        items.insert(items.end(), std::make_move_iterator(some.begin()), std::make_move_iterator(some.end()));
    }
    noteCurrency(country, items);
    co_return items;
}

QCoro::Task<ApiResult<QHash<QString, ProductListItem>>> StorefrontAPI::productsByHandles(QStringList handles,
                                                                                         std::stop_token stop)
{
    const QString country = m_client.country();
    QHash<QString, ProductListItem> products;
    for (const QStringList& chunk : chunks(handles, maximumCards)) {
        LOOM_CO_TRY(some, co_await m_client.send(queries::productsByHandles(chunk.size()), handleVariables(chunk),
                                                 Retry::Transient, readAliasedProducts, stop));
        for (const auto& [alias, item] : some) {
            const qsizetype place = alias.mid(1).toLongLong();
            if (place < 0 || place >= chunk.size())
                continue;
            noteCurrency(country, {item});
            products.insert(chunk.at(place), item);
        }
    }
    co_return products;
}

QCoro::Task<ApiResult<QHash<QString, LivePrice>>> StorefrontAPI::livePrices(QStringList ids, std::stop_token stop)
{
    for (QString& id : ids) {
        if (!id.startsWith(QLatin1String("gid://")))
            id.prepend(productIDPrefix);
    }
    QHash<QString, LivePrice> prices;
    for (const QStringList& chunk : chunks(ids, maximumIDs)) {
        LOOM_CO_TRY(some, co_await m_client.send(queries::livePrices(),
                                                 {{QStringLiteral("ids"), QJsonArray::fromStringList(chunk)}},
                                                 Retry::Transient, readLivePrices, stop));
        prices.insert(some);
    }
    co_return prices;
}

QCoro::Task<ApiResult<std::vector<ProductListItem>>> StorefrontAPI::recommendations(QString productId,
                                                                                    std::stop_token stop)
{
    co_return co_await m_client.send(queries::recommendations(), {{QStringLiteral("productId"), productId}},
                                     Retry::Transient, readRecommendations, stop);
}

QCoro::Task<ApiResult<ProductsPage>> StorefrontAPI::products(ProductsRequest request, std::stop_token stop)
{
    co_return co_await m_client.send(queries::products(),
                                     {{QStringLiteral("first"), request.first},
                                      {QStringLiteral("after"), orNull(request.after)},
                                      {QStringLiteral("query"), orNull(request.query)},
                                      {QStringLiteral("sortKey"), orNull(request.sortKey)},
                                      {QStringLiteral("reverse"), request.reverse}},
                                     Retry::Transient, readProductsPage, stop);
}

QCoro::Task<ApiResult<SearchSuggestions>> StorefrontAPI::suggest(QString text, std::stop_token stop)
{
    co_return co_await m_client.send(queries::suggest(), {{QStringLiteral("q"), text}}, Retry::Transient,
                                     decodeSuggestions, stop);
}

QCoro::Task<ApiResult<SearchPage>> StorefrontAPI::search(SearchRequest request, std::stop_token stop)
{
    const QString country = m_client.country();
    auto page = co_await m_client.send(queries::search(),
                                       {{QStringLiteral("query"), request.query},
                                        {QStringLiteral("first"), request.first},
                                        {QStringLiteral("after"), orNull(request.after)},
                                        {QStringLiteral("filters"), request.filters},
                                        {QStringLiteral("sortKey"), QLatin1String(request.order.sortKey)},
                                        {QStringLiteral("reverse"), request.order.reverse}},
                                       Retry::Transient, decodeSearchPage, stop);
    if (page)
        noteCurrency(country, page->products);
    co_return page;
}

QCoro::Task<ApiResult<std::optional<SkuImages>>> StorefrontAPI::skuImages(QString handle, std::stop_token stop)
{
    co_return co_await m_client.send(queries::skuImage(), {{QStringLiteral("handle"), handle}}, Retry::Transient,
                                     readSkuImages, stop);
}

QCoro::Task<ApiResult<QHash<QString, bool>>> StorefrontAPI::cardAvailability(QStringList handles, std::stop_token stop)
{
    QHash<QString, bool> availability;
    for (const QStringList& chunk : chunks(handles, maximumBatch)) {
        LOOM_CO_TRY(some, co_await m_client.send(queries::cardAvailability(chunk.size()), handleVariables(chunk),
                                                 Retry::Transient, readAvailability, stop));
        availability.insert(some);
    }
    co_return availability;
}

QCoro::Task<ApiResult<QHash<QString, QStringList>>> StorefrontAPI::searchCardImages(QStringList handles,
                                                                                    std::stop_token stop)
{
    QHash<QString, QStringList> images;
    for (const QStringList& chunk : chunks(handles, maximumBatch)) {
        LOOM_CO_TRY(some, co_await m_client.send(queries::searchCardImages(chunk.size()), handleVariables(chunk),
                                                 Retry::Transient, readCardImages, stop));
        images.insert(some);
    }
    co_return images;
}

QCoro::Task<ApiResult<std::vector<CollectionTile>>> StorefrontAPI::collectionProbe(QStringList handles,
                                                                                   std::stop_token stop)
{
    std::vector<CollectionTile> tiles;
    for (const QStringList& chunk : chunks(handles, maximumBatch)) {
        LOOM_CO_TRY(some,
                    co_await m_client.send(queries::collectionProbe(chunk), {}, Retry::Transient, readTiles, stop));
        tiles.insert(tiles.end(), std::make_move_iterator(some.begin()), std::make_move_iterator(some.end()));
    }
    co_return tiles;
}

QCoro::Task<ApiResult<CollectionPage>> StorefrontAPI::collectionProducts(CollectionRequest request,
                                                                         std::stop_token stop)
{
    const CollectionSortOrder& order = orderOf(request.sort);
    const QString country = m_client.country();
    auto page = co_await m_client.send(queries::collectionProducts(),
                                       {{QStringLiteral("handle"), request.handle},
                                        {QStringLiteral("first"), request.first},
                                        {QStringLiteral("after"), orNull(request.after)},
                                        {QStringLiteral("filters"), request.filters},
                                        {QStringLiteral("sortKey"), QLatin1String(order.sortKey)},
                                        {QStringLiteral("reverse"), order.reverse}},
                                       Retry::Transient, decodeCollectionPage, stop);
    if (page)
        noteCurrency(country, page->products);
    co_return page;
}

QCoro::Task<ApiResult<std::optional<qint64>>> StorefrontAPI::collectionProductCount(QString handle, QJsonArray filters,
                                                                                    std::stop_token stop)
{
    qint64 count = 0;
    std::optional<QString> after;
    QSet<QString> passed;
    while (true) {
        LOOM_CO_TRY(page, co_await m_client.send(queries::collectionProductCount(),
                                                 {{QStringLiteral("handle"), handle},
                                                  {QStringLiteral("after"), orNull(after)},
                                                  {QStringLiteral("filters"), filters}},
                                                 Retry::Transient, readCountPage, stop));
        if (!page.exists)
            co_return std::optional<qint64>();
        count += page.count;
        if (!page.nextCursor)
            co_return std::optional(count);
        // Cursors that lead in a circle would walk for ever, and count nothing.
        if (passed.contains(*page.nextCursor))
            co_return apiFailure(APIError::InvalidResponse{});
        passed.insert(*page.nextCursor);
        after = page.nextCursor;
    }
}

QCoro::Task<ApiResult<std::vector<MarketCountry>>> StorefrontAPI::countries(std::stop_token stop)
{
    co_return co_await m_client.send(queries::countries(), {}, Retry::Transient, readCountries, stop);
}

QCoro::Task<ApiResult<std::optional<MarketSample>>> StorefrontAPI::rateSample(QString country, std::stop_token stop)
{
    co_return co_await m_client.send(queries::rateSample(), {{QStringLiteral("country"), country}}, Retry::Transient,
                                     readRateSample, stop);
}

} // namespace loom
