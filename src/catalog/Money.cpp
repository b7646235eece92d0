#include "catalog/Money.h"

namespace loom
{

Money decodeMoney(const JsonReader& json)
{
    return {.amount = json.decimal("amount"), .currencyCode = json.text("currencyCode")};
}

std::optional<Money> decodeOptionalMoney(const JsonReader& json, std::string_view key)
{
    const auto object = json.optionalObject(key);
    const auto amount = object ? object->optionalDecimal("amount") : std::nullopt;
    const auto currencyCode = object ? object->optionalText("currencyCode") : std::nullopt;
    if (!amount || *amount <= 0 || !currencyCode)
        return std::nullopt;
    return Money{.amount = *amount, .currencyCode = *currencyCode};
}

QJsonObject toJson(const Money& money)
{
    return {{QStringLiteral("amount"), money.amount}, {QStringLiteral("currencyCode"), money.currencyCode}};
}

} // namespace loom
