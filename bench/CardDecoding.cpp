#include "base/JsonReader.h"
#include "base/SystemClock.h"
#include "catalog/CollectionPage.h"
#include "catalog/MoneyFormat.h"
#include "catalog/ProductListModel.h"
#include "catalog/StorefrontClient.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <benchmark/benchmark.h>

using namespace loom;

namespace
{

constexpr int cardCount = 250;

QJsonObject object(std::initializer_list<std::pair<QString, QJsonValue>> fields)
{
    return QJsonObject(fields);
}

QString picture(int piece, int number)
{
    return QStringLiteral("https://cdn.example.com/s/files/1/0123/4567/8901/products/piece-%1-%2.jpg?v=1712345678")
        .arg(piece)
        .arg(number);
}

QJsonObject nodes(const QJsonArray& list)
{
    return object({{QStringLiteral("nodes"), list}});
}

QJsonObject price(const QString& amount)
{
    return object(
        {{QStringLiteral("minVariantPrice"),
          object({{QStringLiteral("amount"), amount}, {QStringLiteral("currencyCode"), QStringLiteral("USD")}})}});
}

QJsonObject card(int piece)
{
    QJsonArray variants;
    for (int i = 0; i < 10; ++i) {
        variants.append(object({{QStringLiteral("image"), object({{QStringLiteral("url"), picture(piece, i / 3)}})}}));
    }
    QJsonArray images;
    for (int i = 0; i < 4; ++i)
        images.append(object({{QStringLiteral("url"), picture(piece, i)}}));
    return object({{QStringLiteral("id"), QStringLiteral("gid://shopify/Product/%1").arg(7000000000000LL + piece)},
                   {QStringLiteral("handle"), QStringLiteral("bias-cut-silk-slip-dress-%1").arg(piece)},
                   {QStringLiteral("title"), QStringLiteral("Bias-cut silk slip dress, number %1").arg(piece)},
                   {QStringLiteral("vendor"), QStringLiteral("Tallis & Rook")},
                   {QStringLiteral("tags"), QJsonArray{QStringLiteral("dresses"), QStringLiteral("silk"),
                                                       QStringLiteral("new"), QStringLiteral("evening")}},
                   {QStringLiteral("availableForSale"), piece % 7 != 0},
                   {QStringLiteral("featuredImage"), object({{QStringLiteral("url"), picture(piece, 0)}})},
                   {QStringLiteral("createdAt"), QStringLiteral("2025-03-09T08:07:06Z")},
                   {QStringLiteral("priceRange"), price(QStringLiteral("248.0"))},
                   {QStringLiteral("compareAtPriceRange"), price(QStringLiteral("310.0"))},
                   {QStringLiteral("styleVariants"), nodes(variants)},
                   {QStringLiteral("cardImages"), nodes(images)}});
}

/// An answer of 250 cards, as the Storefront writes it.
const QByteArray& answer()
{
    static const QByteArray bytes = [] {
        QJsonArray cards;
        for (int i = 0; i < cardCount; ++i)
            cards.append(card(i));
        const QJsonObject products =
            object({{QStringLiteral("nodes"), cards},
                    {QStringLiteral("pageInfo"),
                     object({{QStringLiteral("hasNextPage"), false}, {QStringLiteral("endCursor"), QJsonValue()}})},
                    {QStringLiteral("filters"), QJsonArray()}});
        const QJsonObject collection = object({{QStringLiteral("id"), QStringLiteral("gid://shopify/Collection/1")},
                                               {QStringLiteral("handle"), QStringLiteral("dresses")},
                                               {QStringLiteral("title"), QStringLiteral("Dresses")},
                                               {QStringLiteral("image"), QJsonValue()},
                                               {QStringLiteral("products"), products}});
        return QJsonDocument(object({{QStringLiteral("data"), object({{QStringLiteral("collection"), collection}})}}))
            .toJson(QJsonDocument::Compact);
    }();
    return bytes;
}

/// The baseline: the same records from Qt's own document, with no checks and no paths.
std::vector<ProductListItem> decodePlainly(const QByteArray& bytes)
{
    const auto text = [](const QJsonObject& from, const char* key) {
        return from.value(QLatin1String(key)).toString();
    };
    const auto child = [](const QJsonObject& from, const char* key) {
        return from.value(QLatin1String(key)).toObject();
    };
    const auto money = [&](const QJsonObject& range) {
        const QJsonObject minimum = child(range, "minVariantPrice");
        return Money{.amount = text(minimum, "amount").toDouble(), .currencyCode = text(minimum, "currencyCode")};
    };
    std::vector<ProductListItem> items;
    const QJsonObject data = child(QJsonDocument::fromJson(bytes).object(), "data");
    for (const QJsonValue& value :
         child(child(data, "collection"), "products").value(QLatin1String("nodes")).toArray()) {
        const QJsonObject json = value.toObject();
        ProductListItem item;
        item.id = text(json, "id");
        item.handle = text(json, "handle");
        item.title = text(json, "title");
        item.vendor = text(json, "vendor");
        item.imageURL = text(child(json, "featuredImage"), "url");
        item.price = money(child(json, "priceRange"));
        item.compareAtPrice = money(child(json, "compareAtPriceRange"));
        for (const QJsonValue& tag : json.value(QLatin1String("tags")).toArray())
            item.tags.append(tag.toString());
        item.createdAt = QDateTime::fromString(text(json, "createdAt"), Qt::ISODate);
        for (const QJsonValue& variant : child(json, "styleVariants").value(QLatin1String("nodes")).toArray())
            item.styleImages.append(text(child(variant.toObject(), "image"), "url"));
        for (const QJsonValue& image : child(json, "cardImages").value(QLatin1String("nodes")).toArray())
            item.cardImages.append(text(image.toObject(), "url"));
        item.availableForSale = json.value(QLatin1String("availableForSale")).toBool();
        items.push_back(std::move(item));
    }
    return items;
}

void plainDocumentMapping(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(decodePlainly(answer()));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * answer().size());
}
BENCHMARK(plainDocumentMapping)->Unit(benchmark::kMillisecond);

void checkedDecoding(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(StorefrontClient::decodeEnvelope(answer(), decodeCollectionPage));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * answer().size());
}
BENCHMARK(checkedDecoding)->Unit(benchmark::kMillisecond);

/// What an answer costs the main thread: the records go into the list a page shows.
void applyingToTheList(benchmark::State& state)
{
    const MoneyFormat money(AppLanguage::English);
    const SystemClock clock;
    const auto page = StorefrontClient::decodeEnvelope(answer(), decodeCollectionPage);
    for (auto _ : state) {
        state.PauseTiming();
        auto model = std::make_unique<ProductListModel>(money, clock);
        std::vector<ProductListItem> items = page->products;
        state.ResumeTiming();
        model->replace(std::move(items));
        state.PauseTiming();
        model.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(applyingToTheList)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
