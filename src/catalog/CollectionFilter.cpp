#include "catalog/CollectionFilter.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace loom
{

namespace
{

CollectionFilter::Value decodeValue(const JsonReader& json)
{
    CollectionFilter::Value value{.id = json.text("id"),
                                  .label = json.text("label"),
                                  .count = json.optionalInteger("count").value_or(0),
                                  .input = {}};
    // JSON inside of JSON; a server may as well write the object itself.
    const auto object = json.optionalObject("input");
    value.input = object ? QString::fromUtf8(QJsonDocument(object->asJson().toObject()).toJson(QJsonDocument::Compact))
                         : json.text("input");
    if (!object && !QJsonDocument::fromJson(value.input.toUtf8()).isObject())
        json.fail(QStringLiteral("the input of a filter's value is no object"));
    return value;
}

} // namespace

CollectionFilter decodeFilter(const JsonReader& json)
{
    CollectionFilter filter;
    filter.id = json.text("id");
    filter.label = json.text("label");
    const QString kind = json.text("type");
    if (kind == QLatin1String("PRICE_RANGE"))
        filter.kind = CollectionFilter::Kind::PriceRange;
    else if (kind == QLatin1String("BOOLEAN"))
        filter.kind = CollectionFilter::Kind::Boolean;
    else if (kind != QLatin1String("LIST"))
        json.fail(QStringLiteral("a filter of an unknown kind"));
    filter.values = JsonReader::decodeEach(json.optionalList("values"), decodeValue);
    return filter;
}

} // namespace loom
