#pragma once

#include "base/JsonReader.h"
#include "catalog/SizeTable.h"

#include <QList>
#include <QString>

namespace loom
{

struct SpecRow {
    QString key;
    QString value;

    bool operator==(const SpecRow&) const = default;
};

/// The facts of a piece and its tables of sizes, which merchants keep in one metafield.
struct ProductSpecs {
    QList<SpecRow> rows;
    QList<TableSection> sizeTables;

    bool operator==(const ProductSpecs&) const = default;
};

/// Reads a list of {"key", "value"}, or {"rows": that list, "sizeTables": [{"title", "rows": lists of cells}]}. A row
/// that lacks either text is left out, a table without any cell too; a cell that is neither text nor number is empty,
/// for the cells behind it must stay under their headings.
[[nodiscard]] ProductSpecs decodeProductSpecs(const JsonReader& json);

} // namespace loom
