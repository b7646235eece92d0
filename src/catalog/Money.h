#pragma once

#include "base/JsonReader.h"

#include <QJsonObject>
#include <QString>

#include <optional>

namespace loom
{

/// An amount in a currency (ISO 4217).
struct Money {
    double amount = 0;
    QString currencyCode;

    bool operator==(const Money&) const = default;
};

/// Reads {"amount", "currencyCode"}; the amount may be a number or, as the Storefront sends it, a decimal text.
[[nodiscard]] Money decodeMoney(const JsonReader& json);
/// The same of what stands under `key`; none when that is absent, cannot be read or is zero, which is how the
/// Storefront writes that there is none.
[[nodiscard]] std::optional<Money> decodeOptionalMoney(const JsonReader& json, std::string_view key);
[[nodiscard]] QJsonObject toJson(const Money& money);

} // namespace loom
