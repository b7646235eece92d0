#pragma once

#include <QString>

#include <optional>

namespace loom
{

struct CollectionInfo {
    QString id;
    QString handle;
    QString title;
    std::optional<QString> imageURL;

    bool operator==(const CollectionInfo&) const = default;
};

/// What a tile needs to know of a collection; the picture is its own or its first product's.
struct CollectionTile {
    QString handle;
    QString title;
    std::optional<QString> imageURL;

    bool operator==(const CollectionTile&) const = default;
};

} // namespace loom
