#pragma once

#include "base/JsonReader.h"

#include <QStringList>

namespace loom
{

/// A product in a list of suggestions.
struct ProductHit {
    QString id;
    QString handle;
    QString title;
    QString vendor;
    std::optional<QString> imageURL;

    bool operator==(const ProductHit&) const = default;
};

/// What the store suggests while a shopper types.
struct SearchSuggestions {
    struct Collection {
        QString handle;
        QString title;

        bool operator==(const Collection&) const = default;
    };

    QStringList queries;
    std::vector<ProductHit> products;
    std::vector<Collection> collections;

    bool operator==(const SearchSuggestions&) const = default;
};

[[nodiscard]] SearchSuggestions decodeSuggestions(const JsonReader& data);

} // namespace loom
