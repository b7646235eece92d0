#include "account/Alert.h"

namespace loom
{

namespace
{

AlertKind decodeKind(const JsonReader& json)
{
    const QString kind = json.text("kind");
    for (const AlertKind known : {AlertKind::Restock, AlertKind::Price}) {
        if (kind == rawValue(known))
            return known;
    }
    json.fail(QStringLiteral("unknown kind of alert"));
    return {};
}

} // namespace

Alert decodeAlert(const JsonReader& json)
{
    return {.id = json.text("id"),
            .subject = {.kind = decodeKind(json),
                        .handle = json.text("handle"),
                        .variantId = json.optionalText("variantId").value_or(QString())},
            .title = json.text("title"),
            .vendor = json.optionalText("vendor").value_or(QString()),
            .variantTitle = json.optionalText("variantTitle").value_or(QString()),
            .imageURL = json.optionalText("imageURL").value_or(QString()),
            .price = decodeMoney(json.object("price")),
            .currentPrice = decodeOptionalMoney(json, "currentPrice"),
            .isMet = json.optionalBoolean("isMet").value_or(false),
            .createdAt = json.optionalDate("createdAt")};
}

} // namespace loom
