#pragma once

#include "base/JsonReader.h"

#include <QJsonObject>
#include <QString>

namespace loom
{

/// A country the shop sells to.
struct MarketCountry {
    QString isoCode;  ///< ISO 3166-1 alpha-2, in capitals
    QString name;     ///< in the content language
    QString currency; ///< ISO 4217

    bool operator==(const MarketCountry&) const = default;
};

/// Reads and writes a country as it is kept on this machine.
[[nodiscard]] inline MarketCountry decodeStoredCountry(const JsonReader& json)
{
    return {.isoCode = json.text("isoCode"), .name = json.text("name"), .currency = json.text("currency")};
}

[[nodiscard]] inline QJsonObject toJson(const MarketCountry& country)
{
    return {{QStringLiteral("isoCode"), country.isoCode},
            {QStringLiteral("name"), country.name},
            {QStringLiteral("currency"), country.currency}};
}

} // namespace loom
