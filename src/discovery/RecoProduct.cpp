#include "discovery/RecoProduct.h"

#include "catalog/DisplayText.h"

#include <QSet>

#include <cmath>

namespace loom
{

namespace
{

constexpr qsizetype longestHandle = 255;
constexpr qsizetype longestLine = 200;

RecoReason readReason(const JsonReader& json)
{
    return decodeRecoReason(json);
}

} // namespace

QString RecoProduct::reasonText(AppLanguage language) const
{
    if (reasonMeta) {
        if (const auto text = reasonMeta->render(language)) {
            const bool isSaidAlready = reasonMeta->templateName == QLatin1String("new_in");
            return reasonMeta->isNew && !isSaidAlready ? newAndReason(*text) : *text;
        }
    }
    if (reason && !reason->trimmed().isEmpty())
        return QString(*reason).replace(QLatin1String("  "), QLatin1String(" "));
    return plainReason(isNew);
}

RecoProduct decodeRecoProduct(const JsonReader& json)
{
    RecoProduct product{.handle = json.text("handle")};
    if (product.handle.isEmpty() || product.handle.size() > longestHandle)
        json.fail(QStringLiteral("a card without a usable handle"));
    product.title = json.optionalText("title").value_or(QString());
    product.vendor = json.optionalText("vendor").value_or(QString());
    product.image = json.optionalText("image").value_or(QString());
    const double price = json.optionalDecimal("price").value_or(0);
    product.priceUSD = std::isfinite(price) && price > 0 ? price : 0;
    product.reason = json.optionalText("reason");
    product.isNew = json.optionalBoolean("isNew").value_or(false);
    if (const auto meta = json.optionalObject("reasonMeta")) {
        // A broken reason is none, and costs the card nothing.
        auto reasons = JsonReader::decodeEach(std::vector{*meta}, readReason);
        if (!reasons.empty())
            product.reasonMeta = std::move(reasons.front());
    }
    return product;
}

QJsonObject toJson(const RecoProduct& product)
{
    QJsonObject json{{QStringLiteral("handle"), product.handle},  {QStringLiteral("title"), product.title},
                     {QStringLiteral("vendor"), product.vendor},  {QStringLiteral("image"), product.image},
                     {QStringLiteral("price"), product.priceUSD}, {QStringLiteral("isNew"), product.isNew}};
    if (product.reason)
        json.insert(QStringLiteral("reason"), *product.reason);
    if (product.reasonMeta)
        json.insert(QStringLiteral("reasonMeta"), toJson(*product.reasonMeta));
    return json;
}

ProductListItem cardOf(const RecoProduct& product, AppLanguage language)
{
    return {.id = {},
            .handle = product.handle,
            .title = displayLine(product.title, longestLine),
            .vendor = displayLine(product.vendor, longestLine),
            .imageURL = product.image.isEmpty() ? std::nullopt : std::optional(product.image),
            .price = {.amount = product.priceUSD, .currencyCode = QStringLiteral("USD")},
            .recoReason = displayLine(product.reasonText(language), longestLine)};
}

std::vector<RecoProduct> decodeRecoProducts(const std::vector<JsonReader>& elements)
{
    std::vector<RecoProduct> products = JsonReader::decodeEach(elements, decodeRecoProduct);
    QSet<QString> handles;
    std::erase_if(products, [&handles](const RecoProduct& product) {
        if (handles.size() >= static_cast<qsizetype>(maximumFeed) || handles.contains(product.handle))
            return true;
        handles.insert(product.handle);
        return false;
    });
    return products;
}

} // namespace loom
