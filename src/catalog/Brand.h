#pragma once

#include "base/JsonReader.h"

#include <QJsonObject>

namespace loom
{

/// A designer, under the name that pieces carry, and how many of them the shop sells in the market.
struct Brand {
    QString name;
    qint64 count = 0;

    bool operator==(const Brand&) const = default;
};

[[nodiscard]] inline QJsonObject toJson(const Brand& brand)
{
    return {{QStringLiteral("name"), brand.name}, {QStringLiteral("count"), brand.count}};
}

[[nodiscard]] inline Brand decodeBrand(const JsonReader& json)
{
    return {.name = json.text("name"), .count = json.integer("count")};
}

} // namespace loom
