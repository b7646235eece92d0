#include "support/Json.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <stdexcept>

namespace loom
{

QJsonValue json(const char* text)
{
    const QJsonDocument document = QJsonDocument::fromJson('[' + QByteArray(text) + ']');
    if (document.array().size() != 1)
        throw std::invalid_argument(text);
    return document.array().first();
}

QJsonValue changed(const QJsonValue& value, const QString& path, const QJsonValue& replacement)
{
    if (path.isEmpty())
        return replacement;
    const qsizetype end = path.indexOf(QRegularExpression(QStringLiteral("[.\\[\\]]")), 1);
    const QString step = path.left(end);
    QString rest = end < 0 ? QString() : path.mid(end);
    if (step.startsWith(QLatin1Char('['))) {
        QJsonArray array = value.toArray();
        const int index = step.mid(1).toInt();
        rest.remove(0, rest.startsWith(QLatin1String("].")) ? 2 : 1);
        array[index] = changed(array.at(index), rest, replacement);
        return array;
    }
    QJsonObject object = value.toObject();
    rest.remove(0, rest.startsWith(QLatin1Char('.')) ? 1 : 0);
    object.insert(step, changed(object.value(step), rest, replacement));
    return object;
}

QByteArray bytes(const QJsonValue& value)
{
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

QJsonObject cardJson(const QString& handle)
{
    QJsonObject card = json(R"({
        "id": "gid://shopify/Product/7", "title": "Silk dress", "vendor": "Ada Lin",
        "tags": ["silk", "New"], "availableForSale": true, "createdAt": "2025-03-01T10:00:00Z",
        "featuredImage": {"url": "https://pictures.example/1.jpg"},
        "priceRange": {"minVariantPrice": {"amount": "248.5", "currencyCode": "USD"}},
        "compareAtPriceRange": {"minVariantPrice": {"amount": "310.0", "currencyCode": "USD"}},
        "styleVariants": {"nodes": [{"image": {"url": "https://pictures.example/red.jpg"}},
                                    {"image": {"url": "https://pictures.example/ink.jpg"}}]},
        "cardImages": {"nodes": [{"url": "https://pictures.example/1.jpg"}, {"url": "https://pictures.example/2.jpg"}]}
    })")
                           .toObject();
    card.insert(QStringLiteral("handle"), handle);
    return card;
}

QJsonObject productJson(const QString& handle)
{
    QJsonObject product = cardJson(handle);
    const QJsonObject page = json(R"({
        "description": "Cut on the bias.", "descriptionHtml": "<p>Cut on the bias.</p>", "productType": "Dress",
        "collections": {"nodes": [{"handle": "dresses"}, {"handle": "new-in"}]},
        "images": {"nodes": [{"url": "https://pictures.example/red.jpg"}, {"url": "https://pictures.example/ink.jpg"}]},
        "options": [{"name": "Colour", "optionValues": [{"name": "Red"}, {"name": "Ink"}]},
                    {"name": "Size", "optionValues": [{"name": "S"}, {"name": "M"}]}],
        "variants": {"nodes": [
            {"id": "gid://shopify/ProductVariant/1", "title": "Red / S", "availableForSale": false,
             "quantityAvailable": 0, "price": {"amount": "248.5", "currencyCode": "USD"}, "compareAtPrice": null,
             "selectedOptions": [{"name": "Colour", "value": "Red"}, {"name": "Size", "value": "S"}],
             "image": {"url": "https://pictures.example/red.jpg"}},
            {"id": "gid://shopify/ProductVariant/2", "title": "Ink / S", "availableForSale": true,
             "quantityAvailable": 1, "price": {"amount": "260.0", "currencyCode": "USD"},
             "compareAtPrice": {"amount": "310.0", "currencyCode": "USD"},
             "selectedOptions": [{"name": "Colour", "value": "Ink"}, {"name": "Size", "value": "S"}],
             "image": {"url": "https://pictures.example/ink.jpg"}},
            {"id": "gid://shopify/ProductVariant/3", "title": "Ink / M", "availableForSale": true,
             "quantityAvailable": null, "price": {"amount": "255.0", "currencyCode": "USD"}, "compareAtPrice": null,
             "selectedOptions": [{"name": "Colour", "value": "Ink"}, {"name": "Size", "value": "M"}], "image": null}]},
        "metafields": [null, {"namespace": "custom", "key": "presale", "type": "single_line_text_field",
                              "value": "Ships in May"}]
    })")
                                 .toObject();
    for (auto field = page.begin(); field != page.end(); ++field)
        product.insert(field.key(), field.value());
    return product;
}

} // namespace loom
