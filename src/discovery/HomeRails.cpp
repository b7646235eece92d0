#include "discovery/HomeRails.h"

#include "base/Dates.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace loom
{

namespace
{

HomeRails::Rail readRail(const JsonReader& json)
{
    const auto kind = recoKindFrom(json.text("kind"));
    if (!kind)
        json.fail(QStringLiteral("a rail of no known kind"));
    return {.source = {.kind = kind.value_or(RecoAPI::Kind::ForYou),
                       .handle = json.optionalText("handle").value_or(QString()),
                       .title = json.optionalText("title").value_or(QString()),
                       .label = json.optionalText("label").value_or(QString())},
            .products = decodeRecoProducts(json.list("products"))};
}

QJsonObject railJson(const HomeRails::Rail& rail)
{
    QJsonArray products;
    for (const RecoProduct& product : rail.products)
        products.append(toJson(product));
    return {{QStringLiteral("kind"), recoKindName(rail.source.kind)},
            {QStringLiteral("handle"), rail.source.handle},
            {QStringLiteral("title"), rail.source.title},
            {QStringLiteral("label"), rail.source.label},
            {QStringLiteral("products"), products}};
}

} // namespace

HomeRails decodeHomeRails(const JsonReader& json)
{
    return {.department = json.text("department"), .rails = JsonReader::decodeEach(json.list("rails"), readRail)};
}

QByteArray homeRailsFile(const HomeRails& rails, const QDateTime& savedAt)
{
    QJsonArray list;
    for (const HomeRails::Rail& rail : rails.rails)
        list.append(railJson(rail));
    const QJsonObject value{{QStringLiteral("department"), rails.department}, {QStringLiteral("rails"), list}};
    return QJsonDocument(
               QJsonObject{{QStringLiteral("value"), value}, {QStringLiteral("savedAt"), formatDate(savedAt)}})
        .toJson(QJsonDocument::Compact);
}

} // namespace loom
