#include "catalog/ProductListItem.h"

#include "base/Dates.h"
#include "catalog/StorefrontReading.h"

#include <QJsonArray>

namespace loom
{

ProductListItem decodeListItem(const JsonReader& json)
{
    ProductListItem item;
    item.id = json.text("id");
    item.handle = json.text("handle");
    item.title = json.text("title");
    item.vendor = json.optionalText("vendor").value_or(QString());
    item.tags = json.textList("tags");
    item.availableForSale = json.optionalBoolean("availableForSale");
    item.imageURL = readImageAddress(json, "featuredImage");
    item.createdAt = json.optionalDate("createdAt");
    item.price = decodeMoney(json.object("priceRange").object("minVariantPrice"));
    if (const auto range = json.optionalObject("compareAtPriceRange"))
        item.compareAtPrice = decodeOptionalMoney(*range, "minVariantPrice");
    for (const JsonReader& variant : readNodes(json, "styleVariants")) {
        if (const auto address = readImageAddress(variant, "image"))
            item.styleImages.append(*address);
    }
    for (const JsonReader& image : readNodes(json, "cardImages")) {
        if (const auto address = readImageAddress(image))
            item.cardImages.append(*address);
    }
    return item;
}

ProductListItem decodeStoredItem(const JsonReader& json)
{
    ProductListItem item;
    item.id = json.text("id");
    item.handle = json.text("handle");
    item.title = json.text("title");
    item.vendor = json.optionalText("vendor").value_or(QString());
    if (const auto address = json.optionalText("imageURL"); address && !address->isEmpty())
        item.imageURL = address;
    item.price = decodeMoney(json.object("price"));
    item.compareAtPrice = decodeOptionalMoney(json, "compareAtPrice");
    item.tags = json.textList("tags");
    item.createdAt = json.optionalDate("createdAt");
    item.styleImages = json.textList("styleImages");
    item.cardImages = json.textList("cardImages");
    item.availableForSale = json.optionalBoolean("availableForSale");
    item.recoReason = json.optionalText("recoReason");
    item.seenPrice = json.optionalDecimal("seenPrice");
    item.seenAt = json.optionalDate("seenAt");
    item.seenCurrency = json.optionalText("seenCurrency");
    return item;
}

QJsonObject toJson(const ProductListItem& item)
{
    QJsonObject json{
        {QStringLiteral("id"), item.id},
        {QStringLiteral("handle"), item.handle},
        {QStringLiteral("title"), item.title},
        {QStringLiteral("vendor"), item.vendor},
        {QStringLiteral("price"), toJson(item.price)},
        {QStringLiteral("tags"), QJsonArray::fromStringList(item.tags)},
        {QStringLiteral("styleImages"), QJsonArray::fromStringList(item.styleImages)},
        {QStringLiteral("cardImages"), QJsonArray::fromStringList(item.cardImages)},
    };
    const auto insert = [&json](const char* key, const auto& value, auto encode) {
        if (value)
            json.insert(QLatin1String(key), encode(*value));
    };
    const auto plain = [](const auto& value) {
        return QJsonValue(value);
    };
    insert("imageURL", item.imageURL, plain);
    insert("compareAtPrice", item.compareAtPrice, [](const Money& money) { return QJsonValue(toJson(money)); });
    insert("createdAt", item.createdAt, [](const QDateTime& date) { return QJsonValue(formatDate(date)); });
    insert("availableForSale", item.availableForSale, plain);
    insert("recoReason", item.recoReason, plain);
    insert("seenPrice", item.seenPrice, plain);
    insert("seenAt", item.seenAt, [](const QDateTime& date) { return QJsonValue(formatDate(date)); });
    insert("seenCurrency", item.seenCurrency, plain);
    return json;
}

std::optional<Money> formerPrice(const Money& price, const std::optional<Money>& compareAtPrice)
{
    const bool isAbove =
        compareAtPrice && compareAtPrice->amount > price.amount && compareAtPrice->currencyCode == price.currencyCode;
    return isAbove ? compareAtPrice : std::nullopt;
}

} // namespace loom
