#pragma once

#include <QString>

namespace loom
{

/// A value that a merchant attached to a product, as the Storefront returns it.
struct Metafield {
    QString nameSpace;
    QString key;
    QString type;
    QString value;

    bool operator==(const Metafield&) const = default;
};

} // namespace loom
