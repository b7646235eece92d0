#pragma once

#include "base/JsonReader.h"

namespace loom
{

/// One thing a list of products can be narrowed by.
struct CollectionFilter {
    enum class Kind { List, PriceRange, Boolean };
    struct Value {
        QString id;
        QString label;
        qint64 count = 0;
        QString input; ///< the JSON object to send back when the value is chosen

        bool operator==(const Value&) const = default;
    };

    QString id;
    QString label;
    Kind kind = Kind::List;
    std::vector<Value> values;

    bool operator==(const CollectionFilter&) const = default;
};

/// Values that could not be sent back are left out.
[[nodiscard]] CollectionFilter decodeFilter(const JsonReader& json);

} // namespace loom
