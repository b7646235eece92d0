#pragma once

#include "base/JsonReader.h"

#include <QJsonObject>
#include <QString>

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
[[nodiscard]] QJsonObject toJson(const Money& money);

} // namespace loom
