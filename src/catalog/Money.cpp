#include "catalog/Money.h"

namespace loom
{

Money decodeMoney(const JsonReader& json)
{
    return {.amount = json.decimal("amount"), .currencyCode = json.text("currencyCode")};
}

QJsonObject toJson(const Money& money)
{
    return {{QStringLiteral("amount"), money.amount}, {QStringLiteral("currencyCode"), money.currencyCode}};
}

} // namespace loom
